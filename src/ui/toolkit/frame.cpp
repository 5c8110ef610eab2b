#include "ui/toolkit/frame.h"

#include <QPainter>

#include "ui/toolkit/drawing.h"

namespace zarvo {
namespace {

constexpr int kCaptionLeft = 8;  // pixels

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent), Control(this) {}

void PictureBox::SetBackColor(Colour colour) {
  back_colour_ = colour;
  update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), back_colour_.ToQt());
  DrawSunkenEdge(painter, rect());
}

Frame::Frame(QWidget* parent) : QWidget(parent), Control(this) {}

void Frame::SetCaption(std::string_view caption) {
  caption_ = caption;
  setAccessibleName(ToQt(caption).trimmed());
  update();
}

void Frame::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QFont bold = InBold(font(), true);
  painter.setFont(bold);
  const QFontMetrics metrics(bold);
  const QString text = ToQt(caption_).trimmed();
  const int line = metrics.height() / 2;
  const int start = kCaptionLeft;
  const int end = start + metrics.horizontalAdvance(text) + 4;
  painter.setPen(kSlate.ToQt());
  painter.drawLine(0, line, start - 3, line);
  painter.drawLine(end, line, width() - 1, line);
  painter.drawLine(0, line, 0, height() - 1);
  painter.drawLine(width() - 1, line, width() - 1, height() - 1);
  painter.drawLine(0, height() - 1, width() - 1, height() - 1);
  painter.setPen(ground_is_dark_ ? kMoon.ToQt() : kInk.ToQt());
  DrawCaption(painter, QRect(start, 0, width() - start, metrics.height()), text, TextAlign::kLeft,
              false);
}

QString Frame::ElidedText() const {
  const QFontMetrics metrics(InBold(font(), true));
  return IfElided(metrics, {width() - kCaptionLeft, metrics.height()}, ToQt(caption_).trimmed());
}

}  // namespace zarvo
