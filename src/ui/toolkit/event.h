// Events of the controls: a control raises one, its handlers run at once, inside the raise.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace zarvo {

template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  // Adds a handler; handlers run in the order in which they were added.
  void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }

  void Raise(Args... args) const {
    // A handler may end the life of its control, so the list is held for the time of the raise.
    const std::vector<Handler> handlers = handlers_;
    for (const Handler& handler : handlers) handler(args...);
  }

  [[nodiscard]] bool HasHandlers() const { return !handlers_.empty(); }

 private:
  std::vector<Handler> handlers_;
};

}  // namespace zarvo
