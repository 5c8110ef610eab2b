// Lists in XML: `-listxml` of MAME, old and new, and Logiqx DATs.
//
// Depth 1 is the list, depth 2 a machine, depth 3 what belongs to it. Most tags are dip switches,
// devices and roms; they are passed over as far as can be.
#include "import/byte_block.h"
#include "import/list_reader.h"
#include "import/xml_scanner.h"

namespace zarvo {
namespace {

constexpr std::size_t kListDepth = 1;
constexpr std::size_t kMachineDepth = 2;
constexpr std::size_t kLongestText = 32767;

// What the first attribute of an element says whose switch makes a table of the cabinet.
constexpr std::string_view kCocktail = " name=\"Cocktail\"";

// False only if it isn't the first attribute of `tag`, which 64 readable bytes follow.
bool MayBeCocktail(std::string_view tag) {
  constexpr std::size_t kLetter = kCocktail.find('C');
  const char* const bytes = tag.data();
  const BlockMask blanks = Block(bytes).Blank();
  return blanks == 0 || bytes[FirstBit(blanks) + kLetter] == kCocktail[kLetter];
}

class XmlListReader {
 public:
  XmlListReader(InputWindow& window, MachineSink& sink) : scanner_(window), sink_(sink) {}

  Status Read();

 private:
  void PassUnwanted();
  void Opened();
  void OpenedList();
  void OpenedMachine();
  void OpenedPart();
  void OpenedBelow();
  void Closed();
  void FinishMachine();
  void Capture(std::string& text);
  void TakeText();
  void TakeChip();
  void TakeDriver();
  void TakeFeature();
  void TakeInput();

  // Calls `take(name, value)` for each attribute of the tag; values with entities are resolved.
  template <typename Take>
  void EachAttribute(Take take);

  XmlScanner scanner_;
  MachineSink& sink_;
  Machine machine_;
  ListFacts facts_;
  bool in_machine_ = false;
  bool in_header_ = false;
  bool had_machine_ = false;
  std::string* captured_ = nullptr;  // where the text of the open element goes
  std::size_t captured_depth_ = 0;
  std::string value_;
  std::string failure_;
};

Status XmlListReader::Read() {
  while (failure_.empty()) {
    PassUnwanted();
    switch (scanner_.Next()) {
      case XmlToken::kOpen:
        Opened();
        break;
      case XmlToken::kClose:
        Closed();
        break;
      case XmlToken::kText:
        TakeText();
        break;
      case XmlToken::kError:
        return Error{scanner_.Error()};
      case XmlToken::kEnd:
        if (had_machine_) return Success();
        scanner_.Fail("there is no machine in the list");
        break;
    }
  }
  scanner_.Fail(failure_);
  return Error{scanner_.Error()};
}

// Four tags of five are roms, devices and positions of switches.
void XmlListReader::PassUnwanted() {
  if (captured_ != nullptr) return;
  if (scanner_.Depth() == kMachineDepth) {
    scanner_.PassOver([](std::string_view tag) {
      return tag.starts_with("device_ref ") || tag.starts_with("rom ");
    });
  } else if (scanner_.Depth() > kMachineDepth) {
    scanner_.PassOver([](std::string_view tag) { return !MayBeCocktail(tag); });
  }
}

void XmlListReader::Opened() {
  const std::size_t around = scanner_.Depth() - (scanner_.SelfClosing() ? 0 : 1);
  if (around > kMachineDepth) {
    OpenedBelow();
  } else if (around == kMachineDepth) {
    OpenedPart();
  } else if (around == kListDepth) {
    OpenedMachine();
  } else {
    OpenedList();
  }
}

template <typename Take>
void XmlListReader::EachAttribute(Take take) {
  AttributeReader attributes(scanner_.Attributes());
  const bool entities = scanner_.Attributes().find('&') != std::string_view::npos;
  while (attributes.Next()) {
    std::string_view value = attributes.Value();
    if (entities) {
      value_.clear();
      if (!AppendXmlText(value, value_)) failure_ = "an entity that isn't known";
      value = value_;
    }
    take(attributes.Name(), value);
  }
  if (attributes.Broken())
    failure_ = "a broken attribute in <" + std::string(scanner_.Name()) + ">";
}

void XmlListReader::OpenedList() {
  const std::string_view name = scanner_.Name();
  if (name != "mame" && name != "datafile" && name != "romset" && name != "gamelist") {
    failure_ = "<" + std::string(name.substr(0, 40)) + "> is no list of games that is known here";
    return;
  }
  if (name == "mame") facts_.name = "M.A.M.E.";
  EachAttribute([this](std::string_view attribute, std::string_view value) {
    if (attribute == "build") facts_.version = value.substr(0, value.find(" ("));
  });
  if (name != "datafile") sink_.TakeFacts(facts_);
}

void XmlListReader::OpenedMachine() {
  const std::string_view name = scanner_.Name();
  in_header_ = name == "header";
  if (name != "machine" && name != "game") return;
  machine_.Clear();
  in_machine_ = had_machine_ = true;
  EachAttribute([this](std::string_view attribute, std::string_view value) {
    const bool yes = value == "yes";
    if (attribute == "name") machine_.rom = value;
    if (attribute == "sourcefile") machine_.source = value;
    if (attribute == "cloneof") machine_.clone_of = value;
    if (attribute == "romof") machine_.rom_of = value;
    if (attribute == "sampleof") machine_.samples = true;
    if (attribute == "isbios") machine_.bios = yes;
    if (attribute == "isdevice") machine_.device = yes;
    if (attribute == "ismechanical") machine_.mechanical = yes;
    if (attribute == "runnable") machine_.runnable = value != "no";
  });
  if (failure_.empty() && machine_.rom.empty()) failure_ = "a machine without a name";
  if (scanner_.SelfClosing()) FinishMachine();
}

void XmlListReader::OpenedPart() {
  const std::string_view name = scanner_.Name();
  if (in_header_) {
    if (name == "name") Capture(facts_.name);
    if (name == "version") Capture(facts_.version);
    if (name == "date") Capture(facts_.date);
  }
  if (!in_machine_) return;
  switch (name.front()) {
    case 'c':
      if (name == "chip") TakeChip();
      break;
    case 'd':
      if (name == "description") Capture(machine_.description);
      if (name == "driver") TakeDriver();
      if (name == "display" && scanner_.Attributes().find("\"vector\"") != std::string_view::npos) {
        machine_.vector_screen = true;
      }
      break;
    case 'f':
      if (name == "feature") TakeFeature();
      break;
    case 'i':
      if (name == "input") TakeInput();
      break;
    case 'm':
      if (name == "manufacturer") Capture(machine_.manufacturer);
      break;
    case 's':
      if (name == "sample") machine_.samples = true;
      break;
    case 'v':
      if (name == "video" && scanner_.Attributes().find("\"vector\"") != std::string_view::npos) {
        machine_.vector_screen = true;
      }
      break;
    case 'y':
      if (name == "year") Capture(machine_.year);
      break;
    default:
      break;
  }
}

// Inside a dip switch or a configuration: a cabinet that can be a table says so there.
void XmlListReader::OpenedBelow() {
  if (scanner_.Attributes().starts_with(kCocktail)) machine_.cocktail = YesNo::kYes;
}

void XmlListReader::Closed() {
  captured_ = nullptr;
  scanner_.WantText(false);
  if (scanner_.Depth() != kListDepth) return;
  if (in_machine_) FinishMachine();
  if (in_header_) sink_.TakeFacts(facts_);
  in_header_ = false;
}

void XmlListReader::FinishMachine() {
  in_machine_ = false;
  if (!failure_.empty()) return;
  const Status taken = sink_.Take(machine_);
  if (!taken) failure_ = taken.error().message;
}

void XmlListReader::Capture(std::string& text) {
  text.clear();
  if (scanner_.SelfClosing()) return;
  captured_ = &text;
  scanner_.WantText(true);
  captured_depth_ = scanner_.Depth();
}

void XmlListReader::TakeText() {
  if (scanner_.Depth() != captured_depth_ || captured_->size() > kLongestText) return;
  if (scanner_.Literal()) {
    *captured_ += scanner_.Text();
  } else if (!AppendXmlText(scanner_.Text(), *captured_)) {
    failure_ = "an entity that isn't known";
  }
}

void XmlListReader::TakeChip() {
  bool cpu = false;
  bool for_sound = false;
  std::string name;
  EachAttribute([&](std::string_view attribute, std::string_view value) {
    if (attribute == "type") cpu = value == "cpu";
    if (attribute == "name") name = value;
    if (attribute == "tag" || attribute == "soundonly") {
      for_sound |= value.find("audio") != std::string_view::npos ||
                   value.find("sound") != std::string_view::npos || value == "yes";
    }
  });
  if (cpu) {
    machine_.cpus.Add(CpuName(name, for_sound));
  } else if (name != "Speaker") {  // the list names every loudspeaker
    machine_.sound_chips.Add(name);
  }
}

void XmlListReader::TakeDriver() {
  if (machine_.cocktail == YesNo::kUnknown) machine_.cocktail = YesNo::kNo;
  EachAttribute([this](std::string_view attribute, std::string_view value) {
    if (attribute == "status") machine_.status = GradeOf(value);
    if (attribute == "color") machine_.colors = Worse(machine_.colors, GradeOf(value));
    if (attribute == "sound") machine_.sound = Worse(machine_.sound, GradeOf(value));
    if (attribute == "nosoundhardware") machine_.no_sound_hardware = value == "yes";
    if (attribute == "cocktail" && value == "preliminary") machine_.cocktail = YesNo::kNo;
  });
  // What isn't said to be lacking works.
  if (machine_.status != Grade::kUnknown) {
    machine_.colors = Worse(machine_.colors, Grade::kGood);
    machine_.sound = Worse(machine_.sound, Grade::kGood);
  }
}

void XmlListReader::TakeFeature() {
  std::string type;
  Grade grade = Grade::kUnknown;
  EachAttribute([&](std::string_view attribute, std::string_view value) {
    if (attribute == "type") type = value;
    if (attribute == "status" || attribute == "overall") grade = Worse(grade, GradeOf(value));
  });
  if (type == "palette" || type == "graphics") machine_.colors = Worse(machine_.colors, grade);
  if (type == "sound") machine_.sound = Worse(machine_.sound, grade);
}

void XmlListReader::TakeInput() {
  machine_.coins = YesNo::kNo;
  EachAttribute([this](std::string_view attribute, std::string_view value) {
    if (attribute == "coins" && value != "0") machine_.coins = YesNo::kYes;
  });
}

}  // namespace

Status ReadXmlList(InputWindow& window, MachineSink& sink) {
  return XmlListReader(window, sink).Read();
}

}  // namespace zarvo
