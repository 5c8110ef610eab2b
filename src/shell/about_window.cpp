#include "shell/about_window.h"

#include <QDesktopServices>
#include <QUrl>
#include <utility>

#include "shell/dialog_parts.h"

namespace zarvo {
namespace {

constexpr int kWidth = 4005;
constexpr int kHeight = 2850;
constexpr int kMargin = ToTwips(10);
constexpr int kTextWidth = kWidth - 2 * kMargin;
constexpr int kLine = ToTwips(14);

constexpr TwipRect Paragraph(int top_pixels, int lines) {
  return {kMargin, ToTwips(top_pixels), kTextWidth, lines * kLine};
}

Label* PutLink(QWidget* parent, std::string_view name, const TwipRect& place,
               std::string_view caption) {
  auto* link = PutCaption<Label>(parent, name, place, caption);
  link->SetForeColor(kPeriwinkle);
  link->SetUnderline(true);
  link->SetPressable(true);
  return link;
}

}  // namespace

AddressOpener DesktopOpener() {
  return [](std::string_view address) { QDesktopServices::openUrl(QUrl(ToQt(address))); };
}

AboutWindow::AboutWindow(const AppState& app, AddressOpener open)
    : Window(WindowFrame::kDesktop, "frmAbout"), open_(std::move(open)) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  Build();
  Wire();
  lblLatestFiles->SetCaption(app.messages.MsgDownloadInfo);
  lblInfoRequest->SetCaption(app.messages.MsgMailInfo);
  SetCaption("Zarvo - " + app.ProgramVersion);
  lblVersion->SetCaption(app.ProgramVersion);
}

void AboutWindow::Build() {
  const int heading_left = kMargin + ToTwips(52);
  imgZarvo = Put<ImageBox>(this, "imgZarvo", {kMargin, ToTwips(8), ToTwips(42), ToTwips(42)});
  imgZarvo->SetPicture(Picture::FromResource("logo"));
  Label1 = PutCaption<Label>(this, "Label1", {heading_left, ToTwips(12), ToTwips(44), kLine + 30},
                             "Zarvo -");
  Label1->SetBold(true);
  lblVersion = Put<Label>(this, "lblVersion",
                          {heading_left + ToTwips(44), ToTwips(12), ToTwips(60), kLine + 30});
  lblVersion->SetBold(true);
  Label2 = PutCaption<Label>(this, "Label2",
                             {heading_left, ToTwips(30), kWidth - kMargin - heading_left, kLine},
                             "The Definitive MultiFrontend for Emulators");
  lblLatestFiles = Put<Label>(this, "lblLatestFiles", Paragraph(58, 2));
  lblLatestFiles->SetWordWrap(true);
  lblZarvoWeb = PutLink(this, "lblZarvoWeb", Paragraph(87, 1), kHomePage);
  lblInfoRequest = Put<Label>(this, "lblInfoRequest", Paragraph(108, 2));
  lblInfoRequest->SetWordWrap(true);
  lblEMailMe = PutLink(this, "lblEMailMe", Paragraph(137, 1), kSupportMail);
  cmdOk = PutCaption<PushButton>(
      this, "cmdOk", {kWidth - kMargin - ToTwips(70), ToTwips(158), ToTwips(70), ToTwips(24)},
      "Close");
  cmdOk->SetDefault(true);
}

void AboutWindow::Wire() {
  lblZarvoWeb->Click.Connect([this] { open_(kHomePage); });
  lblEMailMe->Click.Connect([this] { open_("mailto:" + std::string(kSupportMail)); });
  cmdOk->Click.Connect([this] { UnloadWindow(); });
  SetDefaultAction([this] { UnloadWindow(); });
  SetCancelAction([this] { UnloadWindow(); });
}

}  // namespace zarvo
