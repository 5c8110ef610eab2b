// Who may have input: everyone, but nobody while a child of the program runs.
#pragma once

#include <QObject>

namespace zarvo {

// While one lives no window takes input: what the player does is dropped and delivered to nobody
// later, and a request to close a window or to quit is refused.
class NoInput : public QObject {
 public:
  NoInput();
  ~NoInput() override;
  Q_DISABLE_COPY_MOVE(NoInput)

  bool eventFilter(QObject* watched, QEvent* event) override;
};

// True while a child runs; for what no event stands in front of, as timers.
bool ChildIsRunning();

// How many children have run so far.
int ChildrenRun();

// How many modal windows, boxes, moves of windows and children there were so far; a handler that
// finds it changed knows that the mouse was let go meanwhile.
int ModalCount();
void CountModal();

}  // namespace zarvo
