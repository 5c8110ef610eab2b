// Runs a list through reader and builder without a file.
#pragma once

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/piece_source.h"
#include "import/catalogue_builder.h"
#include "import/list_reader.h"

namespace zarvo {

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
  PieceSource source(list, piece);
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
