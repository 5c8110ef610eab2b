// A line or a paragraph of text, which can also serve as a button.
#pragma once

#include <string>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/drawing.h"
#include "ui/toolkit/pressable.h"

namespace zarvo {

enum class BackStyle { kTransparent, kOpaque };

// Text is shown literally; where it doesn't fit, it's elided and told by a tool tip.
class Label : public Pressable {
 public:
  explicit Label(QWidget* parent);

  [[nodiscard]] std::string Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  void SetBackStyle(BackStyle style);
  void SetBackColor(Colour colour);
  void SetForeColor(Colour colour);
  [[nodiscard]] BackStyle Style() const { return back_style_; }
  [[nodiscard]] Colour BackColor() const { return back_colour_; }
  [[nodiscard]] Colour ForeColor() const { return fore_colour_; }
  void SetAlign(TextAlign align);
  [[nodiscard]] TextAlign Align() const { return align_; }
  void SetBold(bool bold);
  void SetUnderline(bool underline);
  void SetWordWrap(bool wrap);
  // Height of the text in pixels; 11 unless set.
  void SetTextSize(int pixels);
  // Draws the raised edge of a button round an opaque back.
  void SetRaised(bool raised);

  [[nodiscard]] QString OwnName() const override { return ToQt(caption_).trimmed(); }

  Event<> TabbedTo;  // Tab or Shift+Tab has reached it

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  [[nodiscard]] QString ElidedText() const override;

 private:
  [[nodiscard]] QRect TextRect() const;

  std::string caption_;
  BackStyle back_style_ = BackStyle::kTransparent;
  Colour back_colour_ = kNight;
  Colour fore_colour_ = kMoon;
  TextAlign align_ = TextAlign::kLeft;
  bool word_wrap_ = false;
  bool raised_ = false;
};

}  // namespace zarvo
