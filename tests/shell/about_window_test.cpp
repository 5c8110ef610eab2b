#include "shell/about_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/key_press.h"

namespace zarvo {
namespace {

class AboutWindowTest : public testing::Test {
 protected:
  AboutWindowTest()
      : about_(app_, [this](std::string_view address) { opened_.emplace_back(address); }) {
    about_.ShowModeless();
  }

  AppState app_;
  std::vector<std::string> opened_;
  AboutWindow about_;
};

TEST_F(AboutWindowTest, TellsWhatTheProgramIs) {
  EXPECT_EQ(about_.Caption(), "Zarvo - v0.1");
  EXPECT_EQ(about_.lblVersion->Caption(), "v0.1");
  EXPECT_EQ(about_.lblLatestFiles->Caption(),
            "You can download the latest releases, data-files, snapshots and more from Zarvo "
            "official home page.");
  EXPECT_EQ(about_.lblInfoRequest->Caption(),
            "To receive infos, report comments, ask question and so on e-mail me clicking here.");
}

TEST_F(AboutWindowTest, TheLinksOpenByMouseAndByKey) {
  about_.lblZarvoWeb->Click.Raise();
  PressKey(about_.lblEMailMe, Qt::Key_Space);
  EXPECT_THAT(opened_,
              testing::ElementsAre("http://zarvo.example/", "mailto:support@zarvo.example"));
  EXPECT_FALSE(about_.IsUnloaded());
  PressKey(about_.lblZarvoWeb, Qt::Key_Escape);
  EXPECT_TRUE(about_.IsUnloaded());
}

TEST_F(AboutWindowTest, CloseUnloads) {
  about_.cmdOk->click();
  EXPECT_TRUE(about_.IsUnloaded());
}

}  // namespace
}  // namespace zarvo
