#include "ui/toolkit/push_button.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/toolkit/drawing.h"

namespace zarvo {
namespace {

QRect CaptionRect(const QWidget& button) { return button.rect().adjusted(3, 0, -3, 0); }

}  // namespace

PushButton::PushButton(QWidget* parent) : QPushButton(parent), Control(this) {
  // Enter presses the button that has the focus, whichever the window's default is.
  setAutoDefault(true);
  QObject::connect(this, &QPushButton::clicked, this, [this] { Click.Raise(); });
}

void PushButton::SetCaption(std::string_view caption) {
  caption_ = caption;
  setText(ToQtCaption(caption));
}

void PushButton::SetDefault(bool is_default) {
  is_default_ = is_default;
  update();
}

void PushButton::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) {
    QPushButton::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    click();
  }
}

void PushButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DrawButton(painter, rect(),
             {.enabled = isEnabled(),
              .is_default = is_default_,
              .hovered = underMouse(),
              .down = isDown(),
              .focused = hasFocus()});
  painter.setPen(isEnabled() ? QColor(Qt::white) : Faded(Qt::white));
  DrawCaption(painter, CaptionRect(*this), ToQt(caption_), TextAlign::kCentre, false);
}

QString PushButton::ElidedText() const {
  return IfElided(fontMetrics(), CaptionRect(*this).size(), ToQt(caption_));
}

}  // namespace zarvo
