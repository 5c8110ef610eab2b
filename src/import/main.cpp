// zarvo-import: makes a data file for Zarvo from the list that an emulator prints about itself.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <functional>

#include "core/platform/host_file.h"
#include "import/catalogue_builder.h"
#include "import/data_file_writer.h"
#include "import/import_options.h"
#include "import/list_reader.h"

namespace zarvo {
namespace {

enum ExitStatus { kDone = 0, kBadList = 1, kWrongUse = 2, kNotWritten = 3 };

void Say(const std::string& text) { std::fputs(text.c_str(), stderr); }

int Complain(ExitStatus status, const std::string& message) {
  Say("zarvo-import: " + message + "\n");
  return status;
}

// The list's bytes from a descriptor; tells how far it is while somebody looks on and waits.
class ListSource : public ByteSource {
 public:
  // `games` is asked for the number of games so far; empty if nobody looks on.
  ListSource(int descriptor, std::function<std::size_t()> games)
      : descriptor_(descriptor), games_(std::move(games)) {}

  std::size_t Read(char* buffer, std::size_t size) override {
    const long got = ReadSome(descriptor_, buffer, size);
    if (got < 0) failure_ = LastError().message;
    if (got <= 0) return 0;
    total_ += static_cast<std::size_t>(got);
    if (games_) ShowProgress();
    return static_cast<std::size_t>(got);
  }
  [[nodiscard]] bool Failed() const override { return !failure_.empty(); }

  // Why reading ended before the end of the list; empty if it didn't.
  [[nodiscard]] const std::string& Failure() const { return failure_; }
  void ClearProgress() const {
    if (is_shown_) Say("\r\033[K");
  }

 private:
  void ShowProgress() {
    constexpr std::chrono::milliseconds kStep{100};
    const auto now = std::chrono::steady_clock::now();
    if (now < next_) return;
    next_ = now + kStep;
    is_shown_ = true;
    Say("\r" + std::to_string(games_()) + " games, " + std::to_string(total_ / 1'000'000) +
        " MB read");
  }

  int descriptor_;
  std::function<std::size_t()> games_;
  std::size_t total_ = 0;
  bool is_shown_ = false;
  std::chrono::steady_clock::time_point next_ =
      std::chrono::steady_clock::now() + std::chrono::seconds(1);
  std::string failure_;
};

int Import(const ImportOptions& options, int descriptor) {
  CatalogueBuilder catalogue(options);
  const bool is_watched = !options.quiet && ::isatty(STDERR_FILENO) == 1;
  ListSource source(descriptor, is_watched ? [&] { return catalogue.GameCount(); }
                                           : std::function<std::size_t()>());
  const Status read = ReadList(source, catalogue);
  source.ClearProgress();
  const std::string shown = options.input == "-" ? "standard input" : options.input;
  if (!source.Failure().empty()) {
    return Complain(kBadList, "can't read " + shown + ": " + source.Failure());
  }
  if (!read) return Complain(kBadList, shown + ", " + read.error().message);
  catalogue.Finish();
  const Status written = WriteDataFile(catalogue, options.output);
  if (!written) return Complain(kNotWritten, written.error().message);
  if (!options.quiet) Say(SummaryText(catalogue.Summary()));
  return kDone;
}

int Run(std::span<const std::string> arguments) {
  const auto options = ParseOptions(arguments);
  if (!options) return Complain(kWrongUse, options.error().message + "; --help tells more");
  if (options->version) {
    std::puts("zarvo-import of Zarvo v0.1");
    return kDone;
  }
  if (options->help) {
    std::fputs(HelpText().c_str(), stdout);
    return std::fflush(stdout) == 0 ? kDone : kNotWritten;
  }
  if (options->input == "-") {
    if (::isatty(STDIN_FILENO) == 1)
      return Complain(kWrongUse, "no list is given; --help tells more");
    return Import(*options, STDIN_FILENO);
  }
  const int descriptor = ::open(options->input.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) {
    return Complain(kBadList, "can't read " + options->input + ": " + std::strerror(errno));
  }
  const int status = Import(*options, descriptor);
  ::close(descriptor);
  return status;
}

}  // namespace
}  // namespace zarvo

int main(int count, char** words) try {
  const std::vector<std::string> arguments(words + 1, words + count);
  return zarvo::Run(arguments);
} catch (const std::exception& failure) {
  std::fprintf(stderr, "zarvo-import: %s\n", failure.what());
  return zarvo::kNotWritten;
}
