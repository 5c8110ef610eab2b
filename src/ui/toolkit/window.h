// Windows: placed in twips, shown modal or not, and unloaded.
#pragma once

#include <QEventLoop>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <string>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/control.h"
#include "ui/toolkit/picture.h"

namespace zarvo {

enum class WindowFrame {
  kNone,     // main window and panels: nothing but their own surface
  kDesktop,  // dialogs: title bar of the desktop, fixed size
};

// A window has the size given, which the player can't change by its edge. Left and Top are its
// place on the screen; they follow when the player moves it.
class Window : public QWidget {
 public:
  Window(WindowFrame frame, std::string_view object_name);

  [[nodiscard]] std::string Caption() const;
  void SetCaption(std::string_view caption);

  // Twips. What was set is what is read until the window is moved or sized by something else.
  [[nodiscard]] int Left() const;
  [[nodiscard]] int Top() const;
  [[nodiscard]] int Width() const;
  [[nodiscard]] int Height() const;
  void SetLeft(int twips);
  void SetTop(int twips);
  void SetWidth(int twips);
  void SetHeight(int twips);

  // A picture on the window's ground behind the controls, in its own size from the top left.
  void SetBackground(const Picture& picture);

  // Also brings back a window that was minimised.
  void ShowModeless();
  // Whether the screens show at least half of the window, or all of it, at its place.
  [[nodiscard]] bool IsHalfSeen() const;
  [[nodiscard]] bool IsWhollySeen() const;
  void BringWhollyOnScreen();
  // As ShowModeless, for the first window of the program, which doesn't wait for its texts: the
  // controls work, but only the ground is drawn until DrawControls.
  void ShowGround();
  void DrawControls();
  // Returns when the window has been unloaded. No other window takes input meanwhile.
  void ShowModal();
  // Raises Unload; unless a handler refuses, the window goes. Safe inside a handler of the window.
  // The object stays, hidden, until its owner drops it.
  void UnloadWindow();
  [[nodiscard]] bool IsUnloaded() const { return unloaded_; }

  // The left button is down on the surface: the window moves with the mouse until it is released.
  void MoveWithMouse();
  // Moves the window a step where the key is an arrow.
  void MoveByKey(const KeyArgs& key);

  // Into the top-most band of the desktop or out of it, without a change of place, size or focus.
  void SetAlwaysOnTop(bool on);

  // The button that Enter presses and the one that Escape presses, where no control takes the key.
  void SetDefaultAction(std::function<void()> action) { default_action_ = std::move(action); }
  void SetCancelAction(std::function<void()> action) { cancel_action_ = std::move(action); }

  Event<const MouseArgs&> MouseMove;  // over the window's own surface
  Event<bool&> Unload;                // set the argument to refuse

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* control, QEvent* event) override;

 private:
  void ApplyPlace();
  void ApplySize();
  void BringOnScreen();
  [[nodiscard]] double SeenShare() const;
  void CentreOver(const QWidget& owner);
  void DrawGround();

  TwipRect place_;  // as set
  Picture background_;
  QPixmap ground_;       // the picture in the pixels of the screen
  QWidgetList undrawn_;  // the controls between ShowGround and DrawControls
  bool unloaded_ = false;
  bool unloading_ = false;
  QEventLoop* loop_ = nullptr;  // of ShowModal
  std::function<void()> default_action_;
  std::function<void()> cancel_action_;
};

// The window over which a dialog or box belongs: the active one, or between two boxes, while none
// is active yet, the owner of the last one. May be nullptr.
QWidget* DialogOwner();

}  // namespace zarvo
