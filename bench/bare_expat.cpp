// What a list costs at least: expat over all of it, with nobody who listens.
#include <expat.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int count, char** words) {
  std::FILE* const list = count == 2 ? std::fopen(words[1], "rb") : nullptr;
  if (list == nullptr) return EXIT_FAILURE;
  XML_Parser parser = XML_ParserCreate(nullptr);
  std::vector<char> piece(std::size_t{128} << 10);
  bool more = true;
  bool whole = true;
  while (more && whole) {
    const std::size_t got = std::fread(piece.data(), 1, piece.size(), list);
    more = got != 0;
    whole = XML_Parse(parser, piece.data(), static_cast<int>(got), more ? 0 : 1) == XML_STATUS_OK;
  }
  XML_ParserFree(parser);
  std::fclose(list);
  return whole ? EXIT_SUCCESS : EXIT_FAILURE;
}
