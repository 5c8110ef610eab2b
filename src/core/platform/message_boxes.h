// The message boxes of the program, behind a seam so that tests can answer them.
#pragma once

#include <string>
#include <string_view>

namespace zarvo {

enum class BoxIcon { kInformation, kExclamation };
enum class BoxButtons { kOk, kYesNo, kRetryStayLeave };
enum class BoxAnswer { kOk, kYes, kNo, kRetry, kStay, kLeave };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows the box and returns when a button was pressed; closing a Yes and No box is No, and
  // one that offers to stay is that. A carriage
  // return in `text` is a line break; everything else is shown literally. Windows-1252.
  virtual BoxAnswer Show(BoxIcon icon, BoxButtons buttons, std::string_view title,
                         std::string_view text) = 0;

  void Inform(std::string_view title, std::string_view text) {
    Show(BoxIcon::kInformation, BoxButtons::kOk, title, text);
  }
  void Warn(std::string_view title, std::string_view text) {
    Show(BoxIcon::kExclamation, BoxButtons::kOk, title, text);
  }
  bool Ask(std::string_view title, std::string_view text) {
    return Show(BoxIcon::kExclamation, BoxButtons::kYesNo, title, text) == BoxAnswer::kYes;
  }
};

}  // namespace zarvo
