#include "toolkit/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "toolkit/child_wait.h"
#include "toolkit/control.h"

namespace zarvo {
namespace {

int modal_count = 0;

// Follows the mouse with a window until the button is released, for desktops that can't do it
// themselves.
class Mover : public QObject {
 public:
  explicit Mover(QWidget* window) : window_(window), grip_(QCursor::pos() - window->pos()) {}

  void Follow() {
    qApp->installEventFilter(this);
    loop_.exec();
    qApp->removeEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease) loop_.quit();
    if (event->type() != QEvent::MouseMove) return false;
    const auto& mouse = static_cast<QMouseEvent&>(*event);
    if (mouse.buttons() == Qt::NoButton) {
      loop_.quit();
    } else {
      window_->move(mouse.globalPosition().toPoint() - grip_);
    }
    return true;
  }

 private:
  QWidget* window_;
  QPoint grip_;
  QEventLoop loop_;
};

// The press of the mouse that the desktop has taken over to move a window. The desktop keeps the
// release to itself, so that the button still looks held afterwards, up to the next press.
class TakenPress : public QObject {
 public:
  [[nodiscard]] bool Lasts() const { return lasts_; }

  void Begin() {
    lasts_ = true;
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
      lasts_ = false;
      qApp->removeEventFilter(this);
    }
    return false;
  }

 private:
  bool lasts_ = false;
};

TakenPress& Taken() {
  static TakenPress taken;
  return taken;
}

// A value that was set is what is read, until something else has changed the pixels.
int ReadBack(int set_twips, int pixels) {
  return ToPixels(set_twips) == pixels ? set_twips : ToTwips(pixels);
}

}  // namespace

int ModalCount() { return modal_count; }

void CountModal() { ++modal_count; }

Window::Window(WindowFrame frame, std::string_view object_name)
    : QWidget(nullptr, frame == WindowFrame::kNone
                           ? Qt::Window | Qt::FramelessWindowHint
                           : Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                 Qt::WindowCloseButtonHint) {
  setObjectName(ToQt(object_name));
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
}

std::string Window::Caption() const { return FromQt(windowTitle()); }

void Window::SetCaption(std::string_view caption) {
  setWindowTitle(ToQt(caption));
  setAccessibleName(ToQt(caption));
}

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
  show();
  raise();
  activateWindow();
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

void Window::ShowModal() {
  CountModal();
  setWindowModality(Qt::ApplicationModal);
  winId();
  if (const QWidget* const owner = QApplication::activeWindow()) {
    windowHandle()->setTransientParent(owner->windowHandle());
    move(owner->frameGeometry().center() - rect().center());
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
  if (Taken().Lasts()) return;
  CountModal();
  if (windowHandle() != nullptr && windowHandle()->startSystemMove()) {
    Taken().Begin();
  } else {
    Mover(this).Follow();
  }
}

void Window::SetAlwaysOnTop(bool on) {
  winId();
  windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
}

void Window::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), kNight.ToQt());
  if (background_.IsEmpty()) return;
  if (ground_.isNull() || ground_.devicePixelRatio() != devicePixelRatioF()) {
    ground_ = background_.ToPixmap(background_.NaturalSize(), devicePixelRatioF());
  }
  painter.drawPixmap(0, 0, ground_);
}

void Window::mouseMoveEvent(QMouseEvent* event) {
  if (!ChildIsRunning()) MouseMove.Raise(MouseArgsOf(*event));
}

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
