#include "ui/panel/find_field.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <initializer_list>
#include <string>

#include "ui/panel/page_parts.h"
#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

constexpr int kHeight = 300;  // twips, as all of these
constexpr int kMargin = 30;
constexpr int kButtonWidth = 240;
constexpr int kFoundWidth = 825;  // "12345 of 32767"
constexpr int kNarrow = 2700;     // a list that is narrower has less for it
constexpr int kNarrowFoundWidth = 600;

// The keys do the same, and the text keeps them.
template <typename Button>
void Describe(Button* button, std::string_view name, std::string_view what) {
  button->SetName(name);
  button->SetAccessibleName(what);
  button->SetToolTipText(what);
  button->setFocusPolicy(Qt::NoFocus);
}

ImageBox* MakeArrow(QWidget* parent, const char* drawing, std::string_view name,
                    std::string_view what) {
  auto* const arrow = new ImageBox(parent);
  arrow->SetPicture(Picture::FromResource(drawing));
  arrow->SetPressable(true);
  Describe(arrow, name, what);
  return arrow;
}

}  // namespace

FindField::FindField(QWidget* panel, const Catalogue& games)
    : QWidget(panel),
      txtFind(new TextBox(this)),
      lblFound(new Label(this)),
      cmdNext(MakeArrow(this, "arrow_down", "cmdFindNext", "Next game that is found (Down, F3)")),
      cmdPrevious(MakeArrow(this, "arrow_up", "cmdFindPrevious",
                            "Game that is found before (Up, Shift+F3)")),
      cmdCloseFind(MakeButton(this, ButtonKind::kClose, {}, "X")),
      games_(games) {
  hide();
  setAttribute(Qt::WA_NoMousePropagation);  // the panel below has nothing here
  txtFind->SetName("txtFind");
  txtFind->SetAccessibleName("Find a game by a part of its name");
  lblFound->SetName("lblFound");
  lblFound->SetAlign(TextAlign::kCentre);
  lblFound->SetForeColor(kWhite);
  Describe(cmdCloseFind, "cmdFindClose", "Close the field (Escape)");
  Wire();
}

FindField::~FindField() = default;

void FindField::Wire() {
  txtFind->Change.Connect([this] { GoToFirst(); });
  txtFind->installEventFilter(this);
  txtFind->KeyDown.Connect([this](const KeyArgs& key) { OnKey(key); });
  cmdNext->Click.Connect([this] { Step(1); });
  cmdPrevious->Click.Connect([this] { Step(-1); });
  cmdCloseFind->Click.Connect([this] { Close(); });
}

void FindField::Open(ListBox* list) {
  if (list_ != list) {
    if (list_ != nullptr) {
      Close();
      list_->removeEventFilter(this);
    }
    list_ = list;
    list->installEventFilter(this);
  }
  list->SetHeadRoom(ToPixels(kHeight));
  Fit();
  show();
  raise();
  txtFind->setFocus();
  txtFind->selectAll();
  Tell(games_.Search(txtFind->Text(), list->Items()));
}

void FindField::Close() {
  if (list_ == nullptr || isHidden()) return;
  const bool had_focus = txtFind->hasFocus();
  hide();
  list_->SetHeadRoom(0);
  if (had_focus) list_->setFocus();
}

bool FindField::eventFilter(QObject* watched, QEvent* event) {
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (watched == list_ && moved) Fit();
  // The list knows a key that is held from one that is pressed anew, and starts one game.
  const bool is_key = watched == txtFind && event->type() == QEvent::KeyPress;
  if (!is_key || KeyCodeOf(static_cast<const QKeyEvent&>(*event)) != key::kEnter) return false;
  QApplication::sendEvent(list_, event);
  return true;
}

void FindField::Fit() {
  const int width = list_->Width();
  setGeometry(
      QRect(list_->mapTo(parentWidget(), QPoint()), QSize(list_->width(), ToPixels(kHeight))));
  const int inside = kHeight - 2 * kMargin;
  int right = width - kMargin;
  for (Control* const button :
       std::initializer_list<Control*>{cmdCloseFind, cmdNext, cmdPrevious}) {
    right -= kButtonWidth;
    button->SetPlace({right, kMargin, kButtonWidth - ToTwips(1), inside});
  }
  const int found = width < kNarrow ? kNarrowFoundWidth : kFoundWidth;
  lblFound->SetPlace({right - found, kMargin, found, inside});
  txtFind->SetPlace({kMargin, kMargin, right - found - kMargin, inside});
}

void FindField::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), kNight.ToQt());
}

void FindField::OnKey(const KeyArgs& key) {
  const bool back = key.code == key::kUp || (key.code == key::kF3 && key.shift == kShiftDown);
  if (key.code == key::kDown || key.code == key::kF3 || back) {
    Step(back ? -1 : 1);
  } else if (key.code == key::kEscape) {
    Close();
  } else {
    return;
  }
  txtFind->SwallowKey();
}

void FindField::GoToFirst() {
  if (list_ == nullptr) return;
  const std::vector<int> found = games_.Search(txtFind->Text(), list_->Items());
  if (!found.empty()) list_->SetListIndex(found.front());
  Tell(found);
}

void FindField::Step(int steps) {
  const std::vector<int> found = games_.Search(txtFind->Text(), list_->Items());
  if (!found.empty()) {
    const auto count = static_cast<int>(found.size());
    const auto at = std::lower_bound(found.begin(), found.end(), list_->ListIndex());
    const bool on_one = at != found.end() && *at == list_->ListIndex();
    int place = static_cast<int>(at - found.begin());
    if (on_one || steps < 0) place += steps;
    list_->SetListIndex(found[static_cast<std::size_t>((place + count) % count)]);
  }
  Tell(found);
}

void FindField::Tell(const std::vector<int>& found) {
  std::string text;
  if (!txtFind->Text().empty()) {
    const auto at = std::find(found.begin(), found.end(), list_->ListIndex());
    const std::string count = std::to_string(found.size());
    text = found.empty()       ? "none"
           : at == found.end() ? count
                               : std::to_string(at - found.begin() + 1) + " of " + count;
  }
  lblFound->SetCaption(text);
  lblFound->SetAccessibleName(text.empty() ? "" : "Found: " + text);
}

}  // namespace zarvo
