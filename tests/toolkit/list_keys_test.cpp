// A list box under the keyboard.
#include <gmock/gmock.h>

#include "fakes/stage.h"
#include "toolkit/keys.h"
#include "toolkit/list_box.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class ListKeysTest : public testing::Test {
 protected:
  ListKeysTest() {
    list.SetPlace({.left = 150, .top = 150, .width = 3000, .height = 1500});  // six rows
    list.Click.Connect([this] { clicks.push_back(list.ListIndex()); });
  }

  void Open(int count) {
    for (int i = 0; i < count; ++i) list.AddItem("Game " + std::to_string(i));
    stage.Open();
    list.setFocus();
    rows = list.viewport()->height() / 15;
  }
  // Selects an entry, presses a key and tells where the selection is then.
  int From(int index, Qt::Key key) {
    list.SetListIndex(index);
    QTest::keyClick(&list, key);
    return list.ListIndex();
  }
  // A letter typed so many milliseconds after the first event.
  void Type(char letter, quint64 at) {
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QChar::fromLatin1(letter));
    event.setTimestamp(at);
    QApplication::sendEvent(&list, &event);
  }

  Stage stage;
  ListBox list{&stage};
  std::vector<int> clicks;
  int rows = 0;
};

TEST_F(ListKeysTest, OneColumn) {
  Open(20);
  EXPECT_EQ(From(-1, Qt::Key_Down), 0);
  EXPECT_EQ(From(3, Qt::Key_Down), 4);
  EXPECT_EQ(From(3, Qt::Key_Up), 2);
  EXPECT_EQ(From(0, Qt::Key_Up), 0);
  EXPECT_EQ(From(19, Qt::Key_Down), 19);
  EXPECT_EQ(From(3, Qt::Key_Right), 4);
  EXPECT_EQ(From(3, Qt::Key_Left), 2);
  EXPECT_EQ(From(3, Qt::Key_PageDown), 8) << "a page leaves one row in sight";
  EXPECT_EQ(From(17, Qt::Key_PageDown), 19);
  EXPECT_EQ(From(8, Qt::Key_PageUp), 3);
  EXPECT_EQ(From(2, Qt::Key_PageUp), 0);
  EXPECT_EQ(From(7, Qt::Key_End), 19);
  EXPECT_EQ(From(7, Qt::Key_Home), 0);
}

TEST_F(ListKeysTest, SeveralColumns) {
  list.SetColumns(2);
  Open(18);  // with the scroll bar four columns, the last one short
  ASSERT_EQ(rows, 5);
  EXPECT_EQ(From(2, Qt::Key_Down), 3);
  EXPECT_EQ(From(4, Qt::Key_Down), 5) << "on at the head of the next column";
  EXPECT_EQ(From(2, Qt::Key_Right), 7);
  EXPECT_EQ(From(7, Qt::Key_Left), 2);
  EXPECT_EQ(From(2, Qt::Key_Left), 2) << "no column to the left";
  EXPECT_EQ(From(14, Qt::Key_Right), 17) << "the last column is short";
  EXPECT_EQ(From(16, Qt::Key_Right), 16) << "no column to the right";
  EXPECT_EQ(From(1, Qt::Key_PageDown), 11);
  EXPECT_EQ(From(11, Qt::Key_PageUp), 1);
  EXPECT_EQ(From(2, Qt::Key_End), 17);
  EXPECT_EQ(From(17, Qt::Key_Home), 0);
}

TEST_F(ListKeysTest, AKeyThatMovesNothingIsNoClick) {
  Open(3);
  list.SetListIndex(2);
  clicks.clear();
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_TRUE(clicks.empty());
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_THAT(clicks, ElementsAre(1));
}

TEST_F(ListKeysTest, AnEmptyListTakesEveryKey) {
  Open(0);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageUp, Qt::Key_End, Qt::Key_A}) {
    EXPECT_EQ(From(-1, key), -1);
  }
  EXPECT_TRUE(clicks.empty());
}

TEST_F(ListKeysTest, APageOfAListWithOneRowStillMoves) {
  list.SetHeight(300);
  Open(5);
  EXPECT_EQ(From(2, Qt::Key_PageDown), 3);
  EXPECT_EQ(From(2, Qt::Key_PageUp), 1);
}

TEST_F(ListKeysTest, KeyDownComesFirstAndCanSwallowTheKey) {
  Open(5);
  list.SetListIndex(0);
  clicks.clear();
  std::vector<int> codes;
  list.KeyDown.Connect([&](const KeyArgs& args) {
    codes.push_back(args.code);
    EXPECT_EQ(list.ListIndex(), 0) << "the handler runs before the list moves";
    if (args.code == key::kEnd) list.SwallowKey();
  });
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_TRUE(clicks.empty());
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_THAT(clicks, ElementsAre(1)) << "only the one key was swallowed";
  EXPECT_THAT(codes, ElementsAre(key::kEnd, key::kDown));
}

class ListTypingTest : public ListKeysTest {
 protected:
  ListTypingTest() {
    for (const char* name : {"Arkanoid", "pac-man", "Paperboy", "Pong", "Xevious"}) {
      list.AddItem(name);
    }
  }
  std::string After(std::string_view word, quint64 start, quint64 pause = 50) {
    for (const char letter : word) Type(letter, start += pause);
    return list.Text();
  }
};

TEST_F(ListTypingTest, FindsTheEntryThatBeginsSo) {
  EXPECT_EQ(After("pap", 10'000), "Paperboy");
  EXPECT_EQ(After("PAC", 20'000), "pac-man") << "case doesn't matter, and the search wraps";
  EXPECT_EQ(After("q", 30'000), "pac-man") << "nothing begins so";
}

TEST_F(ListTypingTest, TheSameLetterStepsOn) {
  EXPECT_EQ(After("p", 10'000), "pac-man");
  EXPECT_EQ(After("p", 10'200), "Paperboy");
  EXPECT_EQ(After("P", 10'400), "Pong");
  EXPECT_EQ(After("p", 10'600), "pac-man") << "round again";
}

TEST_F(ListTypingTest, APauseStartsANewWord) {
  EXPECT_EQ(After("p", 10'000), "pac-man");
  EXPECT_EQ(After("o", 10'900), "Pong") << "still the same word";
  EXPECT_EQ(After("x", 12'500), "Xevious");
}

TEST_F(ListTypingTest, AnEntryThatStillFitsKeepsTheSelection) {
  EXPECT_EQ(After("p", 10'000), "pac-man");
  clicks.clear();
  EXPECT_EQ(After("a", 10'100), "pac-man");
  EXPECT_TRUE(clicks.empty());
}

TEST_F(ListTypingTest, AKeyWithCtrlOrAltIsNoTyping) {
  stage.Open();
  QTest::keyClick(&list, Qt::Key_X, Qt::AltModifier);
  QTest::keyClick(&list, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(list.ListIndex(), -1);
  QTest::keyClick(&list, Qt::Key_X, Qt::ShiftModifier);
  EXPECT_EQ(list.Text(), "Xevious");
}

TEST_F(ListTypingTest, IndentedEntriesAreFoundByTheirName) {
  list.AddItem("    Zarvo");
  EXPECT_EQ(After("za", 10'000), "    Zarvo");
}

TEST_F(ListKeysTest, TheMenuKeysAskForTheMenuAtTheSelectedEntry) {
  Open(5);
  list.SetListIndex(2);
  std::vector<QPoint> places;
  list.MenuKey.Connect([&](QPoint place) { places.push_back(place); });
  QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
  QApplication::sendEvent(&list, &menu);
  const QPoint place = list.viewport()->mapToGlobal(QPoint(0, 44));  // the last line of row 2
  EXPECT_THAT(places, ElementsAre(place, place));
}

}  // namespace
}  // namespace zarvo
