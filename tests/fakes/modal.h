// Playing a modal window from a test: the code under test waits inside ShowModal meanwhile.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <functional>
#include <memory>

#include "ui/toolkit/window.h"

namespace zarvo {

// The visible window of a kind, or nullptr.
template <typename WindowType>
WindowType* VisibleWindow() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* window = dynamic_cast<WindowType*>(widget);
    if (window != nullptr && window->isVisible()) return window;
  }
  return nullptr;
}

// Runs `play` on the next modal window of this kind, once its event loop runs. A window that the
// play leaves open fails the test and is unloaded, so that nothing hangs.
template <typename WindowType>
class ModalPlay {
 public:
  explicit ModalPlay(std::function<void(WindowType&)> play) : play_(std::move(play)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(0);
  }
  ~ModalPlay() { EXPECT_TRUE(played_) << "the window never opened"; }
  ModalPlay(const ModalPlay&) = delete;
  ModalPlay& operator=(const ModalPlay&) = delete;

 private:
  void Look() {
    auto* window = VisibleWindow<WindowType>();
    if (window == nullptr) return;
    timer_.stop();
    played_ = true;
    play_(*window);
    if (window->IsUnloaded()) return;
    ADD_FAILURE() << "the window was left open";
    window->UnloadWindow();
  }

  std::function<void(WindowType&)> play_;
  QTimer timer_;
  bool played_ = false;
};

}  // namespace zarvo
