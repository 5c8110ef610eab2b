#include "ui/toolkit/label.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QPainter>

#include "ui/toolkit/drawing.h"

namespace zarvo {

Label::Label(QWidget* parent) : Pressable(parent) {}

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

void Label::SetBold(bool bold) { setFont(InBold(font(), bold)); }

void Label::SetUnderline(bool underline) { setFont(Underlined(font(), underline)); }

void Label::SetWordWrap(bool wrap) {
  word_wrap_ = wrap;
  update();
}

void Label::SetTextSize(int pixels) { setFont(InSize(font(), pixels)); }

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
      DrawKey(painter, rect(), back, IsDown());
    } else {
      painter.fillRect(rect(), back);
    }
  }
  painter.setPen(isEnabled() ? fore_colour_.ToQt() : Faded(fore_colour_.ToQt()));
  DrawCaption(painter, TextRect(), ToQt(caption_), align_, word_wrap_);
  if (hasFocus()) DrawFocus(painter, rect());
}

QRect Label::TextRect() const {
  const bool opaque = back_style_ == BackStyle::kOpaque;
  const int margin = opaque && align_ != TextAlign::kCentre ? 2 : 0;
  return rect().adjusted(margin, 0, -margin, 0);
}

QString Label::ElidedText() const {
  return IfElided(fontMetrics(), TextRect().size(), ToQt(caption_), word_wrap_);
}

void Label::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) TabbedTo.Raise();
}

}  // namespace zarvo
