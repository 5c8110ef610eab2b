// What all controls have in common: place in twips, visibility, tool tip, mouse and key events.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform/twips.h"
#include "ui/toolkit/event.h"

namespace zarvo {

// Mouse buttons as the events give them.
enum class MouseButton { kNone = 0, kLeft = 1, kRight = 2, kMiddle = 4 };

struct MouseArgs {
  MouseButton button = MouseButton::kNone;  // of a move: the button held, left before the others
  int shift = 0;                            // shift state, see keys.h
  QPoint global{};                          // place of the pointer on the screen, in pixels
};

struct KeyArgs {
  int code = 0;   // key code, see keys.h
  int shift = 0;  // shift state
};

// Shows `text` without blanks at its ends, to the letter and line by line, as a tool tip of
// `widget` at a place on the screen.
void ShowTip(const QPoint& place, std::string_view text, QWidget* widget);

// The part that every control class adds to its widget. It watches the widget's events and raises
// them under the names that the windows' logic uses. Text is Windows-1252.
class Control {
 public:
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] QWidget* Widget() const { return widget_; }

  // Place within the parent, in twips. What was set is what is read, also where it isn't a whole
  // number of pixels.
  [[nodiscard]] int Left() const { return place_.left; }
  [[nodiscard]] int Top() const { return place_.top; }
  [[nodiscard]] int Width() const { return place_.width; }
  [[nodiscard]] int Height() const { return place_.height; }
  [[nodiscard]] TwipRect Place() const { return place_; }
  void SetLeft(int twips);
  void SetTop(int twips);
  void SetWidth(int twips);
  void SetHeight(int twips);
  void SetPlace(const TwipRect& place);

  // Whether the control itself is shown; it may still stand on a page that isn't.
  [[nodiscard]] bool Visible() const { return !widget_->isHidden(); }
  void SetVisible(bool visible) { widget_->setVisible(visible); }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  // Shown literally. Behind it stands what the control shows elided, for as long as it does.
  [[nodiscard]] const std::string& ToolTipText() const { return tool_tip_; }
  void SetToolTipText(std::string_view text);
  // The whole of a text that is shown elided; empty where nothing is.
  [[nodiscard]] virtual QString ElidedText() const { return {}; }

  // The name under which scripts find the widget, and the name that a screen reader says.
  void SetName(std::string_view object_name);
  void SetAccessibleName(std::string_view text);

  Event<const MouseArgs&> MouseDown;
  Event<const MouseArgs&> MouseUp;
  Event<const MouseArgs&> MouseMove;
  Event<const KeyArgs&> KeyDown;

 protected:
  // Which events of the widget are raised from here; a class that needs another order raises the
  // others itself.
  enum class Watch { kAll, kMouse, kToolTip };

  // `widget` is the object itself; it outlives this part only while it is destroyed.
  explicit Control(QWidget* widget, Watch watch = Watch::kAll);

 private:
  class Watcher;
  void Apply();

  QWidget* widget_;
  TwipRect place_;
  bool enabled_ = true;
  std::string tool_tip_;
  std::unique_ptr<Watcher> watcher_;
};

// The mouse button and shift state of an event.
MouseArgs MouseArgsOf(const QMouseEvent& event);

// Windows-1252 to the toolkit's text and back. A carriage return becomes a line break. Characters
// that Windows-1252 doesn't have become "?" on the way back.
QString ToQt(std::string_view text);
// The same for captions in which "&" would mark a key.
QString ToQtCaption(std::string_view text);
std::string FromQt(const QString& text);

}  // namespace zarvo
