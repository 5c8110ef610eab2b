// A drop-down list with fixed choices.
#pragma once

#include <QComboBox>
#include <string>
#include <string_view>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/control.h"

namespace zarvo {

// Closed, it elides an item that doesn't fit and tells it whole by a tool tip.
//
// A new selection raises Click inside the statement that sets it; a choice by the player raises it
// too, also the choice of what is selected already. The wheel turns the choice only while the box
// has the focus.
class ComboBox : public QComboBox, public Control {
 public:
  explicit ComboBox(QWidget* parent);

  [[nodiscard]] int ListIndex() const { return currentIndex(); }
  // A value out of range, but -1, is no change and returns false.
  bool SetListIndex(int index);
  [[nodiscard]] int ListCount() const { return count(); }
  [[nodiscard]] std::string Text() const;
  [[nodiscard]] std::string List(int index) const;
  void AddItem(std::string_view text);
  bool RemoveItem(int index);
  void Clear();
  void SetBackColor(Colour colour);
  void SetForeColor(Colour colour);
  [[nodiscard]] Colour BackColor() const { return back_colour_; }
  [[nodiscard]] Colour ForeColor() const { return fore_colour_; }

  void showPopup() override;

  Event<> Click;

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void initStyleOption(QStyleOptionComboBox* option) const override;
  [[nodiscard]] QString ElidedText() const override;

 private:
  static constexpr int kNone = -2;

  int before_popup_ = kNone;  // the selection when the list dropped down, until that changes
  Colour back_colour_ = kSilver;
  Colour fore_colour_ = kBlack;
};

}  // namespace zarvo
