// A list box under the mouse: presses, double clicks and the drag to a target.
#include "ui/toolkit/drag.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/list_fixture.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

class ListMouseTest : public ListTest {
 protected:
  ListMouseTest() {
    Fill({"Arkanoid", "Galaga", "Pong"});
    stage.Open();
  }

  static QPoint Row(int row) { return {20, row * 15 + 7}; }
  std::string ClickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    ClickOn(list.viewport(), Row(row), button);
    return log();
  }
  std::string DoubleClickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseDClick(stage.windowHandle(), button, {}, OnWindow(list.viewport(), Row(row)));
    return log();
  }
};

TEST_F(ListMouseTest, APressSelectsClicksOnceAndThenTellsTheButton) {
  EXPECT_EQ(ClickRow(1, Qt::RightButton), " down 2");
  EXPECT_EQ(list.ListIndex(), -1) << "the right button selects nothing";
  EXPECT_EQ(ClickRow(1), " click Galaga down 1");
  EXPECT_EQ(ClickRow(1), " click Galaga down 1") << "also on the selected entry";
  EXPECT_EQ(ClickRow(2, Qt::MiddleButton), " click Pong down 4");
  EXPECT_EQ(ClickRow(4), " down 1") << "below the entries";
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(DoubleClickRow(1), " click Galaga down 1 double Galaga");
  // The second of two quick presses is the toolkit's double click, but to the player just a press.
  EXPECT_EQ(DoubleClickRow(1, Qt::RightButton), " down 2 down 2");
  list.SetEnabled(false);
  EXPECT_EQ(ClickRow(1), "");
}

// A list with a target beside it, wired as the two lists of a panel are.
class DragTest : public ListMouseTest {
 protected:
  DragTest() {
    list.MouseDown.Connect([this](const MouseArgs& mouse) {
      if (mouse.button != MouseButton::kRight) list.BeginDrag(begin);
    });
    target->setGeometry(220, 0, 150, 100);
    AcceptDrops(target.get(), &drop);
    drop.DragOver.Connect([this](DragState state) {
      log.text += " state " + std::to_string(static_cast<int>(state));
      if (state != DragState::kOver) list.SetDragIcon(state == DragState::kEnter ? over : begin);
    });
    drop.DragDrop.Connect([this] { log.text += " drop " + list.Text(); });
    target->show();
  }

  void StartOn(int row) {
    Press(list.viewport(), Row(row));
    log();
  }
  // Also tells the icon of a drag that runs.
  std::string LogAndIcon() {
    if (QApplication::overrideCursor() == nullptr) return log() + " no drag";
    const QImage shown = QApplication::overrideCursor()->pixmap().toImage();
    const auto is = [&](const Picture& picture) {
      return shown == picture.ToPixmap(QSize(32, 32), qApp->devicePixelRatio()).toImage();
    };
    return log() + (is(begin) ? " begin" : is(over) ? " over" : " another icon");
  }

  const Picture begin = Picture::FromResource("drag_begin");
  const Picture over = Picture::FromResource("drag_end");
  DropTarget drop;
  std::unique_ptr<QWidget> target = std::make_unique<QWidget>(&stage);
};

TEST_F(DragTest, TellsTheTargetAndChangesTheIcon) {
  EXPECT_EQ(LogAndIcon(), " no drag");
  StartOn(1);
  EXPECT_EQ(LogAndIcon(), " begin") << "at once, without waiting for a move";
  MoveTo(target.get(), {50, 50});
  EXPECT_EQ(LogAndIcon(), " state 0 over");
  MoveTo(target.get(), {51, 51});
  MoveTo(&stage, {210, 150});
  EXPECT_EQ(LogAndIcon(), " state 2 state 1 begin");
  MoveTo(target.get(), {50, 50});
  Release(target.get(), {50, 50});
  EXPECT_EQ(LogAndIcon(), " state 0 state 2 drop Galaga no drag");
}

TEST_F(DragTest, ADropElsewhereIsNothing) {
  StartOn(1);
  MoveTo(&stage, {210, 150});
  Release(&stage, {210, 150});
  EXPECT_EQ(LogAndIcon(), " no drag");
  MoveTo(target.get(), {50, 50});
  EXPECT_EQ(log(), "") << "the drag is over";
}

TEST_F(DragTest, EscapeAndASecondButtonBreakItOff) {
  for (const bool by_key : {true, false}) {
    StartOn(1);
    MoveTo(target.get(), {50, 50});
    if (by_key) {
      QTest::keyClick(stage.windowHandle(), Qt::Key_Escape);
    } else {
      Press(target.get(), {50, 50}, Qt::RightButton);
    }
    EXPECT_EQ(LogAndIcon(), " state 0 state 1 no drag");
    if (!by_key) Release(target.get(), {50, 50}, Qt::RightButton);
    Release(target.get(), {50, 50});
    EXPECT_EQ(log(), "");
  }
}

TEST_F(DragTest, AListThatDiesTakesItsDragWithIt) {
  StartOn(1);
  MoveTo(target.get(), {50, 50});
  drop.DragOver = {};
  owned.reset();
  EXPECT_EQ(LogAndIcon(), " state 0 no drag");
  Release(target.get(), {50, 50});
  EXPECT_EQ(log(), "");
}

TEST_F(DragTest, ATargetThatDiesIsToldNothing) {
  StartOn(1);
  MoveTo(target.get(), {50, 50});
  target.reset();
  Release(&stage, {250, 50});
  EXPECT_EQ(LogAndIcon(), " state 0 no drag");
}

TEST_F(DragTest, RightButtonDoubleClickAndABoxLeaveNoDragBehind) {
  Press(list.viewport(), Row(1), Qt::RightButton);
  EXPECT_EQ(LogAndIcon(), " down 2 no drag");
  Release(list.viewport(), Row(1), Qt::RightButton);
  DoubleClickRow(1);
  EXPECT_EQ(LogAndIcon(), " no drag");
  // A box that the click shows takes the release of the button.
  list.Click.Connect([] { CountModal(); });
  Press(list.viewport(), Row(2));
  EXPECT_EQ(LogAndIcon(), " click Pong no drag");
}

}  // namespace
}  // namespace zarvo
