// Waiting for a child process with the windows still painted and alive to the desktop, but deaf.
#pragma once

#include "core/platform/child_process.h"

namespace zarvo {

// Runs a host command. Until it ends no window takes input: key and mouse events are dropped, a
// request to close a window is refused; painting and answering the desktop go on. What the child
// prints goes nowhere but into the outcome.
class WaitingRunner : public ChildRunner {
 public:
  RunOutcome Run(const HostCommand& command) override;
};

}  // namespace zarvo
