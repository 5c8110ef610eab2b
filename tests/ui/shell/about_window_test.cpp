#include "ui/shell/about_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/key_press.h"

namespace zarvo {
namespace {

TEST(AboutWindow, TellsWhatTheProgramIsAndOpensItsLinks) {
  std::string opened;
  AboutWindow about([&](std::string_view address) { opened.append(address).append("|"); });
  about.ShowModeless();
  EXPECT_EQ(about.Caption(), "Zarvo - v0.1");
  EXPECT_EQ(about.lblVersion->Caption(), "v0.1");
  EXPECT_EQ(about.lblLatestFiles->Caption(),
            "You can download the latest releases, data-files, snapshots and more from Zarvo "
            "official home page.");
  EXPECT_EQ(about.lblInfoRequest->Caption(),
            "To receive infos, report comments, ask question and so on e-mail me clicking here.");
  about.lblZarvoWeb->Click.Raise();
  PressKey(about.lblEMailMe, Qt::Key_Space);
  EXPECT_EQ(opened, "http://zarvo.example/|mailto:support@zarvo.example|");
  EXPECT_FALSE(about.IsUnloaded());
  PressKey(about.lblZarvoWeb, Qt::Key_Escape);
  EXPECT_TRUE(about.IsUnloaded());
  AboutWindow again({});
  again.cmdOk->click();
  EXPECT_TRUE(again.IsUnloaded());
}

}  // namespace
}  // namespace zarvo
