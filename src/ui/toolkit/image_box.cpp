#include "ui/toolkit/image_box.h"

#include <QPainter>
#include <utility>

#include "ui/toolkit/drawing.h"

namespace zarvo {

ImageBox::ImageBox(QWidget* parent) : Pressable(parent) {}

void ImageBox::SetPicture(Picture picture) {
  picture_ = std::move(picture);
  update();
}

void ImageBox::Press() {
  MouseDown.Raise({.button = MouseButton::kLeft});
  (press_is_double_ ? DblClick : Click).Raise();
  MouseUp.Raise({.button = MouseButton::kLeft});
}

void ImageBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  picture_.Draw(painter, QRectF(rect()));
  if (hasFocus()) DrawFocus(painter, rect());
}

}  // namespace zarvo
