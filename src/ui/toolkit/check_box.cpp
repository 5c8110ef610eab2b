#include "ui/toolkit/check_box.h"

#include <QStyleOptionButton>

#include "ui/toolkit/drawing.h"

namespace zarvo {
CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent), Control(this) {
  QObject::connect(this, &QCheckBox::toggled, this, [this] { Click.Raise(); });
}

void CheckBox::SetValue(int value) { setChecked(value != 0); }

void CheckBox::SetCaption(std::string_view caption) {
  caption_ = caption;
  setText(ToQtCaption(caption));
}

void CheckBox::SetForeColor(Colour colour) {
  fore_colour_ = colour;
  update();
}

void CheckBox::SetBold(bool bold) { setFont(InBold(font(), bold)); }

void CheckBox::initStyleOption(QStyleOptionButton* option) const {
  QCheckBox::initStyleOption(option);
  option->palette.setColor(QPalette::WindowText, fore_colour_.ToQt());
}

QString CheckBox::ElidedText() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
  return IfElided(fontMetrics(), room.size(), ToQt(caption_));
}

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent), Control(this) {
  QObject::connect(this, &QRadioButton::toggled, this, [this](bool on) {
    if (on) Click.Raise();
  });
}

void OptionButton::SetValue(bool value) {
  // A button that excludes the others can't be switched off otherwise.
  setAutoExclusive(value);
  setChecked(value);
  setAutoExclusive(true);
}

void OptionButton::SetCaption(std::string_view caption) {
  caption_ = caption;
  setText(ToQtCaption(caption));
}

void OptionButton::initStyleOption(QStyleOptionButton* option) const {
  QRadioButton::initStyleOption(option);
  option->palette.setColor(QPalette::WindowText, kInk.ToQt());
}

QString OptionButton::ElidedText() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
  return IfElided(fontMetrics(), room.size(), ToQt(caption_));
}

}  // namespace zarvo
