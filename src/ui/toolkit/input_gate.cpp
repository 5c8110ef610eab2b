#include "ui/toolkit/input_gate.h"

#include <QCoreApplication>
#include <QEvent>

namespace zarvo {
namespace {

int running = 0;
int have_run = 0;
int modal_count = 0;

}  // namespace

bool ChildIsRunning() { return running > 0; }

int ChildrenRun() { return have_run; }

int ModalCount() { return modal_count; }

void CountModal() { ++modal_count; }

NoInput::NoInput() {
  CountModal();
  ++running;
  qApp->installEventFilter(this);
}

NoInput::~NoInput() {
  qApp->removeEventFilter(this);
  --running;
  ++have_run;
}

bool NoInput::eventFilter(QObject* watched, QEvent* event) {
  // The toolkit keeps count of the buttons that are down at its windows; only what it makes of
  // their events for the widgets is dropped.
  if (watched->isWindowType()) return false;
  switch (event->type()) {
    case QEvent::Close:
    case QEvent::Quit:
      event->ignore();
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::HoverLeave:
    case QEvent::ToolTip:
    case QEvent::InputMethod:
      return true;
    default:
      return false;
  }
}

}  // namespace zarvo
