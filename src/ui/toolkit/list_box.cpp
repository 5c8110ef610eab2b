#include "ui/toolkit/list_box.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <utility>

#include "core/platform/text.h"
#include "ui/toolkit/drag.h"
#include "ui/toolkit/drawing.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/keys.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

constexpr int kTextLeft = 4;  // pixels between the text and the sides of its entry
constexpr int kTextRight = 3;
constexpr quint64 kTypingPause = 1000;  // milliseconds after which typing starts a new word

constexpr Colour kRow{0x33190F};
constexpr Colour kOtherRow{0x3D2216};
constexpr Colour kText{0xF0DDD2};
constexpr Colour kDimSelection{0x5C3A2E};

// A key that puts down a character, without Ctrl or Alt.
bool IsTyping(const QKeyEvent& event) {
  const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return !event.modifiers().testAnyFlags(commands) && !event.text().isEmpty() &&
         event.text().front().isPrint();
}

}  // namespace

ListBox::ListBox(QWidget* parent) : QAbstractScrollArea(parent), Control(this, Watch::kToolTip) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

ListBox::~ListBox() { CancelDrag(this); }

int ListBox::ListIndex() const { return index_; }

int ListBox::ListCount() const { return items_.Count(); }

std::string ListBox::Text() const {
  return index_ < 0 ? std::string() : std::string(items_.At(index_));
}

const NameList& ListBox::Items() const { return items_; }

bool ListBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) return false;
  if (index == index_) return true;
  Show(index);
  Click.Raise();
  return true;
}

// Makes an entry the selected one on screen and for the screen reader.
void ListBox::Show(int index) {
  index_ = index;
  if (index >= 0) ScrollTo(index);
  viewport()->update();
  if (QAccessible::isActive() && index >= 0) {
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(index);
    QAccessible::updateAccessibility(&event);
  }
}

// The player has chosen an entry, perhaps the one that was selected already.
void ListBox::Choose(int index) {
  Show(index);
  Click.Raise();
}

void ListBox::SetSorted(bool sorted) { sorted_ = sorted; }

void ListBox::AddItem(std::string_view text) {
  if (sorted_) {
    const int place = items_.InsertSorted(text);
    if (place >= 0 && place <= index_) ++index_;
  } else {
    items_.Append(text);
  }
  UpdateScrollBars();
}

bool ListBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) return false;
  items_.Remove(index);
  if (index == index_) {
    index_ = -1;
  } else if (index < index_) {
    --index_;
  }
  UpdateScrollBars();
  return true;
}

void ListBox::Clear() { SetItems({}); }

void ListBox::SetItems(NameList items) {
  items_ = std::move(items);
  if (sorted_) items_.Sort();
  index_ = -1;
  typed_.clear();
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
  UpdateScrollBars();
}

int ListBox::Columns() const { return columns_; }

void ListBox::SetColumns(int columns) {
  columns_ = columns;
  const bool sideways = columns > 1;
  setHorizontalScrollBarPolicy(sideways ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(sideways ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  UpdateScrollBars();
  if (index_ >= 0) ScrollTo(index_);
}

void ListBox::BeginDrag(const Picture& icon) { StartDrag(this, icon); }

void ListBox::SetDragIcon(const Picture& icon) { ChangeDragIcon(this, icon); }

QScrollBar* ListBox::Bar() const {
  return columns_ == 1 ? verticalScrollBar() : horizontalScrollBar();
}

ListGeometry ListBox::Geometry() const {
  return {.view = viewport()->size(),
          .columns = columns_,
          .count = ListCount(),
          .scrolled = Bar()->value()};
}

QRect ListBox::EntryRect(int index) const { return Geometry().EntryRect(index); }

int ListBox::EntryAt(QPoint point) const { return Geometry().EntryAt(point); }

void ListBox::UpdateScrollBars() {
  const ListGeometry geometry = Geometry();
  QScrollBar* const other = columns_ == 1 ? horizontalScrollBar() : verticalScrollBar();
  Bar()->setRange(0, geometry.ScrollRange(height() - head_room_));
  Bar()->setPageStep(geometry.ScrollPage());
  other->setRange(0, 0);
  viewport()->update();
}

void ListBox::ScrollTo(int index) { Bar()->setValue(Geometry().ScrolledTo(index)); }

void ListBox::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  UpdateScrollBars();
  if (index_ >= 0) ScrollTo(index_);
}

void ListBox::scrollContentsBy(int /*dx*/, int /*dy*/) { viewport()->update(); }

void ListBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), kRow.ToQt());
  const ListGeometry geometry = Geometry();
  for (int index = geometry.FirstSeen(); index < geometry.LastSeen(); ++index) {
    PaintEntry(painter, index, geometry.EntryRect(index));
  }
  if (ListCount() == 0) {
    constexpr int kMargin = 6;
    painter.setPen(kText.ToQt());
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, ToQt(empty_text_));
  }
  painter.setPen(kOtherRow.ToQt().lighter(130));
  for (int column = 1; column < columns_ && ListCount() > 0; ++column) {
    const int right = column * geometry.ColumnWidth() - 1;
    painter.drawLine(right, 0, right, height());
  }
  DrawSunkenEdge(painter, viewport()->rect());
  if (hasFocus()) DrawFocus(painter, viewport()->rect());
}

void ListBox::SetBright(bool bright) {
  bright_ = bright;
  viewport()->update();
}

void ListBox::SetEmptyText(std::string_view text) {
  empty_text_ = text;
  setAccessibleDescription(ToQt(text));
  viewport()->update();
}

void ListBox::SetHeadRoom(int pixels) {
  head_room_ = pixels;
  setViewportMargins(0, pixels, 0, 0);
}

void ListBox::SetTextSize(int pixels) { setFont(InSize(font(), pixels)); }

bool ListBox::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip && ToolTipText().empty()) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    if (!ShowWholeText(EntryAt(help.pos()), help.globalPos())) QToolTip::hideText();
    return true;
  }
  return QAbstractScrollArea::viewportEvent(event);
}

QRect ListBox::TextRect(int index) const {
  return EntryRect(index).adjusted(kTextLeft, 0, -kTextRight, 0);
}

bool ListBox::ShowWholeText(int index, const QPoint& place) {
  if (index < 0) return false;
  const std::string_view text = items_.At(index);
  if (IfElided(fontMetrics(), TextRect(index).size(), ToQt(text)).isEmpty()) return false;
  ShowTip(place, text, viewport());
  return true;
}

void ListBox::PaintEntry(QPainter& painter, int index, const QRect& rect) {
  const bool selected = index == index_;
  const QColor back = selected    ? (bright_ ? kSlate : kDimSelection).ToQt()
                      : index % 2 ? kOtherRow.ToQt()
                                  : kRow.ToQt();
  painter.fillRect(rect, back);
  painter.setPen(!isEnabled() ? Faded(kText.ToQt()) : selected ? QColor(Qt::white) : kText.ToQt());
  DrawCaption(painter, TextRect(index), ToQt(items_.At(index)), TextAlign::kLeft, false);
}

void ListBox::mousePressEvent(QMouseEvent* event) {
  if (IsDragging(this)) {
    CancelDrag(this);
    // A second button breaks the drag off; the only one means that the release got lost.
    if (event->buttons() != event->button()) return;
  }
  const MouseArgs args = MouseArgsOf(*event);
  if (event->button() == Qt::RightButton) {
    MouseDown.Raise(args);
    return;
  }
  const int index = EntryAt(event->position().toPoint());
  const int modals = ModalCount();
  if (index >= 0) Choose(index);
  // A box in between has taken the release of the button.
  if (modals == ModalCount()) MouseDown.Raise(args);
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
  if (IsDragging(this) && event->buttons() == Qt::NoButton) CancelDrag(this);
  if (IsDragging(this)) {
    MoveDrag(event->globalPosition().toPoint());
  } else {
    MouseMove.Raise(MouseArgsOf(*event));
  }
}

void ListBox::mouseReleaseEvent(QMouseEvent* event) {
  if (IsDragging(this)) FinishDrag(event->globalPosition().toPoint());
  MouseUp.Raise(MouseArgsOf(*event));
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  const int index = EntryAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton) {
    MouseDown.Raise(MouseArgsOf(*event));
    return;
  }
  if (index < 0) return;
  if (index != index_) {
    Choose(index);
    return;
  }
  DblClick.Raise();
}

void ListBox::wheelEvent(QWheelEvent* event) { QApplication::sendEvent(Bar(), event); }

void ListBox::keyPressEvent(QKeyEvent* event) {
  swallow_ = false;
  // Held down it starts one game. When that ends, the desktop may hand the key over as a fresh
  // press.
  constexpr qint64 kMoment = 700;  // milliseconds
  const bool is_enter = KeyCodeOf(*event) == key::kEnter;
  const bool has_just_run = enter_ran_.isValid() && enter_ran_.elapsed() < kMoment;
  if (is_enter && (event->isAutoRepeat() || has_just_run)) {
    if (has_just_run) enter_ran_.start();  // until it is let go
    return;
  }
  const int runs = ChildrenRun();
  KeyDown.Raise({.code = KeyCodeOf(*event), .shift = ShiftStateOf(*event)});
  if (is_enter && ChildrenRun() != runs) enter_ran_.start();
  if (swallow_) {
    event->accept();
    return;
  }
  if (event->key() == Qt::Key_Escape && IsDragging(this)) {
    CancelDrag(this);
  } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    MenuKey.Raise(viewport()->mapToGlobal(EntryRect(std::max(index_, 0)).bottomLeft()));
  } else if (event->key() == Qt::Key_F1) {
    ShowWholeText(index_, viewport()->mapToGlobal(EntryRect(index_).bottomLeft()));
  } else if (MoveByKey(event->key())) {
    event->accept();
  } else if (IsTyping(*event)) {
    Search(*event);
  } else {
    QAbstractScrollArea::keyPressEvent(event);
    event->ignore();
  }
}

bool ListBox::MoveByKey(int key) {
  const ListGeometry geometry = Geometry();
  const int count = geometry.count;
  const int page = geometry.PageStep();
  const std::array<std::pair<int, int>, 8> targets = {{{Qt::Key_Up, index_ - 1},
                                                       {Qt::Key_Down, index_ + 1},
                                                       {Qt::Key_Left, geometry.Beside(index_, -1)},
                                                       {Qt::Key_Right, geometry.Beside(index_, 1)},
                                                       {Qt::Key_PageUp, index_ - page},
                                                       {Qt::Key_PageDown, index_ + page},
                                                       {Qt::Key_Home, 0},
                                                       {Qt::Key_End, count - 1}}};
  const auto* const found = std::find_if(targets.begin(), targets.end(),
                                         [key](const auto& each) { return each.first == key; });
  if (count == 0 || found == targets.end()) return false;
  SetListIndex(std::clamp(found->second, 0, count - 1));
  return true;
}

// Typing finds the next entry that begins so; the same letter again steps on.
void ListBox::Search(const QKeyEvent& event) {
  if (event.timestamp() - typed_at_ > kTypingPause) typed_.clear();
  typed_at_ = event.timestamp();
  const std::string letter = FromQt(event.text());
  const bool repeated = !typed_.empty() && EqualNoCase(typed_, letter);
  if (!repeated) typed_ += letter;
  const int step = typed_.size() == letter.size() ? 1 : 0;
  for (int i = 0; i < ListCount(); ++i) {
    const int index = (std::max(index_, 0) + (index_ < 0 ? 0 : step) + i) % ListCount();
    if (EqualNoCase(TrimBlanks(items_.At(index)).substr(0, typed_.size()), typed_)) {
      SetListIndex(index);
      return;
    }
  }
}

void ListBox::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard) {
    MenuKey.Raise(viewport()->mapToGlobal(EntryRect(std::max(index_, 0)).bottomLeft()));
  }
}

void ListBox::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void ListBox::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

}  // namespace zarvo
