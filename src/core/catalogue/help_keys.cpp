// The key texts of the help pages.
#include <array>

#include "core/catalogue/game_details.h"

namespace zarvo {
namespace {

constexpr auto kMameKeys = std::to_array<KeyRow>({
    {"", "Hot-keys:", ""},
    {"TILDE", " Toggles the On Screen Display", ""},
    {"F3", " Reset the machine", ""},
    {"F4", " Show the game graphics. Use cursors to change", ""},
    {"F9", " Change frame skip on the fly", ""},
    {"F10", " Toggle speed throttling", ""},
    {"F11", " Toggle speed display", ""},
    {"F12", " Save a screen snapshot", ""},
    {"TAB", " Toggles the configuration menu", ""},
    {"P", "Pause", ""},
    {"ESC", "Exit", ""},
});

constexpr auto kCallusKeys = std::to_array<KeyRow>({
    {"F1/F2", " Player 1/2 start", ""},
    {"F3/F4", " Coin 1/2", ""},
    {"F5", " Save state", ""},
    {"F6", " Decrem. state slot", ""},
    {"F7", " Load state", ""},
    {"F8", " Increm. state slot", ""},
    {"F9", " Save snapshot", ""},
    {"F10", " Reset emulation", ""},
    {"F11", " Test mode button", ""},
    {"F12", " Service mode", ""},
    {"ESC", " Quit", ""},
    {"SPACE", " Toggle GUI", ""},
    {"+ / -", " Adjust frameskip", ""},
    {"ALT-V", " Toggle V-Sync", ""},
    {"ALT-M", " Toggle FM music", ""},
    {"ALT-D", " Toggle Sound FX", ""},
    {"ALT-P", " Pause emulation", ""},
    {"ALT-I", " Toggle Pal. intens.", ""},
    {"ALT-Q", " Quit", ""},
});

constexpr auto kRaineKeys = std::to_array<KeyRow>({
    {"", "General in game keys:", ""},
    {"0", " Save ScreenShot", ""},
    {"F2", " Save Game State", ""},
    {"F3", " Switch Save State", ""},
    {"F4", " Load Game State", ""},
    {"F11", "FPS Display (5 M.)", ""},
    {"PGUP", " Incr. FrameSkip", ""},
    {"PGDN", " Decr. FrameSkip", ""},
    {"ESC", " Quit emulation", ""},
    {"P", " Pause game", ""},
    {"", "Keys in Pause mode:", ""},
    {"P", " Unpause", ""},
    {"ESC", " Quit emulation", ""},
    {"UP", " Scroll Up", ""},
    {"DOWN", " Scroll Down", ""},
    {"LEFT", " Scroll Left", ""},
    {"RGHT", " Scroll RIght", ""},
    {"", "Default Player keys:", ""},
    {"3", " Coin A", ""},
    {"4", " Coin B", ""},
    {"T", " Tilt", ""},
    {"Y", " Service", ""},
    {"1", " Player 1 Start", ""},
    {"UP", " Player 1 Up", ""},
    {"DOWN", " Player 1 Down", ""},
    {"LEFT", " Player 1 Left", ""},
    {"RIGHT", " Player 1 Right", ""},
    {"B-N-M", " Player 1 Buttons", ""},
    {"2", " Player 2 Start", ""},
    {"S", " Player 2 Up", ""},
    {"X", " Player 2 Down", ""},
    {"Z", " Player 2 Left", ""},
    {"C", " Player 2 Right", ""},
    {"Q-W-E", " Player 2 Buttons", ""},
});

constexpr auto kSystem16Keys = std::to_array<KeyRow>({
    {"F1", " DIP Switch", ""},
    {"F2", " Redefine keys", ""},
    {"F5", " Save game to disk", ""},
    {"F6", " Restore game", ""},
    {"F9", " Record Movie", ""},
    {"F11", " Play the Movie", ""},
    {"F10", " Reset Game", ""},
    {"ESC", " Back to emulator", ""},
    {"END", " Quit to DOS", ""},
    {"", "Other keys:", ""},
    {"1", " Start Player 1", ""},
    {"2", " Start Player 2", ""},
    {"3", " Insert Coin Slot 1", ""},
    {"4", " Insert Coin Slot 2", ""},
    {"9", " Service Switch", ""},
    {"0", " Test Switch", ""},
    {"P", " Pause the game", ""},
    {"S", " Save a ScreenShot", ""},
});

constexpr auto kM72Keys = std::to_array<KeyRow>({
    {"Keyboard", "Controls", "Gamepad"},
    {"LCTRL / TAB", "BUTTON 1", "Button 1"},
    {"ALT / Q", "BUTTON 2", "Button 2"},
    {"SPACE / W", "BUTTON 3", "Button 3"},
    {"RCTRL / E", "BUTTON 4", "Button 4"},
    {"1", "Player 1 Start", "n/a"},
    {"2", "Player 2 Start", "n/a"},
    {"3", "Coin 1", "n/a"},
    {"4", "Coin 2", "n/a"},
    {"", "Other keys:", ""},
    {"F5", " Save game", ""},
    {"F6/F8", " Change save slot", ""},
    {"F7", " Restore game", ""},
    {"F9", " Start/Stop recording", ""},
    {"F10/F12", " Change record slot", ""},
    {"F11", " Start/Stop play record", ""},
    {"S", " Save a ScreenShot", ""},
    {"P", " Pause", ""},
    {"ESC", " Quit", ""},
});

// The keys of one game of System16, one a line.
struct GameKeys {
  std::string_view game;
  std::string_view keys;
};

constexpr auto kSystem16Games = std::to_array<GameKeys>({
    {"Shinobi",
     "CTRL - Attack\n"
     "ALT - Jump\n"
     "SPACE - Magic\n"},
    {"Altered Beast",
     "CTRL - Punch\n"
     "ALT - Kick\n"
     "SPACE - Jump\n"},
    {"Golden Axe",
     "CTRL - Attack\n"
     "ALT - Jump\n"
     "SPACE - Magic\n"},
    {"Time Scanner",
     "Z - Left Flipper\n"
     "N - Right Flipper\n"
     "SPACE - Push Down\n"
     "LEFT - Push Right\n"
     "RIGHT - Push Left\n"},
    {"Quartet II",
     "CTRL - Shoot\n"
     "ALT - Jump\n"},
    {"Space Harrier",
     "CTRL - Shoot\n"
     "ALT - Shoot\n"
     "SPACE - Shoot\n"},
    {"Hang-On",
     "ALT - Accelerate\n"
     "CTRL - Decelerate\n"
     "RIGHT - Turn Right\n"
     "LEFT - Turn Left\n"},
    {"Wrestle War",
     "CTRL - Punch\n"
     "ALT - Kick\n"},
    {"Alien Storm",
     "CTRL - Attack\n"
     "ALT - Roll\n"
     "SPACE - Special\n"},
    {"Shadow Dancer",
     "CTRL - Attack  + Jp version\n"
     "ALT - Jump\n"
     "SPACE - Magic\n"},
    {"Out Run",
     "CTRL - Accelerator\n"
     "ALT - Shift LO (it's HI by default)\n"
     "DOWN - Break\n"
     "LEFT - Turn left\n"
     "RIGHT - Turn right\n"},
    {"Tetris",
     "SPACE - Turn piece\n"
     "UP - Turn piece\n"
     "CTRL - Turn piece\n"},
    {"Alien Syndrome", "CTRL - Shot\n"},
    {"Super Hang-On",
     "CTRL - Accelerator\n"
     "ALT - Turbo\n"
     "DOWN - Break\n"
     "RIGHT - Turn right\n"
     "LEFT - Turn left\n"
     "TEST - removed (it crashes)\n"},
    {"Moon Walker",
     "CTRL - SHOT\n"
     "ALT - DANCE\n"},
    {"Fantasy Zone",
     "CTRL - SHOT\n"
     "ALT - BOMB\n"},
    {"Flash Point", "CTRL - Turn piece\n"},
    {"Alexkidd",
     "CTRL - SHOT\n"
     "ALT - JUMP\n"},
    {"Aurail",
     "CTRL - SHIELD\n"
     "ALT - SHOT\n"
     "SPACE - TURN\n"},
});

}  // namespace

std::span<const KeyRow> HelpKeys(Emulator emulator) {
  switch (emulator) {
    case Emulator::kMame:
      return kMameKeys;
    case Emulator::kCallus:
      return kCallusKeys;
    case Emulator::kRaine:
      return kRaineKeys;
    case Emulator::kSystem16:
      return kSystem16Keys;
    case Emulator::kM72:
      return kM72Keys;
  }
  return {};
}

std::vector<std::string> System16Help() {
  std::vector<std::string> items;
  for (const GameKeys& game : kSystem16Games) {
    items.emplace_back(game.game);
    items.emplace_back(game.game.size(), '-');
    for (std::string_view rest = game.keys; !rest.empty();) {
      const std::size_t end = rest.find('\n');
      items.emplace_back(rest.substr(0, end));
      rest.remove_prefix(end + 1);
    }
    items.emplace_back();
  }
  return items;
}

}  // namespace zarvo
