// A timer that raises a tick at an interval, and stands still while a child process runs.
#pragma once

#include <QTimer>

#include "ui/toolkit/event.h"

namespace zarvo {

class Timer {
 public:
  Timer();
  // Milliseconds; 0 stops it.
  void SetInterval(int milliseconds);
  [[nodiscard]] int Interval() const { return timer_.isActive() ? timer_.interval() : 0; }
  Event<> Tick;

 private:
  QTimer timer_;
};

}  // namespace zarvo
