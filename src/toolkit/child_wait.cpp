#include "toolkit/child_wait.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include "toolkit/window.h"

namespace zarvo {
namespace {

int running = 0;
int have_run = 0;

// Drops what the player does while a child runs; nothing of it is delivered later.
class Deaf : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
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
};

QStringList ToArguments(const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) {
    list << QFile::decodeName(QByteArray::fromStdString(argument));
  }
  return list;
}

}  // namespace

bool ChildIsRunning() { return running > 0; }

int ChildrenRun() { return have_run; }

RunOutcome WaitingRunner::Run(const HostCommand& command) {
  QProcess child;
  child.setProgram(QFile::decodeName(QByteArray::fromStdString(command.program)));
  child.setArguments(ToArguments(command.arguments));
  child.setWorkingDirectory(QFile::decodeName(QByteArray::fromStdString(command.folder)));
  child.setProcessChannelMode(QProcess::MergedChannels);
  child.setInputChannelMode(QProcess::ManagedInputChannel);
  child.setStandardInputFile(QProcess::nullDevice());

  CountModal();
  Deaf deaf;
  qApp->installEventFilter(&deaf);
  ++running;
  QEventLoop loop;
  // Read as it comes, so that a child that prints a lot isn't held up; only the end is kept.
  QByteArray output;
  const auto take = [&] { output = (output + child.readAll()).right(int{kKeptOutput}); };
  QObject::connect(&child, &QProcess::readyRead, &loop, take);
  QObject::connect(&child, &QProcess::finished, &loop, [&loop] { loop.quit(); });
  QObject::connect(&child, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) loop.quit();
  });
  child.start();
  if (child.state() != QProcess::NotRunning) loop.exec();
  // What came in while the child ended is still on its way: it belongs to the run.
  QGuiApplication::sync();
  QCoreApplication::processEvents();
  take();
  --running;
  ++have_run;
  qApp->removeEventFilter(&deaf);
  return {.started = child.error() != QProcess::FailedToStart,
          .crashed = child.exitStatus() == QProcess::CrashExit,
          .exit_code = child.exitCode(),
          .last_output = output.toStdString()};
}

}  // namespace zarvo
