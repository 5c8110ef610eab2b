// A key pressed and released on a widget, as the desktop would send it.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace zarvo {

inline void PressKey(QWidget* widget, Qt::Key key, const QString& text = QString()) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &event);
  }
}

}  // namespace zarvo
