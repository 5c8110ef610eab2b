// Check boxes and option buttons.
#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <string>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/control.h"

namespace zarvo {

// Its Value is 0 or 1. A new value raises Click inside the statement that sets it.
class CheckBox : public QCheckBox, public Control {
 public:
  explicit CheckBox(QWidget* parent);

  [[nodiscard]] int Value() const { return isChecked() ? 1 : 0; }
  // Any value but 0 counts as 1.
  void SetValue(int value);
  void SetCaption(std::string_view caption);
  [[nodiscard]] std::string Caption() const { return caption_; }
  void SetForeColor(Colour colour);
  void SetBold(bool bold);
  [[nodiscard]] Colour ForeColor() const { return fore_colour_; }

  Event<> Click;

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  [[nodiscard]] QString ElidedText() const override;

 private:
  Colour fore_colour_ = kInk;
  std::string caption_;
};

// One of a group: those with the same parent exclude each other.
class OptionButton : public QRadioButton, public Control {
 public:
  explicit OptionButton(QWidget* parent);

  [[nodiscard]] bool Value() const { return isChecked(); }
  void SetValue(bool value);
  void SetCaption(std::string_view caption);

  Event<> Click;

 protected:
  void initStyleOption(QStyleOptionButton* option) const override;
  [[nodiscard]] QString ElidedText() const override;

 private:
  std::string caption_;
};

}  // namespace zarvo
