// The snapshot page: the picture of the game, or what was looked for.
#pragma once

#include <string>
#include <string_view>

#include "core/emulators/emulator.h"
#include "core/platform/dos_files.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/label.h"

namespace zarvo {

class SnapshotPage : public PictureBox {
 public:
  SnapshotPage(QWidget* parent, const Emulator& emulator);

  // Hides the six labels that stand in for a picture.
  void HideLabels();
  // Shows the picture `folder` + "\" + `file`, or, where there is no such file, one of the same
  // name with ".png", which today's emulators take; if it can't be loaded, empties the image, shows
  // the labels with folder and file, and returns false.
  bool ShowPicture(const DosFiles& files, const DosPath& folder, std::string_view file);

  // Its visibility tells whether the snapshot page is the current one.
  ImageBox* imgSnap;
  Label* lblNoAvail;
  Label* lblSnapNo;
  Label* lblNoSnapFound;
  Label* lblLookFor;
  Label* lblLookedFor;
  Label* lblSnapTip;

 private:
  void Build(const Emulator& emulator);
  Label* Line(int top, std::string_view name, std::string_view caption);
  void ShowLabels(bool visible);
};

}  // namespace zarvo
