// Texts that don't fit: what of them is shown, and the tip that tells the rest.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>
#include <cstring>
#include <set>
#include <string>
#include <tuple>

#include "fakes/stage.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/drawing.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {
namespace {

TEST(FittingTest, ATextLosesItsMiddleNotItsBrackets) {
  const QFontMetrics metrics{QFont()};
  struct Case {
    const char* text;
    const char* room;  // as wide as this text
    const char* begin;
    const char* end;
  };
  for (const Case& each : {
           Case{"Puck Man (JP)", "Puck Man (JP)", "Puck Man (JP)", "Puck Man (JP)"},
           {"1000 Miglia: Great Rally (94/05/26)", "1000 Miglia: Great R", "1000", "(94/05/26)"},
           {"Super Tetris (World, 4 Players, set 1)", "Super Tetris (World, 4 Players", "S",
            "\u2026(World, 4 Players, set 1)"},
           {"Tetris (World, 4 Players, set 1)", "Tetris (World", "T", "1)"},
           {R"(C:\Emu\Arcade\Mame\roms)", R"(C:\Emu\Arcade\Ma)", R"(C:\E)", R"(\roms)"},
       }) {
    const int room = metrics.horizontalAdvance(QString::fromUtf8(each.room));
    const QString shown = Fitted(metrics, {room, 0}, QString::fromUtf8(each.text), false);
    EXPECT_TRUE(shown.startsWith(QString::fromUtf8(each.begin)) &&
                shown.endsWith(QString::fromUtf8(each.end)))
        << shown.toStdString();
    EXPECT_LE(metrics.horizontalAdvance(shown), room) << shown.toStdString();
  }
}

TEST(FittingTest, VariantsAreToldApart) {
  const QFontMetrics metrics{QFont()};
  for (const auto& [room, text, letters] : {
           std::tuple{130, "Arkanoid Returns (Ver 2.02%1 1997/02/10)", "JAO"},
           {130, "Street Fighter: The Movie (v1.%1, bootleg set)", "123"},
           {197, "Adventure Quiz Capcom World 2 (Japan 920611, B-Board 89629B-3, set %1)", "12"},
       }) {
    std::set<std::string> shown;
    for (const QChar letter : QString::fromLatin1(letters)) {
      const QString fitted =
          Fitted(metrics, {room, 0}, QString::fromLatin1(text).arg(letter), false);
      EXPECT_LE(metrics.horizontalAdvance(fitted), room) << fitted.toStdString();
      shown.insert(fitted.toStdString());
    }
    EXPECT_EQ(shown.size(), strlen(letters)) << *shown.begin();
  }
}

TEST(FittingTest, LinesThatDontFitLoseTheirMiddle) {
  const QFontMetrics metrics{QFont()};
  const QSize two_lines(metrics.horizontalAdvance(QStringLiteral("Texas Instruments M")), 26);
  const auto shown = [&](const char* text) {
    return Fitted(metrics, two_lines, QString::fromLatin1(text), true).toStdString();
  };
  EXPECT_EQ(shown("Texas Instruments TMS34010"), "Texas Instruments TMS34010");
  const std::string cut = shown("Texas Instruments TMS34010 Graphics System Processor");
  EXPECT_TRUE(cut.starts_with("Texas ") && cut.ends_with("Processor")) << cut;
  EXPECT_LT(cut.size(), 45U);
}

class TipTest : public testing::Test {
 protected:
  static constexpr TwipRect kPlace{.left = 150, .top = 150, .width = 1200, .height = 300};

  // What the mouse is told over a widget; empty without a tip.
  static std::string Tip(QWidget* widget) {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    const QPoint point(5, 5);
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QApplication::sendEvent(widget, &help);
    static const QRegularExpression kParagraph(QStringLiteral("<p[^>]*>|</p>"));
    return QToolTip::isVisible() ? QToolTip::text().remove(kParagraph).toStdString() : "";
  }
};

TEST_F(TipTest, WhatIsElidedIsToldWhole) {
  Stage stage;
  Label label(&stage);
  CheckBox check(&stage);
  OptionButton option(&stage);
  PushButton button(&stage);
  Frame frame(&stage);
  TextBox text(&stage);
  ComboBox combo(&stage);
  ListBox list(&stage);
  const auto say = [&](const char* words) {
    label.SetCaption(words);
    check.SetCaption(words);
    option.SetCaption(words);
    button.SetCaption(words);
    frame.SetCaption(words);
    text.SetText(words);
    combo.Clear();
    combo.AddItem(words);
    combo.SetListIndex(0);
    list.Clear();
    list.AddItem(words);
  };
  const std::pair<Control*, QWidget*> controls[] = {
      {&label, &label}, {&check, &check}, {&option, &option}, {&button, &button},
      {&frame, &frame}, {&text, &text},   {&combo, &combo},   {&list, list.viewport()}};
  for (const auto& [control, widget] : controls) control->SetPlace(kPlace);
  stage.Open();
  const std::string whole = "What is too long for & the room";
  const std::string told = "What is too long for &amp; the room";
  for (const auto& [control, widget] : controls) {
    const char* const kind = control->Widget()->metaObject()->className();
    control->SetToolTipText("");
    say("short");
    EXPECT_EQ(Tip(widget), "") << kind;
    say(whole.c_str());
    EXPECT_EQ(Tip(widget), told) << kind;
    control->SetToolTipText(" What it does ");
    EXPECT_TRUE(Tip(widget).starts_with("What it does")) << kind;
  }
  EXPECT_EQ(Tip(&combo), "What it does <br>" + told) << "the tip that it was given stays first";
}

// Six rows of 15 pixels in a list of 100; there are entries for more.
TEST_F(TipTest, AListShowsWholeRows) {
  Stage stage;
  ListBox list(&stage);
  list.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 1500});
  for (int i = 0; i < 20; ++i) list.AddItem("MMMMMMMM");
  stage.Open();
  const QImage shown = list.viewport()->grab(QRect(3, 90, 100, 9)).toImage();
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) EXPECT_EQ(shown.pixel(x, y), shown.pixel(0, 0));
  }
}

}  // namespace
}  // namespace zarvo
