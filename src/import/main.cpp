// zarvo-import: makes a data file for Zarvo from the list that an emulator prints about itself.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

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

// The list's bytes from a descriptor; tells how far it is while somebody looks on.
class ListSource : public ByteSource {
 public:
  ListSource(int descriptor, bool shows_progress)
      : descriptor_(descriptor), shows_progress_(shows_progress) {}

  std::size_t Read(char* buffer, std::size_t size) override {
    ssize_t got = 0;
    do {
      got = ::read(descriptor_, buffer, size);
    } while (got < 0 && errno == EINTR);
    if (got < 0) failure_ = std::strerror(errno);
    if (got <= 0) return 0;
    total_ += static_cast<std::size_t>(got);
    if (shows_progress_) ShowProgress();
    return static_cast<std::size_t>(got);
  }

  // Why reading ended before the end of the list; empty if it didn't.
  [[nodiscard]] const std::string& Failure() const { return failure_; }
  void ClearProgress() const {
    if (shown_ != 0) Say("\r\033[K");
  }

 private:
  void ShowProgress() {
    constexpr std::size_t kStep = std::size_t{8} << 20;
    if (total_ < shown_ + kStep) return;
    shown_ = total_;
    Say("\r" + std::to_string(total_ >> 20) + " MiB read");
  }

  int descriptor_;
  bool shows_progress_;
  std::size_t total_ = 0;
  std::size_t shown_ = 0;
  std::string failure_;
};

int Import(const ImportOptions& options, int descriptor) {
  CatalogueBuilder catalogue(options);
  ListSource source(descriptor, !options.quiet && ::isatty(STDERR_FILENO) == 1);
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
