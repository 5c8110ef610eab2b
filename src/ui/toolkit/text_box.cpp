#include "ui/toolkit/text_box.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/toolkit/drawing.h"
#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

constexpr int kNoLimit = 32767;
constexpr int kMargin = 1;        // pixels that are free at both sides,
constexpr int kEditorMargin = 2;  // and those that the editor keeps itself

}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent), Control(this, Watch::kMouse) {
  setFrame(false);
  setTextMargins(kMargin, 0, kMargin, 0);
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

QRect TextBox::TextRect() const {
  return rect().adjusted(kMargin + kEditorMargin, 0, -kMargin - kEditorMargin, 0);
}

QString TextBox::ElidedText() const { return IfElided(fontMetrics(), TextRect().size(), text()); }

void TextBox::paintEvent(QPaintEvent* event) {
  const QString elided = hasFocus() ? QString() : ElidedText();
  if (elided.isEmpty()) QLineEdit::paintEvent(event);
  QPainter painter(this);
  if (!elided.isEmpty()) {
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().text().color());
    DrawCaption(painter, TextRect(), elided, TextAlign::kLeft, false);
  }
  DrawSunkenEdge(painter, rect());
  if (hasFocus()) DrawFocus(painter, rect());
}

}  // namespace zarvo
