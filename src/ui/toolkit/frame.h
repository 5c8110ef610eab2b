// Grounds on which controls stand: a page, and a frame with a caption.
#pragma once

#include <QWidget>
#include <string>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/control.h"

namespace zarvo {

// A page of a panel.
class PictureBox : public QWidget, public Control {
 public:
  explicit PictureBox(QWidget* parent);
  void SetBackColor(Colour colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour back_colour_ = kDeepNight;
};

// A box of thin lines with its caption in the upper line.
class Frame : public QWidget, public Control {
 public:
  explicit Frame(QWidget* parent);
  void SetCaption(std::string_view caption);
  [[nodiscard]] std::string Caption() const { return caption_; }
  // Light letters, for a frame on the ground of a window.
  void SetOnDarkGround(bool dark) { ground_is_dark_ = dark; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] QString ElidedText() const override;

 private:
  std::string caption_;
  bool ground_is_dark_ = false;
};

}  // namespace zarvo
