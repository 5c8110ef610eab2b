#include "ui/toolkit/drag.h"

#include <QApplication>
#include <QCursor>
#include <QHash>
#include <QPointer>
#include <QScreen>

namespace zarvo {
namespace {

constexpr int kIconSize = 32;
constexpr int kHotSpot = 4;

struct Drag {
  const QWidget* source = nullptr;
  QPointer<QWidget> over;
};

Drag& Current() {
  static Drag drag;
  return drag;
}

QHash<QWidget*, DropTarget*>& Targets() {
  static QHash<QWidget*, DropTarget*> targets;
  return targets;
}

QCursor CursorOf(const Picture& icon) {
  return QCursor(icon.ToPixmap(QSize(kIconSize, kIconSize), qApp->devicePixelRatio()), kHotSpot,
                 kHotSpot);
}

// The target that the pointer is over, or nullptr.
QWidget* TargetAt(QPoint global) {
  for (QWidget* widget = QApplication::widgetAt(global); widget != nullptr;
       widget = widget->parentWidget()) {
    if (Targets().contains(widget)) return widget;
  }
  return nullptr;
}

void Tell(QWidget* widget, DragState state) {
  if (DropTarget* const target = Targets().value(widget)) target->DragOver.Raise(state);
}

void End() {
  Current() = {};
  QApplication::restoreOverrideCursor();
}

}  // namespace

void AcceptDrops(QWidget* widget, DropTarget* target) {
  Targets().insert(widget, target);
  QObject::connect(widget, &QObject::destroyed, qApp, [widget] { Targets().remove(widget); });
}

void StartDrag(QWidget* source, const Picture& icon) {
  if (Current().source != nullptr) End();
  Current() = {.source = source, .over = nullptr};
  QApplication::setOverrideCursor(CursorOf(icon));
}

void ChangeDragIcon(const QWidget* source, const Picture& icon) {
  if (IsDragging(source)) QApplication::changeOverrideCursor(CursorOf(icon));
}

bool IsDragging(const QWidget* source) { return Current().source == source; }

void MoveDrag(QPoint global) {
  QWidget* const now = TargetAt(global);
  QWidget* const before = Current().over;
  if (now == before) {
    if (now != nullptr) Tell(now, DragState::kOver);
    return;
  }
  if (before != nullptr) Tell(before, DragState::kLeave);
  Current().over = now;
  if (now != nullptr) Tell(now, DragState::kEnter);
}

void FinishDrag(QPoint global) {
  MoveDrag(global);
  QWidget* const target = Current().over;
  End();
  if (DropTarget* const drop = target != nullptr ? Targets().value(target) : nullptr) {
    drop->DragDrop.Raise();
  }
}

void CancelDrag(const QWidget* source) {
  if (!IsDragging(source)) return;
  QWidget* const over = Current().over;
  End();
  if (over != nullptr) Tell(over, DragState::kLeave);
}

}  // namespace zarvo
