#include "core/emulators/app_state.h"

#include "core/platform/dos_path.h"

namespace zarvo {

AppState::AppState()
    : ProgramName("Zarvo"),
      ProgramVersion("v0.1"),
      RomPath(Emulators().size()),
      lblShow(Emulators().size(), "NO"),
      messages(BuildMessages()) {}

std::string AppState::DataFolder() const { return JoinPath(ProgramFolder, "Data"); }
std::string AppState::CfgFolder() const { return JoinPath(ProgramFolder, "cfg"); }

SharedMessages BuildMessages() {
  const std::string home_page(kHomePage);
  return {
      .MsgApplyDefaults =
          "This will:\r1) Erase all the previously saved configurations\r"
          "2) Apply the current settings to all the games\r\rAre you sure?",
      .MsgDefaultsSaved = "Default configurations saved!",
      .MsgDeleteFavourites = "Are you sure you want to delete your favourites list?",
      .MsgNoEmulator =
          "The emulator could not be found in the specified path\r"
          "Please check the paths in section CONF",
      .MsgNoRom =
          "Rom not found in the specified directory!\r\r1) Check if the path is correct!\r"
          "2) Check if you have the rom!\r3) Check if it has the right name!",
      .MsgRomNotInDataFile =
          "This rom was not found in Data-File.\rProbably it was renamed in the last release.\r"
          "Please add (drag and drop) it again to your favourites list with the correct name.",
      .MsgRomOverwrite =
          "The rom already exist in directory <mame/roms>. You chose to use a rom from another dir "
          "instead. Behaving like this the rom in <mame/roms> will be overwritten and so lost. Do "
          "you wish to continue?",
      .MsgNoDataFile =
          "Warning! It could not be found the data-file in the directory </data>\r"
          "Without this file you have no access to this section!\r"
          "The last release of this data-file can be downloaded from " +
          home_page,
      .MsgNoCfgFile =
          "No configuration file found.\r"
          "Probably it's the first time you access this section. Please set up your\r"
          "paths now before moving to other sections!",
      .MsgNoScnFile =
          "No 'SCN' file found in </CFG> directory.\r"
          "Please scan your rom directory from section <CONF>",
      .MsgDownloadInfo =
          "You can download the latest releases, data-files, snapshots and more from Zarvo "
          "official "
          "home page.",
      .MsgMailInfo =
          "To receive infos, report comments, ask question and so on e-mail me clicking here.",
  };
}

std::string WelcomeMessage() {
  return "Welcome to Zarvo! Probably it's the first time you launch this program!\r"
         "Please remember to put Data Files into the <data> directory!\r"
         "The latest releases of these Data Files can be downloaded from " +
         std::string(kHomePage) + "\rTake a look at Readme.txt for more info.";
}

std::array<std::string, 6> TickerLines() {
  return {"---> The Definitive Multifrontend <---",
          "What do you want to emulate today?",
          "Official Home Page: " + std::string(kHomePage),
          "Thanks to all emu-developers!",
          "Thanks to all rom-dumpers!",
          "Please support < Zarvo Project > !!"};
}

}  // namespace zarvo
