// Zarvo: wires the DOS world, the windows and the panels together.
#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <iostream>
#include <memory>
#include <set>
#include <string>

#include "catalogue/data_file.h"
#include "launch/launch_notes.h"
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

// The question about a command line that is longer than DOS hands on.
std::string LostOptions(const RunPlan& plan) {
  std::string text = "DOS hands an emulator no more than " + std::to_string(kLongestTail) +
                     " characters, and the options of this game are longer. It won't get these:\r";
  for (const std::string& option : plan.lost_options) text += "\r" + option;
  return text + "\r\rTurn some options off, or start the game all the same?";
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
    // What a start that was cut off has left; what can't be removed now is tried again.
    LaunchNotes(files_, files_.CurrentFolder()).Settle();
    main_.StartUp();
    main_.Appear();
  }

 private:
  MainActions Actions() {
    return {.sections = [this]() -> SectionHost& { return sections_; },
            .show_layouts = [this] { ShowLayouts(); },
            .show_about = [this] { AboutWindow(app_, DesktopOpener()).ShowModal(); },
            .autoload = [this] { AutoloadLayout(ToolsForLayouts()); },
            // Not quit(), which would first ask every open panel to close.
            .end_program = [] { QApplication::exit(); },
            .load_font = [this](auto done) { font_ = LoadFont(std::move(done)); }};
  }

  LayoutTools ToolsForLayouts() {
    return {.files = files_, .app = app_, .boxes = boxes_, .sections = sections_, .main = main_};
  }

  void ShowLayouts() {
    if (!layouts_ || layouts_->IsUnloaded()) layouts_ = MakeLayoutWindow(ToolsForLayouts());
    layouts_->ShowModeless();
  }

  // Asked once for a game, and again when other options are lost.
  bool MayCutOff(const RunPlan& plan) {
    if (plan.lost_options.empty()) return true;
    const std::string question = LostOptions(plan);
    const std::string game = files_.CurrentFolder() + "\r" + plan.first_word + question;
    if (cut_off_.contains(game)) return true;
    if (!boxes_.Ask(app_.Title(), question)) return false;
    cut_off_.insert(game);
    return true;
  }

  // Runs the batch file of a launch; an error is what the player should know of the run.
  Status RunAndWait() {
    const auto plan = PlanRun(files_, kBatchFile, ThisHost());
    if (!plan.ok()) return plan.error();
    if (!MayCutOff(*plan)) return Success();
    QElapsedTimer clock;
    clock.start();
    WaitingRunner runner;
    const auto outcome = CarryOut(*plan, runner);
    if (!outcome.ok()) return outcome.error();
    return JudgeRun(*plan, *outcome, std::chrono::milliseconds(clock.elapsed()));
  }

  std::future<void> font_;
  AppState app_;
  DosWorld files_;
  DesktopBoxes boxes_;
  MainWindow main_;
  Sections sections_;
  std::unique_ptr<Window> layouts_;
  // Games that may start without their last options.
  std::set<std::string> cut_off_;
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
  if (const std::string& missing = files->MissingFolders(); !missing.empty()) {
    DesktopBoxes().Warn(AppState().Title(), missing);
  }
  Program program(std::move(*files));
  program.Start();
  return QApplication::exec();
}

}  // namespace
}  // namespace zarvo

int main(int argc, char** argv) { return zarvo::Run(argc, argv); }
