#include "ui/toolkit/child_wait.h"

#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>

#include "ui/toolkit/input_gate.h"

namespace zarvo {
namespace {

QStringList ToArguments(const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) {
    list << QFile::decodeName(QByteArray::fromStdString(argument));
  }
  return list;
}

}  // namespace

RunOutcome WaitingRunner::Run(const HostCommand& command) {
  QProcess child;
  child.setProgram(QFile::decodeName(QByteArray::fromStdString(command.program.native())));
  child.setArguments(ToArguments(command.arguments));
  child.setWorkingDirectory(QFile::decodeName(QByteArray::fromStdString(command.folder.native())));
  child.setProcessChannelMode(QProcess::MergedChannels);
  child.setInputChannelMode(QProcess::ManagedInputChannel);
  child.setStandardInputFile(QProcess::nullDevice());

  const NoInput no_input;
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
  return {.started = child.error() != QProcess::FailedToStart,
          .crashed = child.exitStatus() == QProcess::CrashExit,
          .exit_code = child.exitCode(),
          .last_output = output.toStdString()};
}

}  // namespace zarvo
