#include "ui/panel/conf_page.h"

#include <array>
#include <utility>

#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"

namespace zarvo {

// A path with its caption above it and its button beside it.
struct ConfPage::PathRow {
  int top;
  std::string_view caption;
  Label** caption_label;
  std::string_view box_tail;
  std::string_view start_text;
  TextBox** box;
  std::string_view button_name;
  std::string_view button_tip;
  Label** button;
};

ConfPage::ConfPage(QWidget* parent, const Emulator& emulator) : PictureBox(parent) {
  SetName(ControlName(emulator, "picConf"));
  SetAccessibleName("Configuration page");
  SetBackColor(kCard);
  const PanelTexts& texts = emulator.texts;
  MakeHeading(this, {60, 75, 3735, 210}, texts.conf_heading);
  const std::array<PathRow, 3> rows = {{
      {390, texts.exe_caption, &exe_caption, "ExePath", emulator.start.exe_path, &txtOptExePath,
       "cmdSfoglia", " Choose emulator executable ", &cmdSfoglia},
      {990, "Default Roms Directory", &rom_caption, "RomPath", emulator.start.rom_path,
       &txtOptRomPath, "cmdSelDir", " Choose Default rom directory ", &cmdSelDir},
      {1590, "ScreenShots Directory", &snap_caption, "Snap", emulator.start.snap_path, &txtOptSnap,
       "cmdDirSnap", " Choose the snapshots directory ", &cmdDirSnap},
  }};
  for (const PathRow& row : rows) BuildPath(emulator, row);
  BuildFormats();
  if (emulator.has_scan) BuildScan(emulator);
}

void ConfPage::BuildPath(const Emulator& emulator, const PathRow& row) {
  *row.caption_label = MakeCaption(this, {120, row.top, 2700, 210}, row.caption);
  auto* const box = new TextBox(this);
  box->SetName(ControlName(emulator, "txtOpt", row.box_tail));
  box->SetAccessibleName(row.caption);
  box->SetReadOnly(true);
  box->SetText(row.start_text);
  box->SetPlace({120, row.top + 225, 2835, 270});
  *row.box = box;
  Label* const button =
      MakeButton(this, ButtonKind::kPath, {3030, row.top + 225, 705, 270}, "Browse");
  button->SetName(row.button_name);
  button->SetToolTipText(row.button_tip);
  button->SetAccessibleName(row.button_tip.substr(1, row.button_tip.size() - 2));
  *row.button = button;
}

void ConfPage::BuildFormats() {
  Frame1 = MakeFrame(this, {120, 2235, 1650, 1275}, "Snaps Format");
  Frame1->SetName("Frame1");
  optSnapGIF = Option(Frame1, {180, 285, 1350, 240}, "optSnapGIF", "GIF");
  optSnapJPG = Option(Frame1, {180, 585, 1350, 240}, "optSnapJPG", "JPG");
  optSnapBMP = Option(Frame1, {180, 885, 1350, 240}, "optSnapBMP", "BMP");
  optSnapGIF->SetValue(true);
}

void ConfPage::BuildScan(const Emulator& emulator) {
  Frame2 = MakeFrame(this, {2010, 2235, 1725, 1275}, emulator.texts.scan_caption);
  Frame2->SetName("Frame2");
  if (emulator.knows_parents) {
    optMerged = Option(Frame2, {180, 285, 1350, 240}, "optMerged", "Merged");
    optSplitted = Option(Frame2, {180, 540, 1350, 240}, "optSplitted", "Splitted");
    optMerged->SetValue(true);
  }
  lblScanNow = MakeButton(Frame2, ButtonKind::kPath,
                          {315, emulator.knows_parents ? 885 : 570, 1095, 270}, "Scan now!");
  lblScanNow->SetName("lblScanNow");
  lblScanNow->SetToolTipText(" Scan Rom directory ");
}

OptionButton* ConfPage::Option(Frame* frame, const TwipRect& place, std::string_view name,
                               std::string_view caption) {
  auto* const option = new OptionButton(frame);
  option->SetName(name);
  option->SetCaption(caption);
  option->SetPlace(place);
  return option;
}

std::string ConfPage::SnapFormat() const {
  if (optSnapGIF->Value()) return "GIF";
  if (optSnapJPG->Value()) return "JPG";
  return optSnapBMP->Value() ? "BMP" : "";
}

std::string ConfPage::SnapExtension() const {
  if (optSnapGIF->Value()) return ".gif";
  if (optSnapJPG->Value()) return ".jpg";
  return optSnapBMP->Value() ? ".bmp" : "";
}

void ConfPage::SetSnapFormat(std::string_view format) {
  const std::array<std::pair<std::string_view, OptionButton*>, 3> options = {
      {{"GIF", optSnapGIF}, {"JPG", optSnapJPG}, {"BMP", optSnapBMP}}};
  for (const auto& [word, option] : options) {
    if (word == format) option->SetValue(true);
  }
}

}  // namespace zarvo
