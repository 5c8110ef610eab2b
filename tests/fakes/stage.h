// A window on which a test puts single controls, and the player's hand on them. The hand works on
// the window, so that the toolkit finds the widget, holds the mouse and tells double clicks itself.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <QWindow>
#include <string>
#include <utility>

#include "ui/toolkit/event.h"

namespace zarvo {

class Stage : public QWidget {
 public:
  Stage() { resize(400, 300); }
  // A button that a test left down would be down for the next test too.
  ~Stage() override {
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
      const bool down = QGuiApplication::mouseButtons().testFlag(button);
      if (down) QTest::mouseRelease(windowHandle(), button, {}, QPoint(399, 299));
    }
  }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  // Call it when the controls are there.
  void Open() {
    move(100, 100);
    show();
    activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(this));
  }
};

// What has happened, in words.
struct EventLog {
  template <typename... Args>
  void Note(Event<Args...>& event, const std::string& word) {
    event.Connect([this, word](Args...) { text += word; });
  }
  // What has happened since the last call.
  std::string operator()() { return std::exchange(text, ""); }

  std::string text;
};

// Presses, releases and moves at a point of a widget; the default is its middle.
inline QPoint OnWindow(const QWidget* widget, QPoint point) {
  return widget->mapTo(widget->window(), point.isNull() ? widget->rect().center() : point);
}

inline void Press(QWidget* widget, QPoint point = {}, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mousePress(widget->window()->windowHandle(), button, {}, OnWindow(widget, point));
}

inline void Release(QWidget* widget, QPoint point = {}, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseRelease(widget->window()->windowHandle(), button, {}, OnWindow(widget, point));
}

inline void MoveTo(QWidget* widget, QPoint point = {}) {
  QTest::mouseMove(widget->window()->windowHandle(), OnWindow(widget, point));
}

inline void ClickOn(QWidget* widget, QPoint point = {}, Qt::MouseButton button = Qt::LeftButton) {
  Press(widget, point, button);
  Release(widget, point, button);
}

inline void DoubleClickOn(QWidget* widget, QPoint point = {}) {
  QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, {}, OnWindow(widget, point));
}

}  // namespace zarvo
