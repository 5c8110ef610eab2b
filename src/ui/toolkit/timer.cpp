#include "ui/toolkit/timer.h"

#include "ui/toolkit/input_gate.h"

namespace zarvo {

Timer::Timer() {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
    if (!ChildIsRunning()) Tick.Raise();
  });
}

void Timer::SetInterval(int milliseconds) {
  if (milliseconds > 0) {
    timer_.start(milliseconds);
  } else {
    timer_.stop();
  }
}

}  // namespace zarvo
