// A line or a paragraph of text, which can also serve as a button.
#pragma once

#include <QWidget>
#include <string>

#include "toolkit/colour.h"
#include "toolkit/control.h"

namespace zarvo {

enum class BackStyle { kTransparent, kOpaque };
enum class TextAlign { kLeft, kCentre, kRight };

// Text is shown literally and elided where it doesn't fit. A label becomes a button for keyboard
// and screen reader with SetPressable: it then takes the focus and Space and Enter click it.
class Label : public QWidget, public Control {
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
  void SetBold(bool bold);
  void SetUnderline(bool underline);
  void SetWordWrap(bool wrap);
  // Height of the text in pixels; 11 unless set.
  void SetTextSize(int pixels);
  void SetPressable(bool pressable);
  [[nodiscard]] bool Pressable() const { return pressable_; }
  // What Space and Enter do.
  void Press() { Click.Raise(); }
  // Draws the raised edge of a button round an opaque back.
  void SetRaised(bool raised);

  // Left button released over the label it was pressed on, or Space or Enter on a pressable one.
  Event<> Click;
  Event<> DblClick;
  Event<> TabbedTo;  // Tab or Shift+Tab has reached it

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  std::string caption_;
  BackStyle back_style_ = BackStyle::kTransparent;
  Colour back_colour_ = kNight;
  Colour fore_colour_ = kMoon;
  TextAlign align_ = TextAlign::kLeft;
  bool word_wrap_ = false;
  bool pressable_ = false;
  bool raised_ = false;
  bool pressed_ = false;
  int modals_at_press_ = 0;
};

}  // namespace zarvo
