// The configuration page: where the emulator, its roms and its snapshots lie, and the scan.
#pragma once

#include <string>
#include <string_view>

#include "core/emulators/emulator.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {

class ConfPage : public PictureBox {
 public:
  ConfPage(QWidget* parent, const Emulator& emulator);

  // "GIF", "JPG" or "BMP" by the option that is on, empty for none.
  [[nodiscard]] std::string SnapFormat() const;
  // The extension of the files of that format, ".gif"; empty for none.
  [[nodiscard]] std::string SnapExtension() const;
  // Turns the option of a format on; another word changes nothing.
  void SetSnapFormat(std::string_view format);

  TextBox* txtOptExePath;
  TextBox* txtOptRomPath;
  TextBox* txtOptSnap;
  Label* cmdSfoglia;
  Label* cmdSelDir;
  Label* cmdDirSnap;
  Label* exe_caption;
  Label* rom_caption;
  Label* snap_caption;
  Frame* Frame1;            // snapshot formats
  Frame* Frame2 = nullptr;  // scan; nullptr where there is none, as with the next three
  OptionButton* optSnapGIF;
  OptionButton* optSnapJPG;
  OptionButton* optSnapBMP;
  OptionButton* optMerged = nullptr;
  OptionButton* optSplitted = nullptr;
  Label* lblScanNow = nullptr;

 private:
  struct PathRow;
  void BuildPath(const Emulator& emulator, const PathRow& row);
  void BuildFormats();
  void BuildScan(const Emulator& emulator);
  OptionButton* Option(Frame* frame, const TwipRect& place, std::string_view name,
                       std::string_view caption);
};

}  // namespace zarvo
