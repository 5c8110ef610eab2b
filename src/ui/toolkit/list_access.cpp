#include "ui/toolkit/list_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <unordered_map>

#include "ui/toolkit/list_box.h"

namespace zarvo {
namespace {

// One entry.
class EntryAccess : public QAccessibleInterface {
 public:
  EntryAccess(ListBox* list, int index) : list_(list), index_(index) {}

  [[nodiscard]] bool isValid() const override { return index_ < list_->ListCount(); }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(list_);
  }
  [[nodiscard]] QWindow* window() const override { return parent()->window(); }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
    return nullptr;
  }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || !isValid()) return {};
    return ToQt(list_->Items().At(index_));
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override {
    const QRect entry = list_->EntryRect(index_);
    return {list_->viewport()->mapToGlobal(entry.topLeft()), entry.size()};
  }
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.selectable = 1;
    state.focusable = 1;
    state.selected = index_ == list_->ListIndex() ? 1 : 0;
    state.focused = state.selected != 0U && list_->hasFocus() ? 1 : 0;
    state.invisible = list_->viewport()->rect().intersects(list_->EntryRect(index_)) ? 0 : 1;
    return state;
  }

 private:
  ListBox* list_;
  int index_;
};

class ListAccess : public QAccessibleWidget {
 public:
  explicit ListAccess(ListBox* list) : QAccessibleWidget(list, QAccessible::List), list_(list) {}
  ~ListAccess() override {
    for (const auto& [index, id] : entries_) QAccessible::deleteAccessibleInterface(id);
  }
  ListAccess(const ListAccess&) = delete;
  ListAccess& operator=(const ListAccess&) = delete;

  [[nodiscard]] int childCount() const override { return list_->ListCount(); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= list_->ListCount()) return nullptr;
    const auto found = entries_.find(index);
    if (found != entries_.end()) return QAccessible::accessibleInterface(found->second);
    auto* const entry = new EntryAccess(list_, index);
    entries_[index] = QAccessible::registerAccessibleInterface(entry);
    return entry;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    for (const auto& [index, id] : entries_) {
      if (QAccessible::accessibleInterface(id) == child) return index;
    }
    return -1;
  }
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    return child(list_->EntryAt(list_->viewport()->mapFromGlobal(QPoint(x, y))));
  }
  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    return list_->hasFocus() ? child(list_->ListIndex()) : nullptr;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? ToQt(list_->Text()) : QAccessibleWidget::text(kind);
  }

 private:
  ListBox* list_;
  mutable std::unordered_map<int, QAccessible::Id> entries_;
};

QAccessibleInterface* MakeAccess(const QString& /*class_name*/, QObject* object) {
  auto* const list = dynamic_cast<ListBox*>(object);
  return list == nullptr ? nullptr : new ListAccess(list);
}

}  // namespace

void InstallListAccess() { QAccessible::installFactory(MakeAccess); }

}  // namespace zarvo
