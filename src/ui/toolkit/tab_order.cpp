#include "ui/toolkit/tab_order.h"

#include <algorithm>
#include <vector>

namespace zarvo {
namespace {

// Controls of one row have their middles within so many pixels.
constexpr int kRowSlack = 6;

int Middle(const QWidget* widget) { return widget->geometry().center().y(); }

std::vector<QWidget*> InReadingOrder(const QWidget& part) {
  std::vector<QWidget*> children;
  for (QObject* const child : part.children()) {
    auto* const widget = qobject_cast<QWidget*>(child);
    if (widget != nullptr && !widget->isWindow()) children.push_back(widget);
  }
  std::stable_sort(children.begin(), children.end(), [](const QWidget* left, const QWidget* right) {
    return Middle(left) < Middle(right);
  });
  for (auto row = children.begin(); row != children.end();) {
    const int limit = Middle(*row) + kRowSlack;
    const auto end = std::find_if(
        row, children.end(), [limit](const QWidget* widget) { return Middle(widget) > limit; });
    std::stable_sort(
        row, end, [](const QWidget* left, const QWidget* right) { return left->x() < right->x(); });
    row = end;
  }
  return children;
}

void Collect(QWidget* part, std::vector<QWidget*>& order) {
  if ((part->focusPolicy() & Qt::TabFocus) != 0) {
    order.push_back(part);
    return;
  }
  for (QWidget* const child : InReadingOrder(*part)) Collect(child, order);
}

}  // namespace

void OrderTabs(std::initializer_list<QWidget*> parts) {
  std::vector<QWidget*> order;
  for (QWidget* const part : parts) {
    if (part != nullptr) Collect(part, order);
  }
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace zarvo
