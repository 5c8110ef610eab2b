#include "ui/toolkit/push_button.h"

#include <QKeyEvent>
#include <QStyleOptionButton>

#include "ui/toolkit/drawing.h"

namespace zarvo {
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

void PushButton::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  option->features.setFlag(QStyleOptionButton::DefaultButton, is_default_);
}

QString PushButton::ElidedText() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  return IfElided(fontMetrics(), room.size(), ToQt(caption_));
}

}  // namespace zarvo
