// The texts that several windows show. A carriage return is a line break.
#pragma once

#include <string>
#include <string_view>

namespace zarvo {

inline constexpr std::string_view kHomePage = "http://zarvo.example/";
inline constexpr std::string_view kSupportMail = "support@zarvo.example";

inline constexpr std::string_view MsgApplyDefaults =
    "This will:\r1) Erase all the previously saved configurations\r"
    "2) Apply the current settings to all the games\r\rAre you sure?";

inline constexpr std::string_view MsgDefaultsSaved = "Default configurations saved!";

inline constexpr std::string_view MsgDeleteFavourites =
    "Are you sure you want to delete your favourites list?";

inline constexpr std::string_view MsgNoEmulator =
    "The emulator could not be found in the specified path\r"
    "Please check the paths in section CONF";

inline constexpr std::string_view MsgNoRom =
    "Rom not found in the specified directory!\r\r1) Check if the path is correct!\r"
    "2) Check if you have the rom!\r3) Check if it has the right name!";

inline constexpr std::string_view MsgRomNotInDataFile =
    "This rom was not found in Data-File.\rProbably it was renamed in the last release.\r"
    "Please add (drag and drop) it again to your favourites list with the correct name.";

inline constexpr std::string_view MsgRomOverwrite =
    "The rom already exist in directory <mame/roms>. You chose to use a rom from another dir "
    "instead. Behaving like this the rom in <mame/roms> will be overwritten and so lost. Do "
    "you wish to continue?";

inline const std::string MsgNoDataFile =
    std::string(
        "Warning! It could not be found the data-file in the directory </data>\r"
        "Without this file you have no access to this section!\r"
        "The last release of this data-file can be downloaded from ")
        .append(kHomePage);

inline constexpr std::string_view MsgNoCfgFile =
    "No configuration file found.\r"
    "Probably it's the first time you access this section. Please set up your\r"
    "paths now before moving to other sections!";

inline constexpr std::string_view MsgNoScnFile =
    "No 'SCN' file found in </CFG> directory.\r"
    "Please scan your rom directory from section <CONF>";

inline constexpr std::string_view MsgDownloadInfo =
    "You can download the latest releases, data-files, snapshots and more from Zarvo "
    "official "
    "home page.";

inline constexpr std::string_view MsgMailInfo =
    "To receive infos, report comments, ask question and so on e-mail me clicking here.";

}  // namespace zarvo
