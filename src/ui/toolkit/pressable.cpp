#include "ui/toolkit/pressable.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>

#include "ui/toolkit/input_gate.h"

namespace zarvo {

Pressable::Pressable(QWidget* parent) : QWidget(parent), Control(this) {}

void Pressable::SetPressable(bool pressable) {
  pressable_ = pressable;
  setFocusPolicy(pressable ? Qt::StrongFocus : Qt::NoFocus);
}

void Pressable::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  down_ = true;
  modals_at_press_ = ModalCount();
  update();
}

void Pressable::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  // A press that a box or a move of the window has taken over isn't a click any more.
  const bool click =
      down_ && modals_at_press_ == ModalCount() && rect().contains(event->position().toPoint());
  down_ = false;
  update();
  if (click) Click.Raise();
}

void Pressable::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) DblClick.Raise();
}

void Pressable::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                       event->key() == Qt::Key_Enter;
  const bool alt = event->modifiers().testFlag(Qt::AltModifier);  // the window's own menu
  if (!pressable_ || !presses || alt || event->isAutoRepeat()) {
    QWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  Press();
}

void Pressable::SetChecked(bool checked) {
  if (checked_ == checked) return;
  const bool was_told = checked_.has_value();
  checked_ = checked;
  if (!was_told) return;
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(static_cast<QWidget*>(this), changed);
  QAccessible::updateAccessibility(&event);
}

}  // namespace zarvo
