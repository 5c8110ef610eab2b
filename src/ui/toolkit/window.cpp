#include "ui/toolkit/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "ui/toolkit/control.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

// The move of a window with the mouse, from its first step to the release of the button. Where the
// desktop doesn't move it, the window follows the pointer by itself.
class Mover : public QObject {
 public:
  void Start(QWidget* window) {
    // While the desktop moves the window, and once more before it tells the release, moves with the
    // button down still come in: a second request would take the next click of the player.
    if (busy_) return;
    busy_ = true;
    const bool by_desktop =
        window->windowHandle() != nullptr && window->windowHandle()->startSystemMove();
    window_ = by_desktop ? nullptr : window;
    grip_ = QCursor::pos() - window->pos();
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    const bool move = event->type() == QEvent::MouseMove;
    if (move && static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton) {
      if (window_ == nullptr) return false;
      window_->move(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - grip_);
      return true;
    }
    if (move || event->type() == QEvent::MouseButtonRelease ||
        event->type() == QEvent::MouseButtonPress) {
      qApp->removeEventFilter(this);
      busy_ = false;
    }
    return false;
  }

 private:
  bool busy_ = false;
  QPointer<QWidget> window_;  // that follows by itself
  QPoint grip_;
};

// A value that was set is what is read, until something else has changed the pixels.
int ReadBack(int set_twips, int pixels) {
  return ToPixels(set_twips) == pixels ? set_twips : ToTwips(pixels);
}

}  // namespace

QWidget* DialogOwner() {
  static QPointer<QWidget> owner;
  // A dialog that has just gone may still count as the active window.
  QWidget* const active = QApplication::activeWindow();
  if (active != nullptr && active->isVisible()) owner = active;
  return owner != nullptr && owner->isVisible() ? owner.data() : nullptr;
}

Window::Window(WindowFrame frame, std::string_view object_name)
    : QWidget(nullptr, frame == WindowFrame::kNone
                           ? Qt::Window | Qt::FramelessWindowHint
                           : Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                 Qt::WindowCloseButtonHint) {
  setObjectName(ToQt(object_name));
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
  // Windows stand side by side; the mouse is told what lies under it in each.
  setAttribute(Qt::WA_AlwaysShowToolTips);
}

std::string Window::Caption() const { return FromQt(windowTitle()); }

void Window::SetCaption(std::string_view caption) { setWindowTitle(ToQt(caption)); }

int Window::Left() const { return ReadBack(place_.left, x()); }
int Window::Top() const { return ReadBack(place_.top, y()); }
int Window::Width() const { return ReadBack(place_.width, width()); }
int Window::Height() const { return ReadBack(place_.height, height()); }

void Window::SetLeft(int twips) {
  place_.top = Top();
  place_.left = twips;
  ApplyPlace();
}

void Window::SetTop(int twips) {
  place_.left = Left();
  place_.top = twips;
  ApplyPlace();
}

void Window::SetWidth(int twips) {
  place_.width = twips;
  place_.height = Height();
  ApplySize();
}

void Window::SetHeight(int twips) {
  place_.height = twips;
  place_.width = Width();
  ApplySize();
}

void Window::ApplyPlace() { move(ToPixels(place_.left), ToPixels(place_.top)); }

void Window::ApplySize() {
  setFixedSize(std::max(1, ToPixels(place_.width)), std::max(1, ToPixels(place_.height)));
}

void Window::SetBackground(const Picture& picture) {
  background_ = picture;
  ground_ = {};
  update();
}

void Window::ShowModeless() {
  unloaded_ = false;
  BringOnScreen();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void Window::ShowGround() {
  for (QWidget* const child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (child->isHidden()) continue;
    child->hide();
    child->installEventFilter(this);
    undrawn_.push_back(child);
  }
  ShowModeless();
  DrawGround();
  for (QWidget* const control : undrawn_) control->show();
}

void Window::DrawControls() {
  for (QWidget* const control : std::exchange(undrawn_, {})) control->removeEventFilter(this);
  update();
}

bool Window::eventFilter(QObject* /*control*/, QEvent* event) {
  return event->type() == QEvent::Paint;
}

// A window whose screen has gone would be out of reach.
void Window::BringOnScreen() {
  const QRect frame(pos(), size());
  const auto screens = QGuiApplication::screens();
  const bool seen = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    return screen->geometry().intersects(frame);
  });
  if (!seen && !screens.isEmpty()) move(screens.front()->availableGeometry().topLeft());
}

// How much of the window the screens show, from 0 to 1.
double Window::SeenShare() const {
  const QRect frame(pos(), size());
  double seen = 0;
  for (const QScreen* const screen : QGuiApplication::screens()) {
    const QRect part = screen->geometry() & frame;
    seen += double{1} * part.width() * part.height();
  }
  return seen / (double{1} * frame.width() * frame.height());
}

bool Window::IsHalfSeen() const { return SeenShare() >= 0.5; }

bool Window::IsWhollySeen() const { return SeenShare() >= 1; }

void Window::BringWhollyOnScreen() {
  const QRect room = screen()->availableGeometry();
  move(std::clamp(x(), room.left(), std::max(room.left(), room.right() + 1 - width())),
       std::clamp(y(), room.top(), std::max(room.top(), room.bottom() + 1 - height())));
}

// Over the middle of its owner, but wholly on the screen.
void Window::CentreOver(const QWidget& owner) {
  const QRect room = owner.screen()->availableGeometry();
  const QPoint place = owner.frameGeometry().center() - rect().center();
  const int furthest_x = std::max(room.left(), room.right() + 1 - width());
  const int furthest_y = std::max(room.top(), room.bottom() + 1 - height());
  move(std::clamp(place.x(), room.left(), furthest_x),
       std::clamp(place.y(), room.top(), furthest_y));
}

void Window::ShowModal() {
  CountModal();
  setWindowModality(Qt::ApplicationModal);
  winId();
  if (const QWidget* const owner = DialogOwner()) {
    windowHandle()->setTransientParent(owner->windowHandle());
    CentreOver(*owner);
  }
  unloaded_ = false;
  show();
  activateWindow();
  QEventLoop loop;
  loop_ = &loop;
  loop.exec();
  loop_ = nullptr;
}

void Window::UnloadWindow() {
  if (unloading_ || unloaded_) return;
  unloading_ = true;
  bool refused = false;
  Unload.Raise(refused);
  unloading_ = false;
  if (refused) return;
  unloaded_ = true;
  hide();
  if (loop_ != nullptr) loop_->quit();
}

void Window::MoveWithMouse() {
  static Mover mover;
  CountModal();
  mover.Start(this);
}

void Window::MoveByKey(const KeyArgs& key) {
  constexpr int kStep = 10;  // pixels
  switch (key.code) {
    case key::kLeft:
      return move(pos() + QPoint(-kStep, 0));
    case key::kRight:
      return move(pos() + QPoint(kStep, 0));
    case key::kUp:
      return move(pos() + QPoint(0, -kStep));
    case key::kDown:
      return move(pos() + QPoint(0, kStep));
    default:
      break;
  }
}

void Window::SetAlwaysOnTop(bool on) {
  winId();
  // The widget would make the window anew; it only has to know, for the next time it is shown.
  Qt::WindowFlags flags = windowFlags();
  overrideWindowFlags(flags.setFlag(Qt::WindowStaysOnTopHint, on));
  windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
}

void Window::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), kNight.ToQt());
  if (background_.IsEmpty()) return;
  DrawGround();
  painter.drawPixmap(0, 0, ground_);
}

void Window::DrawGround() {
  if (ground_.isNull() || ground_.devicePixelRatio() != devicePixelRatioF()) {
    ground_ = background_.ToPixmap(background_.NaturalSize(), devicePixelRatioF());
  }
}

void Window::mouseMoveEvent(QMouseEvent* event) { MouseMove.Raise(MouseArgsOf(*event)); }

void Window::mousePressEvent(QMouseEvent* event) { event->accept(); }

void Window::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

void Window::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && default_action_) {
    default_action_();
  } else if (event->key() == Qt::Key_Escape && cancel_action_) {
    cancel_action_();
  } else {
    QWidget::keyPressEvent(event);
  }
}

// A control that lies outside of a window made small is passed over.
bool Window::focusNextPrevChild(bool next) {
  QWidget* const start = focusWidget();
  while (QWidget::focusNextPrevChild(next)) {
    const QWidget* const reached = focusWidget();
    const QRect place(reached->mapTo(this, QPoint()), reached->size());
    if (reached == start || rect().intersects(place)) return true;
  }
  return false;
}

void Window::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!ChildIsRunning()) UnloadWindow();
}

}  // namespace zarvo
