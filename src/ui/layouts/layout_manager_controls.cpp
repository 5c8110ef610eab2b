// The controls of the layout manager and where they stand.
#include "ui/layouts/layout_manager.h"
#include "ui/shell/dialog_parts.h"

namespace zarvo {
namespace {

// Pixels of the window; frames and what stands in them share one left and right edge each.
constexpr int kWidth = 206;
constexpr int kHeight = 289;
constexpr int kFrameLeft = 6;
constexpr int kFrameWidth = kWidth - 2 * kFrameLeft;
constexpr int kLeft = 14;
constexpr int kInnerWidth = kWidth - 2 * kLeft;
constexpr int kBoxHeight = 21;
constexpr int kButtonHeight = 23;
constexpr int kGap = 5;

constexpr TwipRect Pixels(int left, int top, int width, int height) {
  return {ToTwips(left), ToTwips(top), ToTwips(width), ToTwips(height)};
}

// The place of one of `count` buttons that share a row.
constexpr TwipRect InRow(int index, int count, int top) {
  const int width = (kInnerWidth - (count - 1) * kGap) / count;
  return Pixels(kLeft + index * (width + kGap), top, width, kButtonHeight);
}

Frame* PutFrame(QWidget* parent, std::string_view name, const TwipRect& place,
                std::string_view caption) {
  auto* frame = PutCaption<Frame>(parent, name, place, caption);
  frame->SetOnDarkGround(true);
  return frame;
}

CheckBox* PutCheck(QWidget* parent, std::string_view name, const TwipRect& place,
                   std::string_view caption) {
  auto* check = PutCaption<CheckBox>(parent, name, place, caption);
  check->SetForeColor(kMoon);
  return check;
}

}  // namespace

void LayoutManager::Build() {
  SetCaption("Zarvo - Layouts Manager");
  SetWidth(ToTwips(kWidth));
  SetHeight(ToTwips(kHeight));
  BuildLayouts();
  BuildDefault();
  chkAlwaysOnTop = PutCheck(this, "chkAlwaysOnTop", Pixels(kLeft, 261, 100, 18), "Always on top");
  cmdOk = PutCaption<PushButton>(
      this, "cmdOk", Pixels(kFrameLeft + kFrameWidth - 72, 258, 72, kButtonHeight), "Close");
}

void LayoutManager::BuildLayouts() {
  constexpr int kListTop = 46;
  constexpr int kListHeight = 77;
  constexpr int kEmulatorsWidth = 100;
  constexpr int kSizesLeft = kLeft + kEmulatorsWidth + kGap;
  Frame4 = PutFrame(this, "Frame4", Pixels(kFrameLeft, 4, kFrameWidth, 177), "Multiple Layouts");
  cboListaLayout =
      Put<ComboBox>(this, "cboListaLayout", Pixels(kLeft, 22, kInnerWidth, kBoxHeight));
  cboListaLayout->SetAccessibleName("Layout");
  lstEmulatori =
      Put<ListBox>(this, "lstEmulatori", Pixels(kLeft, kListTop, kEmulatorsWidth, kListHeight));
  lstEmulatori->SetAccessibleName("Panels of the layout");
  lstEmulatoriSize =
      Put<ListBox>(this, "lstEmulatoriSize",
                   Pixels(kSizesLeft, kListTop, kLeft + kInnerWidth - kSizesLeft, kListHeight));
  lstEmulatoriSize->SetAccessibleName("Sizes of the panels");
  cmdAdd = PutCaption<PushButton>(this, "cmdAdd", InRow(0, 3, 126), "Add");
  cmdRemove = PutCaption<PushButton>(this, "cmdRemove", InRow(1, 3, 126), "Remove");
  cmdRename = PutCaption<PushButton>(this, "cmdRename", InRow(2, 3, 126), "Rename");
  cmdLoadLayout = PutCaption<PushButton>(this, "cmdLoadLayout", InRow(0, 2, 152), "Load");
  cmdSaveLayout = PutCaption<PushButton>(this, "cmdSaveLayout", InRow(1, 2, 152), "Save");
}

void LayoutManager::BuildDefault() {
  constexpr int kLabelWidth = 32;
  Frame5 = PutFrame(this, "Frame5", Pixels(kFrameLeft, 184, kFrameWidth, 68), "Default layout");
  chkEnableAutoload = PutCheck(this, "chkEnableAutoload", Pixels(kLeft, 200, kInnerWidth, 18),
                               "Enable Autoload on Stratup");
  Label1 = PutCaption<Label>(this, "Label1", Pixels(kLeft, 225, kLabelWidth, 14), "Load");
  cboListaLayout2 =
      Put<ComboBox>(this, "cboListaLayout2",
                    Pixels(kLeft + kLabelWidth, 222, kInnerWidth - kLabelWidth, kBoxHeight));
  cboListaLayout2->SetAccessibleName("Layout to load at the start");
  cboListaLayout2->SetEnabled(false);
}

}  // namespace zarvo
