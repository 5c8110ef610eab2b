// What the whole program shares, alive from first to last moment.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/emulators/emulator.h"

namespace zarvo {

inline constexpr std::string_view kHomePage = "http://zarvo.example/";
inline constexpr std::string_view kSupportMail = "support@zarvo.example";

// Texts of the shared message boxes and of the About window. A carriage return is a line break.
struct SharedMessages {
  std::string MsgApplyDefaults;
  std::string MsgDefaultsSaved;
  std::string MsgDeleteFavourites;
  std::string MsgNoEmulator;
  std::string MsgNoRom;
  std::string MsgRomNotInDataFile;
  std::string MsgRomOverwrite;
  std::string MsgNoDataFile;
  std::string MsgNoCfgFile;
  std::string MsgNoScnFile;
  std::string MsgDownloadInfo;
  std::string MsgMailInfo;
};

SharedMessages BuildMessages();

// The welcome box of a first run.
std::string WelcomeMessage();

// The lines of the ticker, in ring order.
std::array<std::string, 6> TickerLines();

struct AppState {
  std::string ProgramName;
  std::string ProgramVersion;
  std::string ProgramFolder;              // DOS path, without a trailing backslash unless a root
  std::vector<std::string> RomPath;       // configured rom folders
  std::vector<std::string> lblShow;       // "SI" while the panel is open, else "NO"
  std::string lblHideEmuSelect = "HIDE";  // section entered last
  bool SettingsFound = false;             // by the last load of a settings record
  std::array<std::string, 36> SettingsFields;  // the record read last
  SharedMessages messages;

  AppState();

  // Title of every message box that has no other: "Zarvo v0.1".
  [[nodiscard]] std::string Title() const { return ProgramName + " " + ProgramVersion; }

  [[nodiscard]] std::string DataFolder() const;  // ProgramFolder + "\Data"
  [[nodiscard]] std::string CfgFolder() const;   // ProgramFolder + "\cfg"

  std::string& RomPathOf(const Emulator& emulator) { return RomPath[IndexOf(emulator)]; }
  std::string& ShowWord(const Emulator& emulator) { return lblShow[IndexOf(emulator)]; }
  [[nodiscard]] bool IsOpen(const Emulator& emulator) const {
    return lblShow[IndexOf(emulator)] == "SI";
  }
};

}  // namespace zarvo
