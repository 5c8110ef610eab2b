// What labels and pictures share: they can be clicked, and serve as buttons.
#pragma once

#include <QWidget>
#include <optional>

#include "ui/toolkit/control.h"

namespace zarvo {

// A button for keyboard and screen reader once it's made pressable: it then takes the focus, and
// Space and Enter press it.
class Pressable : public QWidget, public Control {
 public:
  void SetPressable(bool pressable);
  [[nodiscard]] bool IsPressable() const { return pressable_; }
  // A button that is on or off, for a screen reader: of a page, or of a window that is open.
  void SetChecked(bool checked);
  [[nodiscard]] std::optional<bool> Checked() const { return checked_; }
  // What Space and Enter do.
  virtual void Press() { Click.Raise(); }
  // For a screen reader, where the control was given no name: what it shows.
  [[nodiscard]] virtual QString OwnName() const { return {}; }

  // Left button released over the control that it was pressed on, or a press by key.
  Event<> Click;
  Event<> DblClick;

 protected:
  explicit Pressable(QWidget* parent);

  // Whether the left button is down on it.
  [[nodiscard]] bool IsDown() const { return down_; }

  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool pressable_ = false;
  bool down_ = false;
  std::optional<bool> checked_;  // nothing: a button that does something
  int modals_at_press_ = 0;
};

}  // namespace zarvo
