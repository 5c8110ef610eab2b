#include "toolkit/image_box.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "toolkit/drawing.h"
#include "toolkit/window.h"

namespace zarvo {

ImageBox::ImageBox(QWidget* parent) : QWidget(parent), Control(this) {}

void ImageBox::SetPicture(Picture picture) {
  picture_ = std::move(picture);
  update();
}

void ImageBox::SetPressable(bool pressable) {
  pressable_ = pressable;
  setFocusPolicy(pressable ? Qt::StrongFocus : Qt::NoFocus);
}

void ImageBox::Press() {
  MouseDown.Raise({.button = MouseButton::kLeft});
  (press_is_double_ ? DblClick : Click).Raise();
  MouseUp.Raise({.button = MouseButton::kLeft});
}

void ImageBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  picture_.Draw(painter, QRectF(rect()));
  if (hasFocus()) DrawFocus(painter, rect());
}

void ImageBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = true;
  modals_at_press_ = ModalCount();
}

void ImageBox::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  // A press that a box or a move of the window has taken over isn't a click any more.
  const bool click =
      pressed_ && modals_at_press_ == ModalCount() && rect().contains(event->position().toPoint());
  pressed_ = false;
  if (click) Click.Raise();
}

void ImageBox::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) DblClick.Raise();
}

void ImageBox::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                       event->key() == Qt::Key_Enter;
  if (!pressable_ || !presses || event->isAutoRepeat()) {
    QWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  Press();
}

}  // namespace zarvo
