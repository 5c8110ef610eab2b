#include "ui/toolkit/control_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QTimer>

#include "ui/toolkit/frame.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/window.h"

namespace zarvo {
namespace {

// A label or a picture: a button if it is pressable, else what it looks like.
class PressableAccess : public QAccessibleWidget {
 public:
  PressableAccess(Pressable* control, QAccessible::Role plain)
      : QAccessibleWidget(control, plain), control_(control) {}

  [[nodiscard]] QAccessible::Role role() const override {
    return control_->IsPressable() ? QAccessible::Button : QAccessibleWidget::role();
  }
  // The name that it was given, else its caption.
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && given.isEmpty() ? control_->OwnName() : given;
  }
  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (control_->IsPressable() && control_->isEnabled()) names.prepend(pressAction());
    return names;
  }
  // Later, since a press may open a box and the screen reader waits for the return.
  void doAction(const QString& name) override {
    if (name != pressAction()) {
      QAccessibleWidget::doAction(name);
    } else if (control_->IsPressable()) {
      QTimer::singleShot(0, control_, [control = control_] {
        if (CanBePressed(control)) control->Press();
      });
    }
  }

 private:
  static bool CanBePressed(const QWidget* widget) {
    const QWidget* const modal = QApplication::activeModalWidget();
    return widget->isEnabled() && widget->isVisible() && !ChildIsRunning() &&
           (modal == nullptr || modal->isAncestorOf(widget));
  }

  Pressable* control_;
};

QAccessibleInterface* MakeAccess(const QString& /*class_name*/, QObject* object) {
  if (auto* const label = dynamic_cast<Label*>(object)) {
    return new PressableAccess(label, QAccessible::StaticText);
  }
  if (auto* const image = dynamic_cast<ImageBox*>(object)) {
    return new PressableAccess(image, QAccessible::Graphic);
  }
  if (auto* const frame = dynamic_cast<Frame*>(object)) {
    return new QAccessibleWidget(frame, QAccessible::Grouping);
  }
  if (auto* const page = dynamic_cast<PictureBox*>(object)) {
    return new QAccessibleWidget(page, QAccessible::Pane);
  }
  if (auto* const window = dynamic_cast<Window*>(object)) {
    const bool dialog = window->windowType() == Qt::Dialog;
    return new QAccessibleWidget(window, dialog ? QAccessible::Dialog : QAccessible::Window);
  }
  return nullptr;
}

}  // namespace

void InstallControlAccess() { QAccessible::installFactory(MakeAccess); }

}  // namespace zarvo
