// Zarvo: wires the DOS world, the windows and the panels together.
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QSocketNotifier>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "core/catalogue/catalogue.h"
#include "core/launch/launch_notes.h"
#include "core/platform/child_process.h"
#include "core/platform/dos_world.h"
#include "core/platform/dosbox.h"
#include "core/platform/text.h"
#include "ui/layouts/layout_window.h"
#include "ui/panel/sections.h"
#include "ui/shell/about_window.h"
#include "ui/shell/main_window.h"
#include "ui/toolkit/child_wait.h"
#include "ui/toolkit/desktop_boxes.h"
#include "ui/toolkit/display.h"
#include "ui/toolkit/style.h"

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
            files_, folders_, boxes_,
            [this](const Emulator& emulator) {
              return Catalogue(files_, folders_, emulator).Header();
            },
            Actions()),
        sections_(
            files_, folders_, boxes_, main_,
            [this](std::string_view /*command_line*/) { return RunAndWait(); }, LocalTime) {}

  void SaveWithoutQuestions() { sections_.SaveWithoutQuestions(); }

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
            .show_about = [] { AboutWindow(DesktopOpener()).ShowModal(); },
            .autoload = [this] { AutoloadLayout(ToolsForLayouts()); },
            // Not quit(), which would first ask every open panel to close.
            .end_program = [] { QApplication::exit(); },
            .load_font = [this](auto done) { font_ = LoadFont(std::move(done)); }};
  }

  LayoutTools ToolsForLayouts() {
    return {.files = files_,
            .folders = folders_,
            .boxes = boxes_,
            .sections = sections_,
            .main = main_};
  }

  void ShowLayouts() {
    if (!layouts_ || layouts_->IsUnloaded()) layouts_ = MakeLayoutWindow(ToolsForLayouts());
    layouts_->ShowModeless();
  }

  // Asked once for a game, and again when other options are lost.
  bool MayCutOff(const RunPlan& plan) {
    if (plan.lost_options.empty()) return true;
    const std::string question = LostOptions(plan);
    const std::string game = files_.CurrentFolder().Text() + "\r" + plan.first_word + question;
    if (cut_off_.contains(game)) return true;
    if (!boxes_.Ask(ProgramTitle(), question)) return false;
    cut_off_.insert(game);
    return true;
  }

  // Runs the batch file of a launch; an error is what the player should know of the run.
  Status RunAndWait() {
    const auto plan = PlanRun(files_, FileName::Own(kBatchFile), ThisHost());
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
  ProgramFolders folders_;
  DosWorld files_;
  DesktopBoxes boxes_;
  MainWindow main_;
  Sections sections_;
  std::unique_ptr<Window> layouts_;
  // Games that may start without their last options.
  std::set<std::string> cut_off_;
};

// What has to be saved where the program is ended from outside.
Program* running = nullptr;

void SaveRunning() {
  if (running != nullptr) std::exchange(running, nullptr)->SaveWithoutQuestions();
}

int signal_pipe[2] = {-1, -1};  // NOLINT(modernize-avoid-c-arrays): the form of pipe()

void NoteSignal(int number) {
  const auto byte = static_cast<unsigned char>(number);
  [[maybe_unused]] const ssize_t written = write(signal_pipe[1], &byte, 1);
}

// Saves when the program is told to end: by a signal, by the end of the desktop's session, or by
// the X server's end, after which Qt calls exit().
void SaveAtAnyEnd(QApplication& application, QLockFile& lock) {
  std::atexit(SaveRunning);
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &application,
                   [] { running->SaveWithoutQuestions(); });
  if (pipe2(signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* const notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, &application);
  QObject::connect(notifier, &QSocketNotifier::activated, &application, [&lock] {
    unsigned char number = 0;
    if (read(signal_pipe[0], &number, 1) != 1) return;
    SaveRunning();
    lock.unlock();
    // At once: a box, a picker or a running game may stand in the way of a return to main().
    std::_Exit(128 + number);
  });
  for (const int number : {SIGTERM, SIGHUP, SIGINT}) std::signal(number, NoteSignal);
}

// Whether the folder is this program's alone. One that can't be written needs no lock.
bool TakeFolder(QLockFile& lock) {
  lock.setStaleLockTime(0);  // a lock counts as long as its owner lives
  return lock.tryLock(0) || lock.error() != QLockFile::LockFailedError;
}

int RunInFolder(QApplication& application, const std::string& folder) {
  const auto refuse = [](const std::string& reason) {
    DesktopBoxes().Warn(ProgramTitle(), reason);
    return EXIT_FAILURE;
  };
  auto files = DosWorld::ForProgramFolder(folder);
  if (!files.ok()) return refuse(files.error().message);
  QLockFile lock(QDir(QFile::decodeName(folder.c_str())).filePath(QStringLiteral("zarvo.lock")));
  if (!TakeFolder(lock)) {
    return refuse("Zarvo is already running in this folder:\r" + ForMessage(folder) +
                  "\r\rTwo at a time would undo each other's changes.");
  }
  if (const std::string& missing = files->MissingFolders(); !missing.empty()) {
    DesktopBoxes().Warn(ProgramTitle(), missing);
  }
  Program program(std::move(*files));
  running = &program;
  SaveAtAnyEnd(application, lock);
  program.Start();
  const int status = QApplication::exec();
  running = nullptr;
  return status;
}

// What a command line of today's programs asks for; nothing if windows are wanted.
std::optional<int> Answer(int argc, char** argv) {
  if (argc < 2) return std::nullopt;
  const std::string_view word = argv[1];
  if (argc == 2 && (word == "--help" || word == "-h")) {
    std::cout << "Usage: zarvo\n"
                 "Shows the games of five arcade emulators and starts them. Its files are in the "
                 "folder\nin which it is started; zarvo-home starts it in ~/Zarvo.\n\n"
                 "  --help     this text\n  --version  the version\n";
    return EXIT_SUCCESS;
  }
  if (argc == 2 && word == "--version") {
    std::cout << ProgramName << ' ' << ProgramVersion << '\n';
    return EXIT_SUCCESS;
  }
  std::cerr << "zarvo: it takes no argument \"" << word << "\"; --help tells more\n";
  return 2;
}

int Run(int argc, char** argv) {
  if (const auto answered = Answer(argc, argv)) return *answered;
  if (const std::string reason = ChooseDisplay(); !reason.empty()) {
    std::cerr << "zarvo: " << reason << '\n';
    return EXIT_FAILURE;
  }
  PrepareApplication();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  DressUp(application);
  std::error_code failure;
  const std::string folder = std::filesystem::current_path(failure).string();
  if (failure) {
    DesktopBoxes().Warn(ProgramTitle(), "The current folder can't be read: " + failure.message());
    return EXIT_FAILURE;
  }
  return RunInFolder(application, folder);
}

}  // namespace
}  // namespace zarvo

int main(int argc, char** argv) { return zarvo::Run(argc, argv); }
