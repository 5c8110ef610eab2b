#include "ui/toolkit/text_box.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/toolkit/drawing.h"
#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

constexpr int kNoLimit = 32767;

}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent), Control(this, Watch::kMouse) {
  setFrame(false);
  setTextMargins(2, 0, 2, 0);
  QObject::connect(this, &QLineEdit::textChanged, this, [this] { Change.Raise(); });
}

std::string TextBox::Text() const { return FromQt(text()); }

void TextBox::SetText(std::string_view text) {
  setText(ToQt(text));
  setCursorPosition(0);
}

void TextBox::SetReadOnly(bool read_only) { setReadOnly(read_only); }

void TextBox::SetMaxLength(int characters) { setMaxLength(characters > 0 ? characters : kNoLimit); }

void TextBox::keyPressEvent(QKeyEvent* event) {
  swallow_ = false;
  KeyDown.Raise({.code = KeyCodeOf(*event), .shift = ShiftStateOf(*event)});
  if (swallow_) {
    event->accept();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void TextBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  DrawSunkenEdge(painter, rect());
  if (hasFocus()) DrawFocus(painter, rect());
}

}  // namespace zarvo
