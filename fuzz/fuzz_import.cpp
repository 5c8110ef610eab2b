// Any bytes at all as a list: it is read or refused, and what is read keeps the form of a data
// file. The first byte says in which pieces the bytes come.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/platform/line_reader.h"
#include "import/catalogue_builder.h"
#include "import/list_reader.h"

namespace {

class PieceSource : public zarvo::ByteSource {
 public:
  PieceSource(std::string_view bytes, std::size_t piece) : rest_(bytes), piece_(piece) {}
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

void Check(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t piece = bytes[0] == '<' || bytes[0] == 'g' ? size : data[0] + std::size_t{1};
  PieceSource source(piece == size ? bytes : bytes.substr(1), piece);
  const zarvo::ImportOptions options;
  zarvo::CatalogueBuilder catalogue(options);
  const zarvo::Status read = zarvo::ReadList(source, catalogue);
  if (!read) {
    Check(read.error().message.starts_with("line "));
    return 0;
  }
  catalogue.Finish();
  for (std::size_t i = 0; i < catalogue.GameCount(); ++i) {
    const std::string line = catalogue.Line(i);
    Check(line.size() <= zarvo::kLongestLine);
    Check(std::count(line.begin(), line.end(), ';') == zarvo::kFieldCount && line.back() == ';');
    Check(line.find_first_of("\r\n") == std::string::npos);
    Check(line[0] != '#' && line[0] != '*' && line[0] != ';');
  }
  return 0;
}
