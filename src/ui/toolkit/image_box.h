// A picture that fills its box, which can also serve as a button.
#pragma once

#include "ui/toolkit/picture.h"
#include "ui/toolkit/pressable.h"

namespace zarvo {

class ImageBox : public Pressable {
 public:
  explicit ImageBox(QWidget* parent);

  [[nodiscard]] const Picture& CurrentPicture() const { return picture_; }
  void SetPicture(Picture picture);
  // Space and Enter stand for a double click, else for a click.
  void SetPressIsDouble(bool is_double) { press_is_double_ = is_double; }
  // Raises mouse down, the click or double click, and mouse up.
  void Press() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Picture picture_;
  bool press_is_double_ = false;
};

}  // namespace zarvo
