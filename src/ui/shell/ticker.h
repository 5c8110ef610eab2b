// The ticker of the main window: a line that runs through its strip where it doesn't fit.
#pragma once

#include <array>
#include <string>

#include "ui/toolkit/label.h"
#include "ui/toolkit/timer.h"

namespace zarvo {

// The lines of the ticker, in ring order.
std::array<std::string, 6> TickerLines();

class Ticker : public Label {
 public:
  explicit Ticker(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Step();

  Timer timer_;
  std::string shown_;  // the caption that runs
  int offset_ = 0;     // pixels that have gone out at the left
};

}  // namespace zarvo
