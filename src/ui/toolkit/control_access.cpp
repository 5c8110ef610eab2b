#include "ui/toolkit/control_access.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QTimer>

#include "ui/toolkit/combo_box.h"
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
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    // A picture without a name means nothing.
    if (role() == QAccessible::Graphic && text(QAccessible::Name).isEmpty()) state.invisible = true;
    state.checkable = control_->Checked().has_value();
    state.checked = control_->Checked().value_or(false);
    return state;
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

// A list that drops down. Qt gives its value as its name on this desktop, which leaves it without
// one.
class ComboAccess : public QAccessibleWidget {
 public:
  explicit ComboAccess(ComboBox* combo)
      : QAccessibleWidget(combo, QAccessible::ComboBox), combo_(combo) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? combo_->currentText() : QAccessibleWidget::text(kind);
  }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = combo_->view()->isVisible();
    state.collapsed = !combo_->view()->isVisible();
    return state;
  }
  [[nodiscard]] int childCount() const override { return 1; }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(combo_->view()) : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child->object() == combo_->view() ? 0 : -1;
  }
  [[nodiscard]] QStringList actionNames() const override {
    return {showMenuAction(), pressAction()};
  }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name) || !combo_->isEnabled() || ChildIsRunning()) return;
    QTimer::singleShot(0, combo_, [combo = combo_] { combo->showPopup(); });
  }

 private:
  ComboBox* combo_;
};

QAccessibleInterface* MakeAccess(const QString& /*class_name*/, QObject* object) {
  if (auto* const label = dynamic_cast<Label*>(object)) {
    return new PressableAccess(label, QAccessible::StaticText);
  }
  if (auto* const image = dynamic_cast<ImageBox*>(object)) {
    return new PressableAccess(image, QAccessible::Graphic);
  }
  if (auto* const combo = dynamic_cast<ComboBox*>(object)) return new ComboAccess(combo);
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
