#include "import/data_file_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace zarvo {
namespace {

// An open file that is closed, and removed unless it was kept.
class OutputFile {
 public:
  OutputFile(int descriptor, std::string removed)
      : descriptor_(descriptor), path_(std::move(removed)) {}
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile() {
    Close();
    if (!path_.empty()) ::unlink(path_.c_str());
  }

  // False after the first failure, with errno set.
  [[nodiscard]] bool Write(std::string_view bytes) const;
  [[nodiscard]] bool Flush() const { return ::fsync(descriptor_) == 0; }
  bool Close();
  void Keep() { path_.clear(); }

 private:
  int descriptor_;
  std::string path_;
};

bool OutputFile::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool OutputFile::Close() {
  const int descriptor = descriptor_;
  descriptor_ = -1;
  return descriptor < 0 || ::close(descriptor) == 0;
}

bool WriteLines(const CatalogueBuilder& catalogue, OutputFile& file) {
  constexpr std::size_t kFull = std::size_t{64} << 10;
  std::string waiting;
  for (const std::string& line : catalogue.Header()) waiting += line + "\r\n";
  for (std::size_t place = 0; place < catalogue.GameCount(); ++place) {
    waiting += catalogue.Line(place);
    waiting += "\r\n";
    if (waiting.size() < kFull) continue;
    if (!file.Write(waiting)) return false;
    waiting.clear();
  }
  return file.Write(waiting);
}

Error SystemError(const std::string& path) {
  return Error{"can't write " + path + ": " + std::strerror(errno)};
}

// Standard output, a pipe or a device: nothing to be replaced.
Status WriteThrough(const CatalogueBuilder& catalogue, const std::string& path) {
  const bool standard = path == "-";
  const std::string shown = standard ? "to standard output" : path;
  const int descriptor =
      standard ? ::dup(STDOUT_FILENO) : ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
  if (descriptor < 0) return SystemError(shown);
  OutputFile file(descriptor, {});
  if (!WriteLines(catalogue, file) || !file.Close()) return SystemError(shown);
  return Success();
}

}  // namespace

Status WriteDataFile(const CatalogueBuilder& catalogue, const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  const bool special = fs::exists(status) && !fs::is_regular_file(status);
  if (path == "-" || (special && !fs::is_directory(status))) return WriteThrough(catalogue, path);
  // Behind a link the file it leads to is replaced, not the link.
  const fs::path resolved = fs::weakly_canonical(path, ignored);
  const std::string target = resolved.empty() ? path : resolved.string();
  const std::string temporary = target + "." + std::to_string(::getpid()) + ".tmp";
  const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (descriptor < 0) return SystemError(path);
  OutputFile file(descriptor, temporary);
  const bool written = WriteLines(catalogue, file) && file.Flush() && file.Close();
  if (!written || std::rename(temporary.c_str(), target.c_str()) != 0) return SystemError(path);
  file.Keep();
  return Success();
}

std::string SummaryText(const ImportSummary& summary) {
  const auto row = [](int count, std::string_view text) {
    std::string number = std::to_string(count);
    number.insert(0, number.size() < 8 ? 8 - number.size() : 0, ' ');
    return number + " " + std::string(text) + "\n";
  };
  std::string text =
      row(summary.games, "games of " + std::to_string(summary.machines) + " entries in the list") +
      row(summary.originals, "originals") + row(summary.clones, "clones") +
      row(summary.neo_geo, "Neo-Geo games");
  if (summary.orphans != 0) text += row(summary.orphans, "clones whose parent isn't among them");
  if (summary.renamed != 0) text += row(summary.renamed, "names told apart by their rom");
  for (std::size_t i = 0; i < kLeftOutCount; ++i) {
    if (summary.left_out[i] == 0) continue;
    text += row(summary.left_out[i], "left out: " + std::string(Describe(static_cast<LeftOut>(i))));
  }
  return text;
}

}  // namespace zarvo
