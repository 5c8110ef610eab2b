// A list box under the keyboard.
#include <gmock/gmock.h>

#include "ui/toolkit/keys.h"
#include "ui/toolkit/list_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class ListKeysTest : public ListTest {
 protected:
  // Where a key leads to from each of some selections.
  std::vector<int> From(const std::vector<int>& indices, Qt::Key key) {
    std::vector<int> reached;
    for (const int index : indices) {
      list.SetListIndex(index);
      QTest::keyClick(&list, key);
      reached.push_back(list.ListIndex());
    }
    return reached;
  }
};

TEST_F(ListKeysTest, OneColumn) {
  OpenWith(20);
  EXPECT_THAT(From({-1, 3, 19}, Qt::Key_Down), ElementsAre(0, 4, 19));
  EXPECT_THAT(From({3, 0}, Qt::Key_Up), ElementsAre(2, 0));
  EXPECT_THAT(From({3}, Qt::Key_Right), ElementsAre(4));
  EXPECT_THAT(From({3}, Qt::Key_Left), ElementsAre(2));
  EXPECT_THAT(From({3, 17}, Qt::Key_PageDown), ElementsAre(8, 19)) << "leaves one row in sight";
  EXPECT_THAT(From({8, 2}, Qt::Key_PageUp), ElementsAre(3, 0));
  EXPECT_THAT(From({7}, Qt::Key_End), ElementsAre(19));
  EXPECT_THAT(From({7}, Qt::Key_Home), ElementsAre(0));
  list.SetHeight(300);
  EXPECT_THAT(From({2}, Qt::Key_PageDown), ElementsAre(3)) << "a page of one row";
  EXPECT_THAT(From({2}, Qt::Key_PageUp), ElementsAre(1));
}

TEST_F(ListKeysTest, SeveralColumns) {
  list.SetColumns(2);
  OpenWith(18);  // with the scroll bar four columns of five rows, the last one short
  EXPECT_THAT(From({2, 4}, Qt::Key_Down), ElementsAre(3, 5)) << "on at the head of the next column";
  EXPECT_THAT(From({2, 14, 16}, Qt::Key_Right), ElementsAre(7, 17, 16)) << "the last one is short";
  EXPECT_THAT(From({7, 2}, Qt::Key_Left), ElementsAre(2, 2));
  EXPECT_THAT(From({1}, Qt::Key_PageDown), ElementsAre(11));
  EXPECT_THAT(From({11}, Qt::Key_PageUp), ElementsAre(1));
  EXPECT_THAT(From({2}, Qt::Key_End), ElementsAre(17));
  EXPECT_THAT(From({17}, Qt::Key_Home), ElementsAre(0));
}

TEST_F(ListKeysTest, AKeyThatMovesNothingIsNoClick) {
  OpenWith(0);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageUp, Qt::Key_End, Qt::Key_A}) {
    EXPECT_THAT(From({-1}, key), ElementsAre(-1)) << "empty";
  }
  OpenWith(3);
  list.SetListIndex(2);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Up}) QTest::keyClick(&list, key);
  EXPECT_EQ(log(), " click 2 click 1");
}

TEST_F(ListKeysTest, KeyDownComesFirstAndCanSwallowTheKey) {
  OpenWith(5);
  list.SetListIndex(0);
  list.KeyDown.Connect([&](const KeyArgs& args) {
    log.text += " key " + std::to_string(args.code);
    if (args.code != key::kDown) list.SwallowKey();
  });
  for (const auto key : {Qt::Key_End, Qt::Key_Return}) QTest::keyClick(&list, key);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
  QApplication::sendEvent(&list, &held);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(log(), " click 0 key 35 key 13 key 40 click 1") << "Enter held starts once";
}

TEST_F(ListKeysTest, TypingFindsTheEntryThatBeginsSo) {
  Fill({"Arkanoid", "pac-man", "Paperboy", "Pong", "Xevious", "    Zarvo"});
  // Types letters so many milliseconds after the first event and tells what is selected then.
  const auto typed = [&](std::string_view letters, quint64 at) {
    for (const char letter : letters) {
      QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QChar::fromLatin1(letter));
      event.setTimestamp(at += 50);
      QApplication::sendEvent(&list, &event);
    }
    return list.Text();
  };
  EXPECT_EQ(typed("pap", 10'000), "Paperboy");
  EXPECT_EQ(typed("PAC", 20'000), "pac-man") << "case doesn't matter, and the search wraps";
  EXPECT_EQ(typed("q", 30'000), "pac-man") << "nothing begins so";
  EXPECT_EQ(typed("za", 40'000), "    Zarvo") << "an indented entry";
  EXPECT_EQ(typed("p", 50'000), "pac-man");
  EXPECT_EQ(typed("p", 50'200), "Paperboy") << "the same letter steps on";
  EXPECT_EQ(typed("P", 50'400), "Pong");
  EXPECT_EQ(typed("p", 50'600), "pac-man") << "round again";
  log();
  EXPECT_EQ(typed("a", 50'800), "pac-man");
  EXPECT_EQ(log(), "") << "it still fits";
  EXPECT_EQ(typed("p", 51'700), "Paperboy") << "still the same word";
  EXPECT_EQ(typed("x", 53'300), "Xevious") << "a pause starts a new word";
}

TEST_F(ListKeysTest, AKeyWithCtrlOrAltIsNoTyping) {
  OpenWith(1);
  QTest::keyClick(&list, Qt::Key_0, Qt::AltModifier);
  QTest::keyClick(&list, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(list.ListIndex(), -1);
  QTest::keyClick(&list, Qt::Key_0, Qt::ShiftModifier);
  EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ListKeysTest, TheMenuKeysAskForTheMenuAtTheSelectedEntry) {
  OpenWith(5);
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
