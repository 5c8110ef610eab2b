#include "ui/shell/ticker.h"

#include <QPainter>
#include <algorithm>

#include "core/platform/messages.h"

namespace zarvo {
namespace {

constexpr int kStepInterval = 40;  // milliseconds a pixel
constexpr int kStart = -40;        // stands still at first, so that its beginning can be read
constexpr int kGap = 40;           // pixels between the end of the line and its next beginning

}  // namespace

std::array<std::string, 6> TickerLines() {
  return {"---> The Definitive Multifrontend <---",
          "What do you want to emulate today?",
          "Official Home Page: " + std::string(kHomePage),
          "Thanks to all emu-developers!",
          "Thanks to all rom-dumpers!",
          "Please support < Zarvo Project > !!"};
}

Ticker::Ticker(QWidget* parent) : Label(parent) {
  timer_.Tick.Connect([this] { Step(); });
  timer_.SetInterval(kStepInterval);
}

void Ticker::Step() {
  const int length = fontMetrics().horizontalAdvance(ToQt(Caption()));
  if (shown_ != Caption()) {
    shown_ = Caption();
    offset_ = kStart;
  }
  if (length <= width()) return;
  offset_ = offset_ + 1 >= length + kGap ? 0 : offset_ + 1;
  if (offset_ >= 0) update();
}

void Ticker::paintEvent(QPaintEvent* event) {
  const int length = fontMetrics().horizontalAdvance(ToQt(Caption()));
  if (length <= width()) {
    Label::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setPen(ForeColor().ToQt());
  const int left = -std::max(offset_, 0);
  for (const int start : {left, left + length + kGap}) {
    painter.drawText(QRect(start, 0, length, height()), Qt::AlignVCenter | Qt::TextSingleLine,
                     ToQt(Caption()));
  }
}

}  // namespace zarvo
