// Runs a list through reader and builder without a file.
#pragma once

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "import/catalogue_builder.h"
#include "import/list_reader.h"

namespace zarvo {

// Gives a text in pieces of `piece` bytes.
class TextSource : public ByteSource {
 public:
  explicit TextSource(std::string_view text, std::size_t piece = std::size_t{1} << 20)
      : rest_(text), piece_(piece) {}
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t got = std::min({size, piece_, rest_.size()});
    std::copy_n(rest_.data(), got, buffer);
    rest_.remove_prefix(got);
    return got;
  }

 private:
  std::string_view rest_;
  std::size_t piece_;
};

struct Imported {
  std::string error;  // empty if the list was read
  std::vector<std::string> games;
  std::array<std::string, kHeaderLines> header;
  ImportSummary summary;
  [[nodiscard]] int Left(LeftOut reason) const {
    return summary.left_out[static_cast<std::size_t>(reason)];
  }
};

inline Imported ImportText(std::string_view list, const ImportOptions& options = {},
                           std::size_t piece = std::size_t{1} << 20) {
  TextSource source(list, piece);
  CatalogueBuilder catalogue(options);
  Imported imported;
  const Status read = ReadList(source, catalogue);
  if (!read) {
    imported.error = read.error().message;
    return imported;
  }
  catalogue.Finish();
  for (std::size_t i = 0; i < catalogue.GameCount(); ++i) {
    imported.games.push_back(catalogue.Line(i));
  }
  imported.header = catalogue.Header();
  imported.summary = catalogue.Summary();
  return imported;
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::string TestList(const std::string& name) {
  return ReadBytes(std::string(ZARVO_IMPORT_LISTS) + "/" + name);
}

}  // namespace zarvo
