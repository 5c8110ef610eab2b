// zarvo-mame: becomes today's MAME with the command line of one of the DOS emulators.
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/real_games.h"
#include "bridge/translation.h"
#include "core/platform/program.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

constexpr int kWrongUse = 2;
constexpr int kNoMame = 127;  // what a shell gives for a program that it doesn't find

std::string Names() {
  std::string names;
  for (const Emulator& emulator : Emulators()) {
    names += (names.empty() ? "" : "|") + FoldCase(emulator.word);
  }
  return names;
}

std::string Usage() {
  return "Usage: zarvo-mame --as " + Names() +
         " [--print] -- WORDS...\n"
         "       zarvo-mame --table\n"
         "       zarvo-mame --lay-out FOLDER\n\n"
         "Becomes today's MAME with the command line that one of the DOS emulators would get in "
         "the\n"
         "current folder, its own. A mame.ini in that folder counts before all others.\n\n"
         "  --as NAME   whose command line it is\n"
         "  --print     prints the line of today's MAME and ends\n"
         "  --table     prints what each option is today\n"
         "  --lay-out   makes the emulators' folders that are missing on the drives of Zarvo's "
         "FOLDER,\n"
         "              with today's MAME as each emulator, and says what it made\n"
         "  --help      this text\n"
         "  --version   the version\n";
}

int Refuse(const std::string& reason) {
  std::cerr << "zarvo-mame: " << reason << " --help tells more.\n";
  return kWrongUse;
}

const Emulator* FindByName(std::string_view name) {
  for (const Emulator& emulator : Emulators()) {
    if (EqualNoCase(emulator.word, name)) return &emulator;
  }
  return nullptr;
}

// The emulator's folder in front of those in which MAME of Debian looks.
std::string IniPath() {
  std::error_code failure;
  const std::string folder = std::filesystem::current_path(failure).string();
  const char* const home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
  std::string path = folder;
  if (home != nullptr) path += std::string(";") + home + "/.mame";
  return path + ";/etc/mame";
}

// Returns only if there is no such program.
int Become(std::vector<std::string> words) {
  words.insert(words.begin(), "mame");
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  // Debian's folder of games isn't on everybody's search path.
  execvp("mame", arguments.data());
  if (errno == ENOENT) execv("/usr/games/mame", arguments.data());
  if (errno == ENOENT) {
    std::cerr << "MAME isn't installed. Please install the package mame:\n"
                 "  sudo apt install mame\n";
    return kNoMame;
  }
  std::cerr << "zarvo-mame: mame can't be run: "
            << std::error_code(errno, std::generic_category()).message() << '\n';
  return EXIT_FAILURE;
}

void Print(const std::vector<std::string>& words) {
  std::cout << "mame";
  for (const std::string& word : words) {
    const bool plain = word.find_first_of(" '\"\\$;*?&|<>()`!#~") == std::string::npos;
    std::cout << (plain ? " " : " '") << word << (plain ? "" : "'");
  }
  std::cout << '\n';
}

// The program's own place, for the scripts that call it; its name where that can't be told.
std::string OwnPath() {
  std::error_code failure;
  const auto path = std::filesystem::read_symlink("/proc/self/exe", failure);
  return failure ? "zarvo-mame" : path.string();
}

std::string TextOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int LayOut(std::string_view folder) {
  std::error_code failure;
  const std::string full = std::filesystem::absolute(folder, failure).string();
  auto files = DosWorld::ForProgramFolder(full);
  if (!files.ok()) return Refuse(files.error().message);
  const RealGames real{.bridge = OwnPath(),
                       .mame_ini = TextOf("/etc/mame/mame.ini"),
                       .say = [](const std::string& line) { std::cout << ToUtf8(line) << '\n'; }};
  const ProgramFolders folders{files->CurrentFolder()};
  return LayOutRealGames(*files, folders, real) ? EXIT_SUCCESS : EXIT_FAILURE;
}

int Run(std::span<const std::string_view> arguments) {
  const Emulator* emulator = nullptr;
  bool print = false;
  while (!arguments.empty() && arguments.front() != "--") {
    const std::string_view word = arguments.front();
    arguments = arguments.subspan(1);
    if (word == "--help" || word == "-h") {
      std::cout << Usage();
      return EXIT_SUCCESS;
    }
    if (word == "--version") {
      std::cout << "zarvo-mame " << ProgramVersion << '\n';
      return EXIT_SUCCESS;
    }
    if (word == "--table") {
      std::cout << TranslationTable();
      return EXIT_SUCCESS;
    }
    if (word == "--lay-out" && arguments.size() == 1) return LayOut(arguments.front());
    if (word == "--print") {
      print = true;
    } else if (word == "--as" && !arguments.empty()) {
      emulator = FindByName(arguments.front());
      if (emulator == nullptr) {
        return Refuse("it knows no emulator \"" + std::string(arguments.front()) + "\", only " +
                      Names() + ".");
      }
      arguments = arguments.subspan(1);
    } else {
      return Refuse("it takes no argument \"" + std::string(word) + "\".");
    }
  }
  if (emulator == nullptr) return Refuse("whose command line is it? Say --as and its name.");
  if (arguments.empty()) return Refuse("the emulator's words come behind --.");
  auto words = Translate(*emulator, arguments.subspan(1));
  if (!words.ok()) return Refuse(words.error().message);
  words->insert(words->begin() + 1, {"-inipath", IniPath()});
  if (!print) return Become(std::move(*words));
  Print(*words);
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace zarvo

int main(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  return zarvo::Run(arguments);
}
