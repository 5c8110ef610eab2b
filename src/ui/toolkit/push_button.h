// A button with a caption, for the dialogs.
#pragma once

#include <QPushButton>
#include <string>

#include "ui/toolkit/control.h"

namespace zarvo {

class PushButton : public QPushButton, public Control {
 public:
  explicit PushButton(QWidget* parent);
  void SetCaption(std::string_view caption);
  // Draws it as the one that Enter presses.
  void SetDefault(bool is_default);

  Event<> Click;

 protected:
  // Enter presses the button that has the focus, as Space does.
  void keyPressEvent(QKeyEvent* event) override;
  void initStyleOption(QStyleOptionButton* option) const override;
  [[nodiscard]] QString ElidedText() const override;

 private:
  std::string caption_;
  bool is_default_ = false;
};

}  // namespace zarvo
