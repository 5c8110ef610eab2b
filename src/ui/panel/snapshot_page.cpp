#include "ui/panel/snapshot_page.h"

#include "core/platform/dos_path.h"
#include "ui/panel/control_names.h"

namespace zarvo {
namespace {

// Device-independent pixels times the largest scale factor of use: more would never be seen.
constexpr int kLongestSide = 1024;

}  // namespace

SnapshotPage::SnapshotPage(QWidget* parent, const Emulator& emulator) : PictureBox(parent) {
  SetName(ControlName(emulator, "picSnap"));
  SetAccessibleName("Snapshot page");
  SetBackColor(kDeepNight);
  Build(emulator);
}

void SnapshotPage::Build(const Emulator& emulator) {
  auto* const screen = new ImageBox(this);
  screen->SetPlace({0, 0, 3855, 3885});
  screen->SetPicture(Picture::FromResource("no_snapshot"));

  imgSnap = new ImageBox(this);
  imgSnap->SetName(ControlName(emulator, "imgSnap"));
  imgSnap->SetAccessibleName("Snapshot of the game");
  imgSnap->SetPlace({0, 0, 3825, 3855});

  lblNoAvail = Line(1140, ControlName(emulator, "lblNoAvail"), "No ScreenShot Available");
  lblNoAvail->SetBold(true);
  lblNoAvail->SetForeColor(kLavender);
  lblSnapNo = Line(1515, "lblSnapNo", "No snapshot found in:");
  lblNoSnapFound = Line(1725, "lblNoSnapFound", "");
  lblNoSnapFound->SetForeColor(kYellow);
  lblLookFor = Line(2010, "lblLookFor", "Zarvo searched for:");
  lblLookedFor = Line(2220, "lblLookedFor", "");
  lblLookedFor->SetForeColor(kYellow);
  lblSnapTip = Line(2625, "lblSnapTip", emulator.texts.snap_tip);
  ShowLabels(false);
}

Label* SnapshotPage::Line(int top, std::string_view name, std::string_view caption) {
  auto* const label = new Label(this);
  label->SetName(name);
  label->SetAlign(TextAlign::kCentre);
  label->SetForeColor(kMoon);
  label->SetCaption(caption);
  label->SetPlace({150, top, 3555, 210});
  return label;
}

void SnapshotPage::HideLabels() { ShowLabels(false); }

void SnapshotPage::ShowLabels(bool visible) {
  for (Label* const label :
       {lblNoAvail, lblSnapNo, lblNoSnapFound, lblLookFor, lblLookedFor, lblSnapTip}) {
    label->SetVisible(visible);
  }
}

bool SnapshotPage::ShowPicture(const DosFiles& files, const DosPath& folder,
                               std::string_view file) {
  const auto from_file = [&](std::string_view text) -> Result<Picture> {
    const std::optional<FileName> name = FileName::Of(text);
    if (!name) return Error{"not a plain file name"};
    return Picture::FromFile(files, folder / *name, kLongestSide);
  };
  const std::optional<FileName> name = FileName::Of(file);
  Result<Picture> picture = from_file(file);
  if (!picture.ok() && name && !files.FileExists(folder / *name)) {
    picture = from_file(std::string(file.substr(0, file.rfind('.'))) + ".png");
  }
  if (picture.ok()) {
    imgSnap->SetPicture(std::move(*picture));
    return true;
  }
  imgSnap->SetPicture({});
  lblNoAvail->SetCaption("No ScreenShot Available");
  lblNoSnapFound->SetCaption(folder.Text());
  lblLookedFor->SetCaption(file);
  ShowLabels(true);
  return false;
}

}  // namespace zarvo
