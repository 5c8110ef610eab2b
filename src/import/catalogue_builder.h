// From the machines of a list to the games of a data file: what is taken, under which name, in
// which order, and the header that counts them.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "import/import_options.h"
#include "import/machine.h"

namespace zarvo {

// Why a machine isn't in the data file, in the order in which it is asked.
enum class LeftOut {
  kBios,
  kDevice,
  kMechanical,
  kNotRunnable,
  kUnusableRom,
  kNotArcade,
  kDriver,
  kYear,
  kMaker,
  kNotWorking,
  kNoGenre,
  kTwice,
  kLongLine,
  kFull,
};
inline constexpr std::size_t kLeftOutCount = 14;
// For the summary: "devices", "of other makers".
std::string_view Describe(LeftOut reason);

struct ImportSummary {
  int machines = 0;  // entries of the list
  int games = 0;
  int originals = 0;
  int clones = 0;
  int neo_geo = 0;
  int renamed = 0;  // names that had to be told apart by their rom
  int orphans = 0;  // clones whose parent isn't among the games
  std::array<int, kLeftOutCount> left_out{};
};

// Text that stays where it is until the builder goes.
class TextStore {
 public:
  std::string_view Keep(std::string_view text);
  [[nodiscard]] std::size_t Size() const { return size_; }

 private:
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t room_ = 0;
  std::size_t size_ = 0;
};

class CatalogueBuilder : public MachineSink {
 public:
  // `options` must outlive the builder.
  explicit CatalogueBuilder(const ImportOptions& options) : options_(options) {}

  void TakeFacts(const ListFacts& facts) override { facts_ = facts; }
  Status Take(const Machine& machine) override;

  // Once, behind the last machine: settles clones and names and brings the games into list order.
  void Finish();

  [[nodiscard]] const ImportSummary& Summary() const { return summary_; }
  // After Finish. Lines without their line ends.
  [[nodiscard]] std::array<std::string, kHeaderLines> Header() const;
  [[nodiscard]] std::size_t GameCount() const { return games_.size(); }
  [[nodiscard]] std::string Line(std::size_t place) const;

 private:
  struct Game {
    std::string_view name;
    std::string_view rom;
    std::string_view parent;  // empty for an original
    std::string_view maker;
    std::string_view rest;  // fields from Genre to the end, each with its semicolon
    int year = 0;           // 0 if unknown
    bool neo_geo = false;
    bool playable = false;
    bool perfect = false;
  };

  [[nodiscard]] std::optional<LeftOut> Refusal(const Machine& machine,
                                               std::string_view maker) const;
  [[nodiscard]] bool WantsDriver(std::string_view source) const;
  [[nodiscard]] bool WantsYear(std::string_view year) const;
  [[nodiscard]] const std::string* GenreOf(const Machine& machine) const;
  [[nodiscard]] std::string MakerOf(const Machine& machine) const;
  [[nodiscard]] std::string RestOf(const Machine& machine, std::string_view maker) const;
  void Add(const Machine& machine, const std::string& maker);
  void NoteNeoGeo(const Machine& machine);
  void LeaveOut(LeftOut reason) { ++summary_.left_out[static_cast<std::size_t>(reason)]; }
  void CountChips(const Machine& machine);
  void SettleNames();
  void CountGames();
  [[nodiscard]] std::string YearsCovered() const;
  [[nodiscard]] std::string BusiestMaker() const;

  const ImportOptions& options_;
  ListFacts facts_;
  ImportSummary summary_;
  TextStore texts_;
  std::vector<Game> games_;
  std::unordered_set<std::string_view> roms_;                           // of games_
  std::unordered_set<std::string, TextHash, std::equal_to<>> neo_geo_;  // sets on that system
  std::map<std::string, int, std::less<>> cpus_;
  std::map<std::string, int, std::less<>> sound_chips_;
  bool raster_ = false;
  bool vector_ = false;
};

}  // namespace zarvo
