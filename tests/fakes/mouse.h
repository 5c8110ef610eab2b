// Mouse events sent to a widget itself, also where it stands on a page that is hidden.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace zarvo {

inline void SendMouse(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButton button,
                      Qt::MouseButtons held) {
  QMouseEvent event(type, at, widget->mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

inline void PressMouse(QWidget* widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
  SendMouse(widget, QEvent::MouseButtonPress, at, button, button);
}

inline void ReleaseMouse(QWidget* widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
  SendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

inline void MoveMouse(QWidget* widget, QPoint at = {3, 3}, Qt::MouseButtons held = Qt::NoButton) {
  SendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, held);
}

inline void ClickMouse(QWidget* widget, QPoint at = {3, 3}) {
  PressMouse(widget, at);
  ReleaseMouse(widget, at);
}

// The desktop sends the second press of a double click as an event of its own.
inline void DoubleClickMouse(QWidget* widget, QPoint at = {3, 3}) {
  ClickMouse(widget, at);
  SendMouse(widget, QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
  ReleaseMouse(widget, at);
}

}  // namespace zarvo
