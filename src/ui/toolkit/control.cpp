#include "ui/toolkit/control.h"

#include <QEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "core/platform/text.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/keys.h"

namespace zarvo {

QString ToQt(std::string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char c : text) {
    const char32_t unicode = ToUnicode(static_cast<unsigned char>(c));
    result += c == '\r' ? QChar(u'\n') : QChar(static_cast<char16_t>(unicode));
  }
  return result;
}

QString ToQtCaption(std::string_view text) {
  return ToQt(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

std::string FromQt(const QString& text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (const uint code_point : text.toUcs4()) {
    result += static_cast<char>(FromUnicode(code_point).value_or('?'));
  }
  return result;
}

MouseArgs MouseArgsOf(const QMouseEvent& event) {
  MouseArgs args;
  args.shift = ShiftStateOf(event.modifiers());
  args.global = event.globalPosition().toPoint();
  const bool move = event.type() == QEvent::MouseMove;
  const Qt::MouseButtons buttons = move ? event.buttons() : Qt::MouseButtons(event.button());
  if (buttons.testFlag(Qt::LeftButton)) {
    args.button = MouseButton::kLeft;
  } else if (buttons.testFlag(Qt::RightButton)) {
    args.button = MouseButton::kRight;
  } else if (buttons.testFlag(Qt::MiddleButton)) {
    args.button = MouseButton::kMiddle;
  }
  return args;
}

void ShowTip(const QPoint& place, std::string_view text, QWidget* widget) {
  constexpr std::size_t kLongestLine = 80;
  // Escaped, since the toolkit would take some texts for marked-up ones.
  const QString shown =
      ToQt(TrimBlanks(text)).toHtmlEscaped().replace(u'\n', QLatin1String("<br>"));
  const QString paragraph = text.size() <= kLongestLine
                                ? QStringLiteral("<p style=\"white-space:nowrap\">%1</p>")
                                : QStringLiteral("<p>%1</p>");
  QToolTip::showText(place, paragraph.arg(shown), widget);
}

class Control::Watcher : public QObject {
 public:
  Watcher(Control& control, Watch watch) : control_(control), watch_(watch) {}

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::ToolTip) {
      return ShowToolTip(static_cast<QHelpEvent&>(*event).globalPos());
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent&>(*event).key() == Qt::Key_F1) {
      ShowToolTip(control_.widget_->mapToGlobal(control_.widget_->rect().bottomLeft()));
    }
    if (ChildIsRunning() || !control_.widget_->isEnabled() || watch_ == Watch::kToolTip)
      return false;
    switch (event->type()) {
      case QEvent::MouseButtonPress:
        control_.MouseDown.Raise(MouseArgsOf(static_cast<QMouseEvent&>(*event)));
        break;
      case QEvent::MouseButtonRelease:
        control_.MouseUp.Raise(MouseArgsOf(static_cast<QMouseEvent&>(*event)));
        break;
      case QEvent::MouseMove:
        control_.MouseMove.Raise(MouseArgsOf(static_cast<QMouseEvent&>(*event)));
        break;
      case QEvent::KeyPress:
        if (watch_ == Watch::kAll) RaiseKey(static_cast<QKeyEvent&>(*event));
        break;
      default:
        break;
    }
    return false;
  }

 private:
  void RaiseKey(const QKeyEvent& event) {
    control_.KeyDown.Raise({.code = KeyCodeOf(event), .shift = ShiftStateOf(event)});
  }

  bool ShowToolTip(const QPoint& place) {
    const std::string elided = FromQt(control_.ElidedText());
    std::string tip = control_.tool_tip_;
    if (!elided.empty()) tip += (tip.empty() ? "" : "\n") + elided;
    if (tip.empty()) return false;
    ShowTip(place, tip, control_.widget_);
    return true;
  }

  Control& control_;
  Watch watch_;
};

Control::Control(QWidget* widget, Watch watch)
    : widget_(widget), watcher_(std::make_unique<Watcher>(*this, watch)) {
  widget_->setMouseTracking(true);
  widget_->setAttribute(Qt::WA_NoMousePropagation);
  widget_->installEventFilter(watcher_.get());
}

Control::~Control() = default;

void Control::Apply() {
  const int left = ToPixels(place_.left);
  const int top = ToPixels(place_.top);
  widget_->setGeometry(left, top, ToPixels(place_.left + place_.width) - left,
                       ToPixels(place_.top + place_.height) - top);
}

void Control::SetLeft(int twips) {
  place_.left = twips;
  Apply();
}

void Control::SetTop(int twips) {
  place_.top = twips;
  Apply();
}

void Control::SetWidth(int twips) {
  place_.width = twips;
  Apply();
}

void Control::SetHeight(int twips) {
  place_.height = twips;
  Apply();
}

void Control::SetPlace(const TwipRect& place) {
  place_ = place;
  Apply();
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  widget_->setEnabled(enabled);
}

void Control::SetToolTipText(std::string_view text) {
  tool_tip_ = text;
  widget_->setToolTip(ToQt(text));
}

void Control::SetName(std::string_view object_name) { widget_->setObjectName(ToQt(object_name)); }

void Control::SetAccessibleName(std::string_view text) { widget_->setAccessibleName(ToQt(text)); }

}  // namespace zarvo
