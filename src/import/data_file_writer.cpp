#include "import/data_file_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>

#include "core/platform/host_file.h"

namespace zarvo {
namespace {

std::string TextOf(const CatalogueBuilder& catalogue) {
  std::string text;
  for (const std::string& line : catalogue.Header()) text += line + "\r\n";
  for (std::size_t place = 0; place < catalogue.GameCount(); ++place) {
    text += catalogue.Line(place);
    text += "\r\n";
  }
  return text;
}

// Standard output, a pipe or a device: nothing to be replaced.
Status WriteThrough(std::string_view text, const std::string& path) {
  FileHandle file(path == "-" ? ::dup(STDOUT_FILENO) : ::open(path.c_str(), O_WRONLY | O_CLOEXEC));
  if (!file.ok()) return LastError();
  Status done = WriteAll(file.get(), text);
  return done ? file.Close() : done;
}

}  // namespace

Status WriteDataFile(const CatalogueBuilder& catalogue, const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  const bool special =
      fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
  const std::string text = TextOf(catalogue);
  const std::string full = fs::absolute(path, ignored).string();
  Status done = path == "-" || special ? WriteThrough(text, path)
                                       : ReplacePlainFile(full, full + ".tmp", text);
  if (done) return done;
  const std::string shown = path == "-" ? "to standard output" : path;
  return Error{"can't write " + shown + ": " + done.error().message};
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
