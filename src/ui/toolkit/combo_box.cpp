#include "ui/toolkit/combo_box.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "ui/toolkit/drawing.h"

namespace zarvo {
ComboBox::ComboBox(QWidget* parent) : QComboBox(parent), Control(this) {
  setMaxVisibleItems(20);
  // The wheel over a box that hasn't the focus mustn't give it the focus and then turn it.
  setFocusPolicy(Qt::StrongFocus);
  QObject::connect(this, &QComboBox::currentIndexChanged, this, [this] {
    before_popup_ = kNone;
    Click.Raise();
  });
  QObject::connect(this, &QComboBox::activated, this, [this](int index) {
    if (std::exchange(before_popup_, kNone) == index) Click.Raise();
  });
}

bool ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= count()) return false;
  setCurrentIndex(index);
  return true;
}

std::string ComboBox::Text() const { return List(currentIndex()); }

std::string ComboBox::List(int index) const { return FromQt(itemText(index)); }

void ComboBox::AddItem(std::string_view text) {
  const QSignalBlocker quiet(this);
  const int selected = currentIndex();
  addItem(ToQt(text));
  setCurrentIndex(selected);
}

bool ComboBox::RemoveItem(int index) {
  if (index < 0 || index >= count()) return false;
  const QSignalBlocker quiet(this);
  const int selected = currentIndex();
  removeItem(index);
  setCurrentIndex(selected == index ? -1 : selected > index ? selected - 1 : selected);
  return true;
}

void ComboBox::Clear() {
  const QSignalBlocker quiet(this);
  clear();
  update();
}

void ComboBox::SetBackColor(Colour colour) {
  back_colour_ = colour;
  update();
}

void ComboBox::SetForeColor(Colour colour) {
  fore_colour_ = colour;
  update();
}

void ComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void ComboBox::showPopup() {
  before_popup_ = currentIndex();
  const int scroll_bar = 24;
  view()->setMinimumWidth(std::max(width(), view()->sizeHintForColumn(0) + scroll_bar));
  QComboBox::showPopup();
}

void ComboBox::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  option->palette.setColor(QPalette::Button, back_colour_.ToQt());
  option->palette.setColor(QPalette::ButtonText, fore_colour_.ToQt());
}

QString ComboBox::ElidedText() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect room =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  return IfElided(fontMetrics(), room.size(), currentText());
}

}  // namespace zarvo
