#include "toolkit/label.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "toolkit/drawing.h"
#include "toolkit/window.h"

namespace zarvo {

Label::Label(QWidget* parent) : QWidget(parent), Control(this) {}

void Label::SetCaption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  update();
  if (!isVisible()) return;
  QAccessibleEvent renamed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

void Label::SetBackStyle(BackStyle style) {
  back_style_ = style;
  update();
}

void Label::SetBackColor(Colour colour) {
  if (colour == back_colour_) return;
  back_colour_ = colour;
  update();
}

void Label::SetForeColor(Colour colour) {
  if (colour == fore_colour_) return;
  fore_colour_ = colour;
  update();
}

void Label::SetAlign(TextAlign align) {
  align_ = align;
  update();
}

void Label::SetBold(bool bold) {
  QFont changed = font();
  changed.setBold(bold);
  setFont(changed);
}

void Label::SetUnderline(bool underline) {
  QFont changed = font();
  changed.setUnderline(underline);
  setFont(changed);
}

void Label::SetWordWrap(bool wrap) {
  word_wrap_ = wrap;
  update();
}

void Label::SetTextSize(int pixels) {
  QFont changed = font();
  changed.setPixelSize(pixels);
  setFont(changed);
}

void Label::SetPressable(bool pressable) {
  pressable_ = pressable;
  setFocusPolicy(pressable ? Qt::StrongFocus : Qt::NoFocus);
}

void Label::SetRaised(bool raised) {
  raised_ = raised;
  update();
}

void Label::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const bool opaque = back_style_ == BackStyle::kOpaque;
  if (opaque) {
    const QColor back = isEnabled() ? back_colour_.ToQt() : Faded(back_colour_.ToQt());
    if (raised_) {
      DrawKey(painter, rect(), back, pressed_);
    } else {
      painter.fillRect(rect(), back);
    }
  }
  const int margin = opaque && align_ != TextAlign::kCentre ? 2 : 0;
  painter.setPen(isEnabled() ? fore_colour_.ToQt() : Faded(fore_colour_.ToQt()));
  DrawCaption(painter, rect().adjusted(margin, 0, -margin, 0), ToQt(caption_), align_, word_wrap_);
  if (hasFocus()) DrawFocus(painter, rect());
}

void Label::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = true;
  modals_at_press_ = ModalCount();
  update();
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  // A press that a box or a move of the window has taken over isn't a click any more.
  const bool click =
      pressed_ && modals_at_press_ == ModalCount() && rect().contains(event->position().toPoint());
  pressed_ = false;
  update();
  if (click) Click.Raise();
}

void Label::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) DblClick.Raise();
}

void Label::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                       event->key() == Qt::Key_Enter;
  if (!pressable_ || !presses || event->isAutoRepeat()) {
    QWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  Press();
}

void Label::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) TabbedTo.Raise();
}

}  // namespace zarvo
