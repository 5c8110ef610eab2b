// Zarvo: wires the DOS world, the windows and the panels together.
#include <QApplication>
#include <QDateTime>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include "catalogue/data_file.h"
#include "layouts/layout_window.h"
#include "panel/sections.h"
#include "platform/child_process.h"
#include "platform/dos_world.h"
#include "shell/about_window.h"
#include "shell/main_window.h"
#include "toolkit/child_wait.h"
#include "toolkit/desktop_boxes.h"
#include "toolkit/style.h"

namespace zarvo {
namespace {

ClockTime LocalTime() {
  const QDateTime now = QDateTime::currentDateTime();
  return {.year = now.date().year(),
          .month = now.date().month(),
          .day = now.date().day(),
          .hour = now.time().hour(),
          .minute = now.time().minute(),
          .second = now.time().second()};
}

// The whole program: its state, and the windows that exist once.
class Program {
 public:
  explicit Program(DosWorld files)
      : files_(std::move(files)),
        main_(
            files_, app_, boxes_,
            [this](const EmulatorProfile& profile) { return ReadHeader(files_, app_, profile); },
            Actions()),
        sections_(
            files_, app_, boxes_, main_,
            [this](std::string_view /*command_line*/) { return RunAndWait(); }, LocalTime) {}

  void Start() {
    main_.StartUp();
    main_.ShowModeless();
  }

 private:
  MainActions Actions() {
    return {.sections = [this]() -> SectionHost& { return sections_; },
            .show_layouts = [this] { ShowLayouts(); },
            .show_about = [this] { AboutWindow(app_, DesktopOpener()).ShowModal(); },
            .autoload = [this] { AutoloadLayout(ToolsForLayouts()); },
            // Not quit(), which would first ask every open panel to close.
            .end_program = [] { QApplication::exit(); }};
  }

  LayoutTools ToolsForLayouts() {
    return {.files = files_, .app = app_, .boxes = boxes_, .sections = sections_, .main = main_};
  }

  void ShowLayouts() {
    if (!layouts_ || layouts_->IsUnloaded()) layouts_ = MakeLayoutWindow(ToolsForLayouts());
    layouts_->ShowModeless();
  }

  Status RunAndWait() {
    const auto plan = PlanRun(files_, kBatchFile, ThisHost());
    if (!plan.ok()) return plan.error();
    WaitingRunner runner;
    const auto outcome = CarryOut(*plan, runner);
    if (!outcome.ok()) return outcome.error();
    return Success();
  }

  AppState app_;
  DosWorld files_;
  DesktopBoxes boxes_;
  MainWindow main_;
  Sections sections_;
  std::unique_ptr<Window> layouts_;
};

int Run(int argc, char** argv) {
  PrepareApplication();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  DressUp(application);
  std::error_code failure;
  const std::string folder = std::filesystem::current_path(failure).string();
  auto files =
      failure ? Result<DosWorld>(Error{"The current folder can't be read: " + failure.message()})
              : DosWorld::ForProgramFolder(folder);
  if (!files.ok()) {
    DesktopBoxes().Warn(AppState().Title(), files.error().message);
    return EXIT_FAILURE;
  }
  Program program(std::move(*files));
  program.Start();
  return QApplication::exec();
}

}  // namespace
}  // namespace zarvo

int main(int argc, char** argv) { return zarvo::Run(argc, argv); }
