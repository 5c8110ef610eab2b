#include "ui/toolkit/popup_menu.h"

#include <utility>

#include "ui/toolkit/control.h"
#include "ui/toolkit/input_gate.h"

namespace zarvo {

PopupMenu::PopupMenu(std::string_view object_name, const std::vector<std::string>& item_names) {
  menu_.setObjectName(ToQt(object_name));
  menu_.setAccessibleName(QStringLiteral("Facts about the game"));
  for (const std::string& name : item_names) {
    QAction* const item = name.empty() ? menu_.addSeparator() : menu_.addAction(QString());
    item->setObjectName(ToQt(name));
    items_.push_back(item);
  }
}

void PopupMenu::SetAccessibleName(std::string_view name) { menu_.setAccessibleName(ToQt(name)); }

void PopupMenu::SetCaption(int item, std::string_view caption) {
  items_[static_cast<std::size_t>(item)]->setText(ToQtCaption(caption));
}

void PopupMenu::SetAction(int item, std::function<void()> action) {
  QObject::connect(items_[static_cast<std::size_t>(item)], &QAction::triggered, std::move(action));
}

std::string PopupMenu::Caption(int item) const {
  return FromQt(items_[static_cast<std::size_t>(item)]->text().replace(QLatin1String("&&"),
                                                                       QLatin1String("&")));
}

void PopupMenu::ShowAt(QPoint global) {
  CountModal();
  menu_.exec(global);
}

}  // namespace zarvo
