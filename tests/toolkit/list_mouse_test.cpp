// A list box under the mouse: presses, double clicks and the drag to a target.
#include <gmock/gmock.h>

#include <memory>

#include "fakes/stage.h"
#include "toolkit/list_box.h"
#include "toolkit/window.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListMouseTest : public testing::Test {
 protected:
  ListMouseTest() : list(std::make_unique<ListBox>(&stage)) {
    list->SetPlace({.left = 0, .top = 0, .width = 2250, .height = 1500});  // 150 x 100 pixels
    for (const char* name : {"Arkanoid", "Galaga", "Pong"}) list->AddItem(name);
    list->Click.Connect([this] { log.push_back("click " + list->Text()); });
    list->DblClick.Connect([this] { log.push_back("double " + list->Text()); });
    list->MouseDown.Connect([this](const MouseArgs& mouse) {
      log.push_back("down " + std::to_string(static_cast<int>(mouse.button)));
    });
    stage.Open();
  }

  static QPoint Row(int row) { return {20, row * 15 + 7}; }
  void PressRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    Press(list->viewport(), Row(row), button);
  }
  void ReleaseRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    Release(list->viewport(), Row(row), button);
  }

  Stage stage;
  std::unique_ptr<ListBox> list;
  std::vector<std::string> log;
};

TEST_F(ListMouseTest, APressSelectsClicksOnceAndThenTellsTheButton) {
  PressRow(1);
  EXPECT_THAT(log, ElementsAre("click Galaga", "down 1"));
  ReleaseRow(1);
  log.clear();
  PressRow(1);
  EXPECT_THAT(log, ElementsAre("click Galaga", "down 1")) << "also on the selected entry";
  ReleaseRow(1);
  log.clear();
  PressRow(2, Qt::MiddleButton);
  EXPECT_THAT(log, ElementsAre("click Pong", "down 4"));
}

TEST_F(ListMouseTest, TheRightButtonSelectsNothing) {
  ClickOn(list->viewport(), Row(1), Qt::RightButton);
  EXPECT_THAT(log, ElementsAre("down 2"));
  EXPECT_EQ(list->ListIndex(), -1);
}

// The second of two quick presses is the toolkit's double click, but to the player just a press.
TEST_F(ListMouseTest, TheRightButtonPressedTwiceQuicklyIsDownTwice) {
  const QPoint row = OnWindow(list->viewport(), Row(1));
  QTest::mouseDClick(stage.windowHandle(), Qt::RightButton, {}, row);
  EXPECT_THAT(log, ElementsAre("down 2", "down 2"));
}

TEST_F(ListMouseTest, APressBelowTheEntriesKeepsTheSelection) {
  list->SetListIndex(0);
  log.clear();
  PressRow(4);
  EXPECT_THAT(log, ElementsAre("down 1"));
  EXPECT_EQ(list->ListIndex(), 0);
}

TEST_F(ListMouseTest, ADisabledListIsDeaf) {
  list->SetEnabled(false);
  ClickOn(list->viewport(), Row(1));
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListMouseTest, ADoubleClickComesOnceAfterItsFirstClick) {
  DoubleClickOn(list->viewport(), Row(1));
  EXPECT_THAT(log, ElementsAre("click Galaga", "down 1", "double Galaga"));
}

// A list with a target beside it, wired as the two lists of a panel are.
class DragTest : public ListMouseTest {
 protected:
  DragTest() : begin(Picture::FromResource("drag_begin")), over(Picture::FromResource("drag_end")) {
    list->MouseDown.Connect([this](const MouseArgs& mouse) {
      if (mouse.button != MouseButton::kRight) list->BeginDrag(begin);
    });
    target.SetPlace({.left = 3000, .top = 0, .width = 2250, .height = 1500});
    AcceptDrops(&target, &drop);
    drop.DragOver.Connect([this](DragState state) {
      log.push_back("state " + std::to_string(static_cast<int>(state)));
      if (state != DragState::kOver) list->SetDragIcon(state == DragState::kEnter ? over : begin);
    });
    drop.DragDrop.Connect([this] { log.push_back("drop " + list->Text()); });
    target.show();
  }

  void StartOn(int row) {
    PressRow(row);
    log.clear();
  }
  static QImage IconOf(const Picture& picture) {
    return picture.ToPixmap(QSize(32, 32), qApp->devicePixelRatio()).toImage();
  }
  static QImage Shown() { return QApplication::overrideCursor()->pixmap().toImage(); }

  Picture begin;
  Picture over;
  DropTarget drop;
  ListBox target{&stage};
};

TEST_F(DragTest, TellsTheTargetAndChangesTheIcon) {
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  StartOn(1);
  ASSERT_NE(QApplication::overrideCursor(), nullptr) << "at once, without waiting for a move";
  EXPECT_EQ(Shown(), IconOf(begin));
  MoveTo(&target, {50, 50});
  EXPECT_EQ(Shown(), IconOf(over));
  MoveTo(&target, {51, 51});
  MoveTo(&stage, {175, 150});
  EXPECT_EQ(Shown(), IconOf(begin));
  MoveTo(&target, {50, 50});
  Release(&target, {50, 50});
  EXPECT_THAT(log,
              ElementsAre("state 0", "state 2", "state 1", "state 0", "state 2", "drop Galaga"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DragTest, ADropElsewhereIsNothing) {
  StartOn(1);
  MoveTo(&stage, {175, 150});
  Release(&stage, {175, 150});
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  MoveTo(&target, {50, 50});
  EXPECT_THAT(log, IsEmpty()) << "the drag is over";
}

TEST_F(DragTest, EscapeBreaksItOff) {
  StartOn(1);
  MoveTo(&target, {50, 50});
  QTest::keyClick(stage.windowHandle(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  Release(&target, {50, 50});
  EXPECT_THAT(log, ElementsAre("state 0", "state 1"));
}

TEST_F(DragTest, ASecondButtonBreaksItOff) {
  StartOn(1);
  MoveTo(&target, {50, 50});
  Press(&target, {50, 50}, Qt::RightButton);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  Release(&target, {50, 50}, Qt::RightButton);
  Release(&target, {50, 50});
  EXPECT_THAT(log, ElementsAre("state 0", "state 1"));
}

TEST_F(DragTest, TheRightButtonBeginsNone) {
  PressRow(1, Qt::RightButton);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DragTest, AListThatDiesTakesItsDragWithIt) {
  StartOn(1);
  MoveTo(&target, {50, 50});
  drop.DragOver = {};
  list.reset();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  Release(&target, {50, 50});
  EXPECT_THAT(log, ElementsAre("state 0"));
}

TEST_F(DragTest, ATargetThatDiesIsToldNothing) {
  auto other = std::make_unique<QWidget>(&stage);
  other->setGeometry(200, 120, 100, 100);
  other->show();
  AcceptDrops(other.get(), &drop);
  StartOn(1);
  MoveTo(other.get(), {50, 50});
  other.reset();
  Release(&stage, {250, 170});
  EXPECT_THAT(log, ElementsAre("state 0"));
}

TEST_F(DragTest, ADoubleClickLeavesNoDragBehind) {
  DoubleClickOn(list->viewport(), Row(1));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_THAT(log, ElementsAre("click Galaga", "down 1", "double Galaga"));
}

// A box that the click shows takes the release of the button, so no drag may begin after it.
TEST_F(DragTest, ABoxInTheClickHandlerLeavesNoDragBehind) {
  list->Click.Connect([] { CountModal(); });
  PressRow(1);
  EXPECT_THAT(log, ElementsAre("click Galaga"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace zarvo
