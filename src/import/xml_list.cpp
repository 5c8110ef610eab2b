// Lists in XML: `-listxml` of MAME, old and new, and Logiqx DATs.
//
// expat takes the XML apart; the table below says what each element fills, by its place: within the
// list stand its header and the machines, within a machine what belongs to it. Most elements are
// roms, devices and positions of switches, which no row names.
#include <expat.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "core/platform/text.h"
#include "import/list_reader.h"

namespace zarvo {
namespace {

constexpr std::size_t kDeepest = 64;
constexpr std::size_t kLongestText = 32767;

// The attributes of an element as expat hands them over: names and values in turn.
class Attributes {
 public:
  explicit Attributes(const char* const* words) : words_(words) {}

  // Empty if there is no such attribute.
  std::string_view operator[](std::string_view name) const {
    for (const char* const* word = words_; *word != nullptr; word += 2) {
      if (*word == name) return word[1];
    }
    return {};
  }
  [[nodiscard]] bool BeginWith(std::string_view name, std::string_view value) const {
    return *words_ != nullptr && words_[0] == name && words_[1] == value;
  }

 private:
  const char* const* words_;
};

// What an element stands in: one of the open elements that the table tells apart.
enum class Place { kDocument, kList, kHeader, kMachine, kOther };

// What is known of the list so far.
struct ListState {
  MachineSink& sink;
  Machine machine = {};
  ListFacts facts = {};
  std::string failure = {};  // ends the reading
};

void TakeList(ListState& list, const Attributes& attributes) {
  const std::string_view build = attributes["build"];
  list.facts.version = build.substr(0, build.find(" ("));
  list.sink.TakeFacts(list.facts);
}

void TakeMameList(ListState& list, const Attributes& attributes) {
  list.facts.name = "M.A.M.E.";
  TakeList(list, attributes);
}

void TakeMachine(ListState& list, const Attributes& attributes) {
  Machine& machine = list.machine;
  machine.Clear();
  machine.rom = attributes["name"];
  machine.source = attributes["sourcefile"];
  machine.clone_of = attributes["cloneof"];
  machine.rom_of = attributes["romof"];
  machine.samples = !attributes["sampleof"].empty();
  machine.bios = attributes["isbios"] == "yes";
  machine.device = attributes["isdevice"] == "yes";
  machine.mechanical = attributes["ismechanical"] == "yes";
  machine.runnable = attributes["runnable"] != "no";
  if (machine.rom.empty()) list.failure = "a machine without a name";
}

void TakeChip(ListState& list, const Attributes& attributes) {
  const std::string_view name = attributes["name"];
  const std::string_view tag = attributes["tag"];
  const bool for_sound = tag.find("audio") != std::string_view::npos ||
                         tag.find("sound") != std::string_view::npos ||
                         attributes["soundonly"] == "yes";
  if (attributes["type"] == "cpu") {
    list.machine.cpus.Add(CpuName(name, for_sound));
  } else if (name != "Speaker") {  // the list names every loudspeaker
    list.machine.sound_chips.Add(name);
  }
}

void TakeDriver(ListState& list, const Attributes& attributes) {
  Machine& machine = list.machine;
  if (machine.cocktail == YesNo::kUnknown) machine.cocktail = YesNo::kNo;
  if (attributes["cocktail"] == "preliminary") machine.cocktail = YesNo::kNo;
  machine.no_sound_hardware = attributes["nosoundhardware"] == "yes";
  machine.status = GradeOf(attributes["status"]);
  machine.colors = Worse(machine.colors, GradeOf(attributes["color"]));
  machine.sound = Worse(machine.sound, GradeOf(attributes["sound"]));
  // What isn't said to be lacking works.
  if (machine.status == Grade::kUnknown) return;
  machine.colors = Worse(machine.colors, Grade::kGood);
  machine.sound = Worse(machine.sound, Grade::kGood);
}

void TakeFeature(ListState& list, const Attributes& attributes) {
  const std::string_view type = attributes["type"];
  const Grade grade = Worse(GradeOf(attributes["status"]), GradeOf(attributes["overall"]));
  Machine& machine = list.machine;
  if (type == "palette" || type == "graphics") machine.colors = Worse(machine.colors, grade);
  if (type == "sound") machine.sound = Worse(machine.sound, grade);
}

void TakeInput(ListState& list, const Attributes& attributes) {
  const std::string_view coins = attributes["coins"];
  list.machine.coins = coins.empty() || coins == "0" ? YesNo::kNo : YesNo::kYes;
}

void TakeSample(ListState& list, const Attributes& /*attributes*/) { list.machine.samples = true; }

void TakeScreen(ListState& list, const Attributes& attributes) {
  if (attributes["type"] == "vector" || attributes["screen"] == "vector") {
    list.machine.vector_screen = true;
  }
}

// Where an element stands, what its attributes fill, and which text of the list its own text is.
struct Row {
  Place place;
  std::string_view name;
  Place opens = Place::kOther;
  void (*take)(ListState&, const Attributes&) = nullptr;
  std::string& (*text)(ListState&) = nullptr;
};

template <std::string Machine::*kText>
std::string& OfMachine(ListState& list) {
  return list.machine.*kText;
}
template <std::string ListFacts::*kText>
std::string& OfFacts(ListState& list) {
  return list.facts.*kText;
}

constexpr std::array kRows = {
    Row{Place::kDocument, "mame", Place::kList, TakeMameList},
    Row{Place::kDocument, "romset", Place::kList, TakeList},
    Row{Place::kDocument, "gamelist", Place::kList, TakeList},
    Row{Place::kDocument, "datafile", Place::kList},
    Row{Place::kList, "header", Place::kHeader},
    Row{Place::kList, "machine", Place::kMachine, TakeMachine},
    Row{Place::kList, "game", Place::kMachine, TakeMachine},
    Row{.place = Place::kHeader, .name = "name", .text = OfFacts<&ListFacts::name>},
    Row{.place = Place::kHeader, .name = "version", .text = OfFacts<&ListFacts::version>},
    Row{.place = Place::kHeader, .name = "date", .text = OfFacts<&ListFacts::date>},
    Row{.place = Place::kMachine, .name = "description", .text = OfMachine<&Machine::description>},
    Row{.place = Place::kMachine,
        .name = "manufacturer",
        .text = OfMachine<&Machine::manufacturer>},
    Row{.place = Place::kMachine, .name = "year", .text = OfMachine<&Machine::year>},
    Row{.place = Place::kMachine, .name = "chip", .take = TakeChip},
    Row{.place = Place::kMachine, .name = "driver", .take = TakeDriver},
    Row{.place = Place::kMachine, .name = "feature", .take = TakeFeature},
    Row{.place = Place::kMachine, .name = "input", .take = TakeInput},
    Row{.place = Place::kMachine, .name = "sample", .take = TakeSample},
    Row{.place = Place::kMachine, .name = "display", .take = TakeScreen},
    Row{.place = Place::kMachine, .name = "video", .take = TakeScreen},
};

const Row* FindRow(Place place, std::string_view name) {
  const auto* const row = std::find_if(kRows.begin(), kRows.end(), [&](const Row& each) {
    return each.place == place && each.name == name;
  });
  return row == kRows.end() ? nullptr : row;
}

class XmlListReader {
 public:
  XmlListReader(InputWindow& window, MachineSink& sink);
  Status Read();

 private:
  struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  static XmlListReader& Of(void* self) { return *static_cast<XmlListReader*>(self); }
  void Feed(std::string_view bytes, bool last);
  void Open(std::string_view name, const Attributes& attributes);
  void Close();
  void WantText(std::string* text);
  void TakeText(std::string_view text);
  void Stop(std::string_view reason);
  [[nodiscard]] std::string_view ReasonOfParser() const;

  InputWindow& window_;
  ListState list_;
  std::unique_ptr<XML_ParserStruct, FreeParser> parser_;
  std::size_t lines_above_;           // of what the parser sees
  std::size_t fed_ = 0;               // bytes
  std::array<Place, kDeepest> open_;  // what the open elements are to the table
  std::size_t depth_ = 0;
  bool had_machine_ = false;
  std::string* wanted_ = nullptr;  // where the text of the open element goes
  std::string failure_;            // with its place
};

XmlListReader::XmlListReader(InputWindow& window, MachineSink& sink)
    : window_(window),
      list_{.sink = sink},
      parser_(XML_ParserCreate(nullptr)),
      lines_above_(window.LineOf(window.Begin()) - 1) {
  XML_SetUserData(parser_.get(), this);
  XML_SetElementHandler(
      parser_.get(),
      [](void* self, const char* name, const char** words) {
        Of(self).Open(name, Attributes(words));
      },
      [](void* self, const char* /*name*/) { Of(self).Close(); });
  // No list has entities of its own: those that are made of one another, or of other files, end it.
  XML_SetEntityDeclHandler(
      parser_.get(),
      [](void* self, const char* /*name*/, int /*parameter*/, const char* /*value*/, int /*size*/,
         const char* /*base*/, const char* /*system*/, const char* /*public_id*/,
         const char* /*notation*/) { Of(self).Stop("the list declares an entity"); });
  XML_SetSkippedEntityHandler(parser_.get(), [](void* self, const char* /*name*/, int parameter) {
    if (parameter == 0) Of(self).Stop("an entity that isn't known");
  });
  XML_SetUnknownEncodingHandler(
      parser_.get(),
      [](void* /*unused*/, const char* name, XML_Encoding* encoding) {
        if (!EqualNoCase(name, "windows-1252")) return static_cast<int>(XML_STATUS_ERROR);
        *encoding = {};
        for (int byte = 0; byte < 256; ++byte) {
          encoding->map[byte] = static_cast<int>(ToUnicode(static_cast<unsigned char>(byte)));
        }
        return static_cast<int>(XML_STATUS_OK);
      },
      nullptr);
}

Status XmlListReader::Read() {
  bool more = true;
  while (more && failure_.empty()) {
    const std::string_view bytes = window_.Rest();
    Feed(bytes, false);
    window_.ConsumeTo(window_.End());
    more = window_.Grow();
  }
  if (failure_.empty()) Feed({}, true);
  if (failure_.empty() && !had_machine_) Stop("there is no machine in the list");
  return failure_.empty() ? Success() : Status(Error{failure_});
}

void XmlListReader::Feed(std::string_view bytes, bool last) {
  XML_Parser parser = parser_.get();
  const XML_Status status =
      XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), last ? 1 : 0);
  if (status == XML_STATUS_ERROR) Stop(ReasonOfParser());
  fed_ += bytes.size();
  const auto reached =
      static_cast<std::size_t>(std::max(XML_Index{0}, XML_GetCurrentByteIndex(parser)));
  if (fed_ - std::min(fed_, reached) > kLongestToken) Stop("a tag or text of more than 1 MiB");
}

// In expat's words but for the end of a list that breaks off.
std::string_view XmlListReader::ReasonOfParser() const {
  const XML_Error error = XML_GetErrorCode(parser_.get());
  switch (error) {
    case XML_ERROR_NO_ELEMENTS:
    case XML_ERROR_UNCLOSED_TOKEN:
    case XML_ERROR_UNCLOSED_CDATA_SECTION:
    case XML_ERROR_PARTIAL_CHAR:
      return "the list ends in the middle";
    default:
      return XML_ErrorString(error);
  }
}

// The first reason counts: what follows is the parser's word that it was stopped.
void XmlListReader::Stop(std::string_view reason) {
  if (!failure_.empty()) return;
  XML_Parser parser = parser_.get();
  failure_ = "line " + std::to_string(lines_above_ + XML_GetCurrentLineNumber(parser)) +
             ", column " + std::to_string(XML_GetCurrentColumnNumber(parser) + 1) + ": " +
             std::string(reason);
  XML_StopParser(parser, XML_FALSE);
}

void XmlListReader::Open(std::string_view name, const Attributes& attributes) {
  WantText(nullptr);
  if (depth_ == kDeepest) return Stop("too many elements within one another");
  const Place place = depth_ == 0 ? Place::kDocument : open_[depth_ - 1];
  const Row* const row = FindRow(place, name);
  open_[depth_++] = row == nullptr ? Place::kOther : row->opens;
  if (row == nullptr) {
    if (place == Place::kDocument) {
      return Stop("<" + std::string(name.substr(0, 40)) +
                  "> is no list of games that is known here");
    }
    // Inside a dip switch or a configuration: a cabinet that can be a table says so there.
    if (place == Place::kOther && attributes.BeginWith("name", "Cocktail")) {
      list_.machine.cocktail = YesNo::kYes;
    }
    return;
  }
  if (row->take != nullptr) row->take(list_, attributes);
  if (row->text != nullptr) {
    row->text(list_).clear();
    WantText(&row->text(list_));
  }
  if (!list_.failure.empty()) Stop(list_.failure);
}

void XmlListReader::Close() {
  WantText(nullptr);
  const Place closed = open_[--depth_];
  if (closed == Place::kHeader) list_.sink.TakeFacts(list_.facts);
  if (closed != Place::kMachine) return;
  had_machine_ = true;
  const Status taken = list_.sink.Take(list_.machine);
  if (!taken) Stop(taken.error().message);
}

// Texts that nobody wants aren't even handed over.
void XmlListReader::WantText(std::string* text) {
  if (wanted_ == text) return;
  wanted_ = text;
  constexpr auto kTake = [](void* self, const char* bytes, int size) {
    Of(self).TakeText({bytes, static_cast<std::size_t>(size)});
  };
  XML_SetCharacterDataHandler(parser_.get(), text == nullptr ? nullptr : +kTake);
}

void XmlListReader::TakeText(std::string_view text) {
  if (wanted_->size() <= kLongestText) *wanted_ += text;
}

}  // namespace

Status ReadXmlList(InputWindow& window, MachineSink& sink) {
  return XmlListReader(window, sink).Read();
}

}  // namespace zarvo
