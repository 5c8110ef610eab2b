// Any bytes as a snapshot: reading it ends, and what is read isn't larger than was asked for.
#include <QGuiApplication>
#include <QImageReader>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fakes/memory_files.h"
#include "ui/toolkit/picture.h"

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static const QGuiApplication application(*count, *arguments);
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  constexpr int kLongestSide = 64;
  MemoryFiles files;
  for (const char* name : {R"(C:\a.gif)", R"(C:\a.png)"}) {
    files.Put(name, std::string(reinterpret_cast<const char*>(data), size));
    const auto picture = Picture::FromFile(files, DosPath(name), kLongestSide);
    if (!picture) continue;
    const QSize read = picture->NaturalSize();
    if (read.isEmpty() || read.width() > kLongestSide || read.height() > kLongestSide) std::abort();
  }
  return 0;
}
