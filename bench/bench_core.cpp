// Prints what every question to the catalogue costs, as a ratio to a bare pass over the same bytes
// in the same run. Ends with 1 if a target is missed at the largest catalogue.
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "core/catalogue/catalogue.h"
#include "core/launch/settings_store.h"
#include "core/platform/dos_world.h"
#include "fakes/emulators.h"
#include "measure.h"
#include "synthetic.h"

namespace zarvo::bench {
namespace {

constexpr int kArchives = 20000;
constexpr char kRomFolder[] = R"(C:\Roms)";

// The disk without the wait for its flush: what remains is the work of the program.
class UnflushedWorld : public DosWorld {
 public:
  using DosWorld::DosWorld;
  Status ReplaceFile(const DosPath& path, const DosPath& temporary,
                     std::string_view bytes) override {
    Status written = WriteFile(temporary, bytes);
    if (!written) return written;
    Ignore(DeleteFile(path));
    return RenameFile(temporary, path);
  }
};

void WriteHostFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  Check(file.good(), "write a file of the benchmark");
}

// A program folder with a data file of MAME, and a rom folder beside it. Goes with the object.
class Site {
 public:
  Site() : root_(MakeRoot()), world({{'C', root_.string()}}), unflushed({{'C', root_.string()}}) {
    for (const char* folder : {"Zarvo/Data", "Zarvo/cfg"}) {
      std::filesystem::create_directories(root_ / folder);
    }
    folders.ProgramFolder = R"(C:\Zarvo)";
  }
  ~Site() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
  }
  Site(const Site&) = delete;
  Site& operator=(const Site&) = delete;
  Site(Site&&) = delete;
  Site& operator=(Site&&) = delete;

  // Half of the archives belong to no game.
  void PutArchives() {
    if (std::filesystem::exists(root_ / "Roms")) return;
    std::filesystem::create_directory(root_ / "Roms");
    for (int archive = 0; archive < kArchives; ++archive) {
      const std::string name = RomName(archive) + (archive % 2 == 0 ? ".zip" : "x.zip");
      WriteHostFile(root_ / "Roms" / name, "");
    }
  }
  void PutGames(const std::vector<std::string>& names) const {
    WriteHostFile(DataFile(), DataFileText(names));
  }
  [[nodiscard]] std::string DataFile() const { return (root_ / "Zarvo/Data/Mame.dat").string(); }
  [[nodiscard]] std::string ScanFile() const { return (root_ / "Zarvo/cfg/Mame.scn").string(); }
  [[nodiscard]] std::string StoreFile() const { return (root_ / "Zarvo/cfg/Mame.set").string(); }
  [[nodiscard]] std::string Roms() const { return (root_ / "Roms").string(); }

 private:
  static std::filesystem::path MakeRoot() {
    std::string name = (std::filesystem::temp_directory_path() / "zarvo-bench-XXXXXX").string();
    Check(mkdtemp(name.data()) != nullptr, "make a folder");
    return name;
  }

  std::filesystem::path root_;

 public:
  DosWorld world;
  UnflushedWorld unflushed;
  ProgramFolders folders;
  const Emulator& mame = kMame;
};

std::size_t CountEntries(const std::string& host_folder) {
  DIR* const folder = opendir(host_folder.c_str());
  if (folder == nullptr) return 0;
  std::size_t count = 0;
  while (readdir(folder) != nullptr) ++count;  // NOLINT(concurrency-mt-unsafe)
  closedir(folder);
  return count;
}

// Writes beside a file, flushes if asked, and renames: the least that replacing a file takes.
void BareReplace(const std::string& host_path, std::string_view bytes, bool flush) {
  const std::string beside = host_path + ".new";
  const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  const bool written =
      file >= 0 && write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
      (!flush || fsync(file) == 0) && close(file) == 0;
  Check(written && std::rename(beside.c_str(), host_path.c_str()) == 0, "write the bare result");
}

bool MeasureLookUp(Site& site, BarePass& pass, const std::vector<std::string>& names) {
  const int games = static_cast<int>(names.size());
  return Measure({.name = "look-up of the last game",
                  .games = games,
                  .target = 1.5,
                  .bare = [&] { pass.CountLines(site.DataFile()); },
                  .measured =
                      [&] {
                        const auto found =
                            Catalogue(site.world, site.folders, site.mame).Find(names.back());
                        Check(found && found->field_count == kFieldCount, "find the last game");
                      }});
}

bool MeasureFill(Site& site, BarePass& pass, int games, GameState state, std::string_view name) {
  NameList list;
  return Measure({.name = name,
                  .games = games,
                  .target = 3,
                  .bare = [&] { pass.CountLines(site.DataFile()); },
                  .measured =
                      [&] {
                        Catalogue(site.world, site.folders, site.mame).Fill(state, list);
                        Check(list.Count() > 0 && list.Count() <= games, "fill the list");
                      }});
}

bool MeasureFilter(Site& site, BarePass& pass, int games, ValueFilter filter,
                   std::string_view value, std::string_view name) {
  NameList all;
  Catalogue(site.world, site.folders, site.mame).Fill(GameState::kAllSupported, all);
  Check(all.Count() == games, "fill the list for the filter");
  NameList list = all;
  return Measure({.name = name,
                  .games = games,
                  .target = 4,
                  .bare = [&] { pass.CountLines(site.DataFile()); },
                  .measured =
                      [&] {
                        Catalogue(site.world, site.folders, site.mame).Filter(filter, value, list);
                        Check(list.Count() > 0, "keep games");
                      },
                  .reset = [&] { list = all; }});
}

// One key in the field that finds games: what is typed is a part of no name.
bool MeasureFind(Site& site, BarePass& pass, int games) {
  NameList all;
  const Catalogue catalogue(site.world, site.folders, site.mame);
  catalogue.Fill(GameState::kAllSupported, all);
  return Measure(
      {.name = "find, one key",
       .games = games,
       .target = 6,
       .bare = [&] { pass.CountLines(site.DataFile()); },
       .measured = [&] { Check(catalogue.Search("zzqx", all).empty(), "find nothing"); }});
}

bool MeasureScan(Site& site, BarePass& pass, int games, bool flush) {
  site.PutArchives();
  DosWorld& files = flush ? site.world : site.unflushed;
  const auto scan = [&] {
    const auto outcome =
        Catalogue(files, site.folders, site.mame).Scan(kRomFolder, SetType::kMerged);
    Check(outcome && outcome->written && outcome->found > 0, "scan");
  };
  scan();
  const std::string result = ReadAll(site.world, R"(C:\Zarvo\cfg\Mame.scn)").value();
  const std::string bare_result = site.ScanFile() + ".bare";
  return Measure({.name = flush ? "scan, 20,000 archives" : "scan, 20,000 archives, no flush",
                  .games = games,
                  .target = 2,
                  .bare =
                      [&] {
                        pass.CountLines(site.DataFile());
                        Check(CountEntries(site.Roms()) > kArchives, "see all archives");
                        BareReplace(bare_result, result, flush);
                      },
                  .measured = scan});
}

// One game's record in a store of all games, against copying the store and flushing the copy.
bool MeasureSave(Site& site, BarePass& /*pass*/, const std::vector<std::string>& names) {
  const OptionValues values = DefaultValues(site.mame, R"(C:\Emu\Mame\Roms)");
  std::string store;
  for (const std::string& name : names) store += RecordLine(site.mame, name, values) + "\r\n";
  WriteHostFile(site.StoreFile(), store);
  return Measure({.name = "save of one record",
                  .games = static_cast<int>(names.size()),
                  .target = 3,
                  .bare =
                      [&] {
                        const auto bytes = ReadAll(site.world, R"(C:\Zarvo\cfg\Mame.set)");
                        Check(bytes.ok(), "read the store");
                        BareReplace(site.StoreFile() + ".bare", *bytes, true);
                      },
                  .measured =
                      [&] {
                        SettingsStore stored(site.world, site.folders, site.mame);
                        Check(stored.Save(names.back(), values).ok(), "save a record");
                      }});
}

bool MeasureAll(Site& site, int games) {
  BarePass pass;
  const auto names = GameNames(games);
  site.PutGames(names);
  bool good = MeasureLookUp(site, pass, names);
  good &= MeasureFill(site, pass, games, GameState::kAllSupported, "fill, all, sorted");
  good &= MeasureFill(site, pass, games, GameState::kClones, "fill, clones, sorted");
  good &= MeasureFilter(site, pass, games, ValueFilter::kGenre, kSomeGenre,
                        "filter step, 1 in 8 stays");
  good &= MeasureFilter(site, pass, games, ValueFilter::kManufactor, kOnlyManufactor,
                        "filter step, all stay");
  good &= MeasureFind(site, pass, games);
  good &= MeasureScan(site, pass, games, true);
  good &= MeasureScan(site, pass, games, false);
  good &= MeasureSave(site, pass, names);
  return good;
}

}  // namespace
}  // namespace zarvo::bench

// An argument names the works to measure: "filter" measures all whose name holds it.
int main(int count, char** arguments) {
  if (count > 1) zarvo::bench::MeasureOnly(arguments[1]);
  zarvo::bench::Site site;
  zarvo::bench::PrintTableHead();
  bool good = true;
  for (const int games : {1000, 8000, zarvo::bench::kMostGames}) {
    good = zarvo::bench::MeasureAll(site, games);
  }
  return good ? 0 : 1;
}
