// The named layouts, `layouts.dat`, and the Layout Manager's own settings, `zarvo.ini`, both in the
// program's folder.
//
// layouts.dat holds one block a layout: its name in square brackets, a line "MAIN,Top,Left", a line
// "<section>,Top,Left,Width,Height" for every panel that was open, and a line "-". Numbers are
// twips. zarvo.ini holds three keys among fixed lines. Lines end with CR LF.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/program.h"
#include "core/platform/store.h"

namespace zarvo {

inline constexpr std::string_view kMainWord = "MAIN";  // of the main window's record

// Where one window stood.
struct LayoutRecord {
  std::string word;  // kMainWord or an emulator's section word
  int top = 0;
  int left = 0;
  int width = 0;  // 0 for the main window, which has no size
  int height = 0;

  friend bool operator==(const LayoutRecord&, const LayoutRecord&) = default;
};

// The records of one layout in the order of the file. Lines with other words are passed over.
struct LayoutBlock {
  std::vector<LayoutRecord> records;
  bool complete = true;  // false: a line isn't understood, and the records end in front of it
};

// The Layout Manager's settings.
struct LayoutIni {
  bool always_on_top = false;
  bool autoload = false;
  std::string default_layout;
};

// A key of zarvo.ini up to its "=".
inline constexpr std::string_view kAlwaysOnTopKey = "LayoutAlwaysOnTop =";
inline constexpr std::string_view kAutoloadKey = "AutoloadOnStartup =";
inline constexpr std::string_view kDefaultLayoutKey = "DefaultLayout =";

// "Small", "Medium" or "Large" for a panel's size; empty for any other.
std::string_view SizeWord(int width, int height);

// True for a name that a layout can have: not empty, no control character.
bool IsLayoutName(std::string_view name);

// Reads and rewrites both files. Every operation makes the program's folder current. Files are
// replaced as a whole or left as they were; the error of a failed one names the file and the
// reason. Nothing is held between two calls but whether the files could be read.
class LayoutStore {
 public:
  LayoutStore(DosFiles& files, const ProgramFolders& folders);

  // The names of all layouts in the order of the file. Fails if there is no file. While they can't
  // be read neither file is changed.
  [[nodiscard]] Result<std::vector<std::string>> Names();
  // Fails if there is no such layout.
  [[nodiscard]] Result<LayoutBlock> ReadBlock(std::string_view name) const;
  // An empty layout behind all others.
  Status AddBlock(std::string_view name);
  // In the place of the layout of this name, or behind all others.
  Status SaveBlock(std::string_view name, const std::vector<LayoutRecord>& records);
  Status RemoveBlock(std::string_view name);
  // In its place. Fails if there is no such layout.
  Status RenameBlock(std::string_view old_name, std::string_view new_name);

  // A switch is on if its line ends with "1". Fails if the file or the key is missing.
  [[nodiscard]] Result<bool> ReadSwitch(std::string_view key);
  // What stands behind "=" and one character more. Fails likewise.
  [[nodiscard]] Result<std::string> ReadDefaultLayout();
  Status SaveIni(const LayoutIni& ini);

  // The layout to apply at start-up; nothing if none is wanted or anything stands in the way. Of a
  // damaged block, what stands in front of the damage.
  [[nodiscard]] std::vector<LayoutRecord> AutoloadRecords();

 private:
  [[nodiscard]] Result<std::string> KeyLine(std::string_view key);

  Store layouts_;
  Store ini_;
};

}  // namespace zarvo
