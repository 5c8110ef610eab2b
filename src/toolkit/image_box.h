// A picture that fills its box, which can also serve as a button.
#pragma once

#include <QWidget>

#include "toolkit/control.h"
#include "toolkit/picture.h"

namespace zarvo {

class ImageBox : public QWidget, public Control {
 public:
  explicit ImageBox(QWidget* parent);

  [[nodiscard]] const Picture& CurrentPicture() const { return picture_; }
  void SetPicture(Picture picture);
  // As a button it takes the focus, and Space and Enter raise mouse down, click and mouse up.
  void SetPressable(bool pressable);
  [[nodiscard]] bool Pressable() const { return pressable_; }
  // A button for which Space and Enter stand for a double click.
  void SetPressIsDouble(bool is_double) { press_is_double_ = is_double; }
  // What Space and Enter do.
  void Press();

  Event<> Click;
  Event<> DblClick;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Picture picture_;
  bool pressable_ = false;
  bool press_is_double_ = false;
  bool pressed_ = false;
  int modals_at_press_ = 0;
};

}  // namespace zarvo
