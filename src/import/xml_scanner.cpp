#include "import/xml_scanner.h"

#include <algorithm>
#include <charconv>

#include "import/byte_block.h"
#include "import/list_text.h"

namespace zarvo {
namespace {

constexpr std::size_t kDeepest = 64;

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

void DropBlanks(std::string_view& text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
}

// The character of "#65" or "#x41"; 0 if it is none.
char32_t NumberedCharacter(std::string_view number) {
  const bool hexadecimal = number.size() > 1 && number[1] == 'x';
  number.remove_prefix(hexadecimal ? 2 : 1);
  std::uint32_t value = 0;
  const char* const end = number.data() + number.size();
  const auto [rest, failure] = std::from_chars(number.data(), end, value, hexadecimal ? 16 : 10);
  return failure == std::errc{} && rest == end && value <= 0x10FFFF ? value : 0;
}

char32_t EntityCharacter(std::string_view name) {
  if (name == "amp") return '&';
  if (name == "lt") return '<';
  if (name == "gt") return '>';
  if (name == "quot") return '"';
  if (name == "apos") return '\'';
  return name.starts_with('#') ? NumberedCharacter(name) : 0;
}

// The length of the name that `tag` begins with. 15 readable bytes must follow the tag.
std::size_t NameLength(std::string_view tag) {
  return FindInBlocks(tag, [](const Block& block) {
    return block.Blank() | block.Equal('/') | block.EitherBracket();
  });
}

// Where the tag ends whose name ends at `at`: at the first ">" outside of quotation marks, or
// at a "<", which no tag may hold. nullptr if `end` comes first.
const char* FindTagEnd(const char* at, const char* end) {
  char quote = 0;
  for (; at < end; ++at) {
    if (*at == '<') return at;
    if (quote != 0) {
      if (*at == quote) quote = 0;
    } else if (*at == '>') {
      return at;
    } else if (*at == '"' || *at == '\'') {
      quote = *at;
    }
  }
  return nullptr;
}

}  // namespace

bool AttributeReader::Next() {
  DropBlanks(rest_);
  if (rest_.empty() || broken_) return false;
  broken_ = true;
  const std::size_t name_end = FindInBlocks(rest_, [](const Block& block) {
    return block.Equal('=') | block.Blank() | block.Equal('"') | block.Equal('\'');
  });
  if (name_end == 0 || name_end == rest_.size()) return false;
  name_ = rest_.substr(0, name_end);
  rest_.remove_prefix(name_end);
  DropBlanks(rest_);
  if (!rest_.starts_with('=')) return false;
  rest_.remove_prefix(1);
  DropBlanks(rest_);
  if (rest_.empty() || (rest_.front() != '"' && rest_.front() != '\'')) return false;
  const char quote = rest_.front();
  rest_.remove_prefix(1);
  const std::size_t closing =
      FindInBlocks(rest_, [quote](const Block& block) { return block.Equal(quote); });
  if (closing == rest_.size()) return false;
  value_ = rest_.substr(0, closing);
  rest_.remove_prefix(closing + 1);
  broken_ = !rest_.empty() && !IsBlank(rest_.front());
  return !broken_;
}

bool AppendXmlText(std::string_view text, std::string& out) {
  while (true) {
    const std::size_t mark = text.find('&');
    out += text.substr(0, mark);
    if (mark == std::string_view::npos) return true;
    text.remove_prefix(mark + 1);
    const std::size_t closing = text.substr(0, 12).find(';');
    if (closing == std::string_view::npos) return false;
    const char32_t character = EntityCharacter(text.substr(0, closing));
    if (character == 0) return false;
    AppendUtf8(character, out);
    text.remove_prefix(closing + 1);
  }
}

XmlScanner::XmlScanner(InputWindow& window) : window_(window), open_(kDeepest) { FindMarks(); }

void XmlScanner::FindMarks() {
  base_ = window_.Begin();
  mark_ = index_.Build(window_.Rest());
}

XmlToken XmlScanner::Next() {
  if (!error_.empty()) return XmlToken::kError;
  while (true) {
    switch (Take()) {
      case Step::kToken:
        return token_;
      case Step::kPassed:
        break;
      case Step::kMore:
        if (!window_.Grow()) return AtEnd();
        FindMarks();
        break;
    }
  }
}

XmlScanner::Step XmlScanner::Take() {
  while (*PlaceOf(mark_) != '<') {
    if (PlaceOf(mark_) == window_.End()) return Step::kMore;
    ++mark_;
  }
  const char* const tag = PlaceOf(mark_);
  return wants_text_ || depth_ == 0 ? TakeText(tag) : TakeTag(tag);
}

XmlScanner::Step XmlScanner::TakeText(const char* tag) {
  const char* const start = window_.Begin();
  const std::string_view text(start, static_cast<std::size_t>(tag - start));
  if (IsBlank(text)) return TakeTag(tag);
  if (depth_ == 0) return Failed(start, "text where a tag is expected");
  text_ = text;
  literal_ = false;
  return Found(XmlToken::kText, start, tag);
}

XmlScanner::Step XmlScanner::TakeTag(const char* start) {
  const char kind = start[1];
  if (BeginsXmlName(kind)) return TakeOpen(start);
  if (kind == '/') return TakeClose(start);
  if (kind == '!') return TakeMarkup(start);
  if (kind == '?') return PassTo(start, 2, "?>");
  if (start + 1 == window_.End()) return Step::kMore;
  return Failed(start, "\"<\" that begins no tag");
}

XmlScanner::Step XmlScanner::TakeOpen(const char* start) {
  const char* close = PlaceOf(mark_ + 1);
  if (*close != '>' || !mark_[0].QuotesPairUpTo(mark_[1])) {
    const std::string_view rest(start + 1, static_cast<std::size_t>(window_.End() - start - 1));
    close = FindTagEnd(rest.data() + NameLength(rest), window_.End());
    if (close == nullptr) return Step::kMore;
  }
  self_closing_ = close[-1] == '/';
  const std::string_view tag(start + 1,
                             static_cast<std::size_t>(close - start - 1) - self_closing_);
  name_ = tag.substr(0, NameLength(tag));
  attributes_ = tag.substr(name_.size());
  if (*close == '<') return Failed(start, "\"<\" within the tag <" + std::string(name_) + ">");
  if (depth_ == 0 && had_root_) return Failed(start, "a second list behind the first");
  had_root_ = true;
  if (!self_closing_) {
    if (depth_ == kDeepest) return Failed(start, "too many elements within one another");
    open_[depth_++] = name_;
  }
  return Found(XmlToken::kOpen, start, close + 1);
}

XmlScanner::Step XmlScanner::TakeClose(const char* start) {
  const std::string_view rest(start + 2, static_cast<std::size_t>(window_.End() - start - 2));
  const std::string_view name = rest.substr(0, NameLength(rest));
  const char* close = name.data() + name.size();
  while (IsBlank(*close)) ++close;  // no blank follows the window
  if (close == window_.End()) return Step::kMore;
  if (*close != '>' || depth_ == 0 || open_[depth_ - 1] != name) {
    const std::string expected = depth_ == 0 ? "nothing" : "<" + open_[depth_ - 1] + ">";
    const std::string shown(name.substr(0, 40));
    return Failed(start, "</" + shown + ">, but " + expected + " is open");
  }
  --depth_;
  return Found(XmlToken::kClose, start, close + 1);
}

XmlScanner::Step XmlScanner::TakeMarkup(const char* start) {
  constexpr std::string_view kLiteral = "<![CDATA[";
  constexpr std::string_view kDocumentType = "<!DOCTYPE";
  const std::string_view rest(start, static_cast<std::size_t>(window_.End() - start));
  if (rest.starts_with("<!--")) return PassTo(start, 4, "-->");
  if (rest.starts_with(kLiteral)) return TakeLiteral(start);
  if (rest.starts_with(kDocumentType)) return TakeDocumentType(start);
  const bool cut = kLiteral.starts_with(rest) || kDocumentType.starts_with(rest) || rest == "<!-";
  return cut ? Step::kMore : Failed(start, "a declaration that isn't known here");
}

XmlScanner::Step XmlScanner::PassTo(const char* start, std::size_t skip, std::string_view closing) {
  const std::string_view rest(start, static_cast<std::size_t>(window_.End() - start));
  const std::size_t found = rest.find(closing, skip);
  if (found == std::string_view::npos) return Step::kMore;
  return Passed(start + found + closing.size());
}

XmlScanner::Step XmlScanner::TakeLiteral(const char* start) {
  constexpr std::size_t kOpening = 9;
  const std::string_view rest(start, static_cast<std::size_t>(window_.End() - start));
  const std::size_t closing = rest.find("]]>", kOpening);
  if (closing == std::string_view::npos) return Step::kMore;
  if (depth_ == 0) return Failed(start, "text where a tag is expected");
  if (!wants_text_) return Passed(start + closing + 3);
  text_ = rest.substr(kOpening, closing - kOpening);
  literal_ = true;
  return Found(XmlToken::kText, start, start + closing + 3);
}

// The declarations between "[" and "]" hold tags, quotation marks and comments of their own.
XmlScanner::Step XmlScanner::TakeDocumentType(const char* start) {
  char quote = 0;
  int brackets = 0;
  for (const char* at = start; at < window_.End(); ++at) {
    const std::string_view rest(at, static_cast<std::size_t>(window_.End() - at));
    if (quote != 0) {
      if (*at == quote) quote = 0;
    } else if (rest.starts_with("<!--")) {
      const std::size_t closing = rest.find("-->", 4);
      if (closing == std::string_view::npos) return Step::kMore;
      at += closing + 2;
    } else if (*at == '"' || *at == '\'') {
      quote = *at;
    } else if (*at == '[' || *at == ']') {
      brackets += *at == '[' ? 1 : -1;
    } else if (*at == '>' && brackets <= 0) {
      if (had_root_) return Failed(start, "a document type behind the first tag");
      return Passed(at + 1);
    }
  }
  return Step::kMore;
}

XmlScanner::Step XmlScanner::Passed(const char* behind) {
  window_.ConsumeTo(behind);
  while (PlaceOf(mark_) < behind) ++mark_;
  return Step::kPassed;
}

XmlScanner::Step XmlScanner::Found(XmlToken token, const char* start, const char* behind) {
  token_ = token;
  start_ = start;
  Passed(behind);
  return Step::kToken;
}

XmlScanner::Step XmlScanner::Failed(const char* start, std::string_view message) {
  error_ = window_.At(start, message);
  token_ = XmlToken::kError;
  return Step::kToken;
}

XmlToken XmlScanner::Fail(std::string_view message) {
  Failed(start_, message);
  return token_;
}

// The input has ended, or what begins here is longer than anything that a list holds.
XmlToken XmlScanner::AtEnd() {
  const char* const end = window_.End();
  if (window_.TooLong()) {
    Failed(window_.Begin(), "a tag or text of more than 1 MiB");
  } else if (depth_ > 0) {
    Failed(end, "the list ends inside <" + open_[depth_ - 1] + ">");
  } else if (!IsBlank(window_.Rest())) {
    Failed(end, "the list ends in the middle of a tag");
  } else if (!had_root_) {
    Failed(end, "the list is empty");
  } else {
    token_ = XmlToken::kEnd;
    start_ = end;
  }
  return token_;
}

}  // namespace zarvo
