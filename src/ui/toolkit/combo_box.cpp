#include "ui/toolkit/combo_box.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "ui/toolkit/drawing.h"

namespace zarvo {
namespace {

constexpr int kArrowWidth = 9;  // pixels
constexpr int kTextLeft = 3;

}  // namespace

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

QRect ComboBox::TextRect() const { return rect().adjusted(kTextLeft, 0, -kArrowWidth - 1, 0); }

QString ComboBox::ElidedText() const {
  return IfElided(fontMetrics(), TextRect().size(), currentText());
}

void ComboBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor back = isEnabled() ? back_colour_.ToQt() : Faded(back_colour_.ToQt());
  painter.fillRect(rect(), back);
  const QRect arrow(width() - kArrowWidth - 1, 1, kArrowWidth, height() - 2);
  DrawKey(painter, arrow, back.darker(112), view()->isVisible());
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath tip;
  const QPointF centre = QRectF(arrow).center();
  tip.moveTo(centre + QPointF(-3, -1.5));
  tip.lineTo(centre + QPointF(3, -1.5));
  tip.lineTo(centre + QPointF(0, 2));
  const QColor ink = isEnabled() ? fore_colour_.ToQt() : Faded(fore_colour_.ToQt());
  painter.fillPath(tip, ink);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(ink);
  DrawCaption(painter, TextRect(), currentText(), TextAlign::kLeft, false);
  DrawSunkenEdge(painter, rect());
  if (hasFocus()) DrawFocus(painter, rect());
}

}  // namespace zarvo
