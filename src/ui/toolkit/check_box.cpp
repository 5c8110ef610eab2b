#include "ui/toolkit/check_box.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/toolkit/drawing.h"

namespace zarvo {
namespace {

constexpr int kIndicator = 12;  // pixels
constexpr int kGap = 3;

QRectF IndicatorRect(const QWidget& box) {
  const int top = (box.height() - kIndicator) / 2;  // whole pixels, for sharp edges
  return {0.5, top + 0.5, kIndicator - 1.0, kIndicator - 1.0};
}

QRect CaptionRect(const QWidget& box) { return box.rect().adjusted(kIndicator + kGap, 0, 0, 0); }

// The caption beside the indicator, and the ring if the box has the focus.
void PaintCaption(QPainter& painter, const QAbstractButton& box, const std::string& caption,
                  const QColor& ink) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(box.isEnabled() ? ink : Faded(ink));
  DrawCaption(painter, CaptionRect(box), ToQt(caption), TextAlign::kLeft, false);
  if (box.hasFocus()) DrawFocus(painter, box.rect());
}

void PrepareIndicator(QPainter& painter, const QAbstractButton& box) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kSlate.ToQt(), 1));
  painter.setBrush(box.isEnabled() ? QColor(Qt::white) : Faded(Qt::white));
}

}  // namespace

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent), Control(this) {
  QObject::connect(this, &QCheckBox::toggled, this, [this] { Click.Raise(); });
}

void CheckBox::SetValue(int value) { setChecked(value != 0); }

void CheckBox::SetCaption(std::string_view caption) {
  caption_ = caption;
  setText(ToQtCaption(caption));
}

void CheckBox::SetForeColor(Colour colour) {
  fore_colour_ = colour;
  update();
}

void CheckBox::SetBold(bool bold) { setFont(InBold(font(), bold)); }

bool CheckBox::hitButton(const QPoint& point) const { return rect().contains(point); }

void CheckBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PrepareIndicator(painter, *this);
  const QRectF box = IndicatorRect(*this);
  painter.drawRect(box);
  if (isChecked()) {
    QPainterPath tick;
    tick.moveTo(box.topLeft() + QPointF(2.5, 5.5));
    tick.lineTo(box.topLeft() + QPointF(4.7, 8.2));
    tick.lineTo(box.topLeft() + QPointF(8.8, 2.8));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kInk.ToQt(), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
  }
  PaintCaption(painter, *this, caption_, fore_colour_.ToQt());
}

QString CheckBox::ElidedText() const {
  return IfElided(fontMetrics(), CaptionRect(*this).size(), ToQt(caption_));
}

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent), Control(this) {
  QObject::connect(this, &QRadioButton::toggled, this, [this](bool on) {
    if (on) Click.Raise();
  });
}

void OptionButton::SetValue(bool value) {
  // A button that excludes the others can't be switched off otherwise.
  setAutoExclusive(value);
  setChecked(value);
  setAutoExclusive(true);
}

void OptionButton::SetCaption(std::string_view caption) {
  caption_ = caption;
  setText(ToQtCaption(caption));
}

bool OptionButton::hitButton(const QPoint& point) const { return rect().contains(point); }

void OptionButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  PrepareIndicator(painter, *this);
  const QRectF box = IndicatorRect(*this);
  painter.drawEllipse(box);
  if (isChecked()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(kInk.ToQt());
    painter.drawEllipse(box.adjusted(3, 3, -3, -3));
  }
  PaintCaption(painter, *this, caption_, kInk.ToQt());
}

QString OptionButton::ElidedText() const {
  return IfElided(fontMetrics(), CaptionRect(*this).size(), ToQt(caption_));
}

}  // namespace zarvo
