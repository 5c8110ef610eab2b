// A program folder in memory with a data file of MAME, for the tests of the catalogue.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "core/catalogue/catalogue.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

namespace zarvo {

// The first seven fields, then fourteen more: "Yes;Yes;..." as a data file has them.
inline std::string Record(std::string_view first_seven) {
  return std::string(first_seven) +
         ";Yes;Yes;Yes;Yes;No;drv.c;Z80;n/a;n/a;n/a;YM1;n/a;n/a;n/a;\r\n";
}

// The header lines "fact 1" to "fact 17", each behind its "*".
inline std::string Header() {
  std::string header;
  for (int line = 1; line <= kHeaderLines; ++line)
    header += "*fact " + std::to_string(line) + "\r\n";
  return header;
}

class CatalogueTest : public testing::Test {
 protected:
  CatalogueTest() {
    folders_.ProgramFolder = R"(C:\Zarvo)";
    files_.PutFolder(R"(C:\Zarvo\Data)");
    files_.PutFolder(R"(C:\Zarvo\cfg)");
  }

  void PutData(std::string bytes) { files_.Put(R"(C:\Zarvo\Data\Mame.dat)", std::move(bytes)); }
  void PutScan(std::string bytes) { files_.Put(R"(C:\Zarvo\cfg\Mame.scn)", std::move(bytes)); }

  MemoryFiles files_;
  ProgramFolders folders_;
  const Emulator& mame_ = kMame;
};

}  // namespace zarvo
