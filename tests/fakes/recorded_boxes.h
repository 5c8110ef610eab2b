// Message boxes that note what they were shown and answer as the test says.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/message_boxes.h"
#include "gtest/gtest.h"

namespace zarvo {

class RecordedBoxes : public MessageBoxes {
 public:
  struct Shown {
    BoxIcon icon;
    BoxButtons buttons;
    std::string title;
    std::string text;
  };

  // The answers to the next questions, in turn. A question without an answer fails the test.
  std::deque<BoxAnswer> answers;
  std::vector<Shown> shown;
  // Called while a box is up.
  std::function<void()> on_show;

  BoxAnswer Show(BoxIcon icon, BoxButtons buttons, std::string_view title,
                 std::string_view text) override {
    shown.push_back({icon, buttons, std::string(title), std::string(text)});
    if (on_show) on_show();
    if (buttons == BoxButtons::kOk) return BoxAnswer::kOk;
    if (answers.empty()) {
      ADD_FAILURE() << "Nobody expected the question: " << text;
      return BoxAnswer::kNo;
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace zarvo
