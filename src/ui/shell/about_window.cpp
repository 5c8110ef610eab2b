#include "ui/shell/about_window.h"

#include <QDesktopServices>
#include <QUrl>
#include <utility>

#include "core/platform/messages.h"
#include "core/platform/program.h"
#include "ui/shell/dialog_parts.h"

namespace zarvo {
namespace {

constexpr int kWidth = 4005;
constexpr int kHeight = 2850;
constexpr int kMargin = ToTwips(10);
constexpr int kTextWidth = kWidth - 2 * kMargin;
constexpr int kLine = ToTwips(13);

// Lines of text under one another, across the window.
constexpr TwipRect Lines(int top_pixels, int count) {
  return {kMargin, ToTwips(top_pixels), kTextWidth, count * kLine};
}

constexpr TwipRect Centred(int top_pixels, int width_pixels, int height_pixels) {
  const int width = ToTwips(width_pixels);
  return {(kWidth - width) / 2, ToTwips(top_pixels), width, ToTwips(height_pixels)};
}

Label* PutLink(QWidget* parent, std::string_view name, const TwipRect& place,
               std::string_view caption) {
  auto* link = PutCaption<Label>(parent, name, place, caption);
  link->SetForeColor(kLavender);
  link->SetUnderline(true);
  link->SetPressable(true);
  // No wider than its text, so that only the text is the link.
  link->SetWidth(ToTwips(link->fontMetrics().horizontalAdvance(ToQt(caption)) + 2));
  return link;
}

}  // namespace

AddressOpener DesktopOpener() {
  return [](std::string_view address) { QDesktopServices::openUrl(QUrl(ToQt(address))); };
}

AboutWindow::AboutWindow(AddressOpener open)
    : Window(WindowFrame::kDesktop, "frmAbout"), open_(std::move(open)) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  Build();
  Wire();
  lblLatestFiles->SetCaption(MsgDownloadInfo);
  lblInfoRequest->SetCaption(MsgMailInfo);
  SetCaption("Zarvo - " + std::string(ProgramVersion));
  lblVersion->SetCaption(ProgramVersion);
}

void AboutWindow::Build() {
  SetBackground(Picture::FromResource("about_background"));
  imgZarvo = Put<ImageBox>(this, "imgZarvo", Centred(4, 92, 26));
  imgZarvo->SetPicture(Picture::FromResource("logo"));
  constexpr int kVersionLeft = kWidth / 2 + ToTwips(9);
  Label1 = PutCaption<Label>(this, "Label1",
                             {kMargin, ToTwips(31), kVersionLeft - ToTwips(4) - kMargin, kLine},
                             "Zarvo -");
  Label1->SetAlign(TextAlign::kRight);
  Label1->SetBold(true);
  lblVersion = Put<Label>(this, "lblVersion",
                          {kVersionLeft, ToTwips(31), kWidth - kMargin - kVersionLeft, kLine});
  lblVersion->SetBold(true);
  Label2 =
      PutCaption<Label>(this, "Label2", Lines(44, 1), "The Definitive MultiFrontend for Emulators");
  Label2->SetAlign(TextAlign::kCentre);
  lblLatestFiles = Put<Label>(this, "lblLatestFiles", Lines(59, 3));
  lblLatestFiles->SetWordWrap(true);
  lblZarvoWeb = PutLink(this, "lblZarvoWeb", Lines(98, 1), kHomePage);
  lblInfoRequest = Put<Label>(this, "lblInfoRequest", Lines(113, 2));
  lblInfoRequest->SetWordWrap(true);
  lblEMailMe = PutLink(this, "lblEMailMe", Lines(139, 1), kSupportMail);
  cmdOk = PutCaption<PushButton>(this, "cmdOk", Centred(160, 76, 23), "Close");
  cmdOk->SetDefault(true);
  cmdOk->setFocus();
}

void AboutWindow::Wire() {
  lblZarvoWeb->Click.Connect([this] { open_(kHomePage); });
  lblEMailMe->Click.Connect([this] { open_("mailto:" + std::string(kSupportMail)); });
  cmdOk->Click.Connect([this] { UnloadWindow(); });
  SetDefaultAction([this] { UnloadWindow(); });
  SetCancelAction([this] { UnloadWindow(); });
}

}  // namespace zarvo
