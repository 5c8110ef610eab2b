// Waiting for a child process with the windows still painted and alive to the desktop, but deaf.
#pragma once

#include "platform/child_process.h"

namespace zarvo {

// True while a child runs: no handler may run, timers stand still.
bool ChildIsRunning();

// How many children have run so far.
int ChildrenRun();

// Runs a host command. Until it ends no window takes input: key and mouse events are dropped, a
// request to close a window is refused; painting and answering the desktop go on. What the child
// prints goes nowhere but into the outcome.
class WaitingRunner : public ChildRunner {
 public:
  RunOutcome Run(const HostCommand& command) override;
};

}  // namespace zarvo
