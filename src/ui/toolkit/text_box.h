// A box with one line of text.
#pragma once

#include <QLineEdit>
#include <string>

#include "ui/toolkit/control.h"

namespace zarvo {

// A text that doesn't fit is elided while the box hasn't the focus, and told by a tool tip.
class TextBox : public QLineEdit, public Control {
 public:
  explicit TextBox(QWidget* parent);

  [[nodiscard]] std::string Text() const;
  // Raises Change if the text is new. The text is cut at the largest length, if one is set.
  void SetText(std::string_view text);
  void SetReadOnly(bool read_only);
  // At most this many characters; 0 for no limit.
  void SetMaxLength(int characters);

  // After every change of the text, by the player or by the program.
  Event<> Change;

 protected:
  // KeyDown runs before the box sees the key; a handler that swallows it calls SwallowKey.
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] QString ElidedText() const override;

 public:
  // Only from a KeyDown handler: the box doesn't see this key.
  void SwallowKey() { swallow_ = true; }

 private:
  [[nodiscard]] QRect TextRect() const;

  bool swallow_ = false;
};

}  // namespace zarvo
