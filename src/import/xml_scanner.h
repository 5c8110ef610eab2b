// Takes XML apart, one tag or text after the other, in a window that slides over the input.
//
// It knows what lists of games are made of: elements, attributes, text, the five named entities and
// numbered characters, CDATA, comments, processing instructions and a document type with an
// internal subset (passed over). Every tag is closed by its own name, quotation marks pair up, and
// one element holds all others. Attributes are looked at only when somebody asks for them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "import/input_window.h"
#include "import/mark_index.h"

namespace zarvo {

enum class XmlToken { kOpen, kClose, kText, kEnd, kError };

// Walks over the attributes of a tag, which 15 readable bytes follow.
class AttributeReader {
 public:
  explicit AttributeReader(std::string_view attributes) : rest_(attributes) {}
  // False behind the last attribute, and where no attribute can be made out.
  bool Next();
  [[nodiscard]] std::string_view Name() const { return name_; }
  [[nodiscard]] std::string_view Value() const { return value_; }  // entities as they stand
  [[nodiscard]] bool Broken() const { return broken_; }

 private:
  std::string_view rest_;
  std::string_view name_;
  std::string_view value_;
  bool broken_ = false;
};

// Appends `text` to `out` in UTF-8 with its entities resolved. False for an entity that XML doesn't
// have; what stands before it has been appended.
bool AppendXmlText(std::string_view text, std::string& out);

// Letters of ASCII, "_", ":" and every byte of a character beyond ASCII.
inline bool BeginsXmlName(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const auto letter = static_cast<unsigned char>((byte | 0x20) - 'a');
  return letter < 26 || byte == '_' || byte == ':' || byte >= 0x80;
}

class XmlScanner {
 public:
  explicit XmlScanner(InputWindow& window);

  // The next token. What the functions below give stays valid until the next call. A text that
  // holds blanks alone is passed over.
  XmlToken Next();
  // Passes over self-closing tags for as long as `unwanted` says so of their names with what
  // follows them. Call it inside an element and where no text is wanted.
  template <typename Unwanted>
  void PassOver(Unwanted unwanted);
  // Whether texts are tokens; otherwise, as at first, they are passed over unseen.
  void WantText(bool wanted) { wants_text_ = wanted; }

  [[nodiscard]] std::string_view Name() const { return name_; }              // kOpen
  [[nodiscard]] std::string_view Attributes() const { return attributes_; }  // kOpen
  [[nodiscard]] bool SelfClosing() const { return self_closing_; }           // kOpen
  [[nodiscard]] std::string_view Text() const { return text_; }              // kText
  [[nodiscard]] bool Literal() const { return literal_; }  // kText: CDATA, which has no entities
  // How many elements are open around what comes next.
  [[nodiscard]] std::size_t Depth() const { return depth_; }
  [[nodiscard]] const std::string& Error() const { return error_; }

  // Makes an error of the token at hand, with its line: "line 7: message".
  XmlToken Fail(std::string_view message);

 private:
  enum class Step { kToken, kPassed, kMore };

  void FindMarks();
  [[nodiscard]] const char* PlaceOf(const Mark* mark) const { return base_ + mark->Place(); }
  Step Take();
  Step TakeText(const char* tag);
  Step TakeTag(const char* start);
  Step TakeOpen(const char* start);
  Step TakeClose(const char* start);
  Step TakeMarkup(const char* start);
  Step TakeDocumentType(const char* start);
  Step PassTo(const char* start, std::size_t skip, std::string_view closing);
  Step TakeLiteral(const char* start);
  Step Passed(const char* behind);
  Step Found(XmlToken token, const char* start, const char* behind);
  Step Failed(const char* start, std::string_view message);
  XmlToken AtEnd();

  InputWindow& window_;
  MarkIndex index_;
  const char* base_ = nullptr;  // what the marks were counted from
  const Mark* mark_ = nullptr;  // the first that hasn't been passed
  bool wants_text_ = false;
  XmlToken token_ = XmlToken::kEnd;
  std::string_view name_;
  std::string_view attributes_;
  std::string_view text_;
  const char* start_ = nullptr;  // of the token
  bool self_closing_ = false;
  bool literal_ = false;
  bool had_root_ = false;
  std::size_t depth_ = 0;
  std::vector<std::string> open_;  // names of the open elements; longer than depth_
  std::string error_;
};

template <typename Unwanted>
void XmlScanner::PassOver(Unwanted unwanted) {
  const Mark* const first = mark_;
  while (true) {
    const char* const open = PlaceOf(mark_);
    const char* const close = PlaceOf(mark_ + 1);
    if (*open != '<' || !BeginsXmlName(open[1]) || *close != '>' || close[-1] != '/' ||
        !mark_[0].QuotesPairUpTo(mark_[1]) ||
        !unwanted(std::string_view(open + 1, static_cast<std::size_t>(close - open - 2)))) {
      break;
    }
    mark_ += 2;
  }
  if (mark_ != first) window_.ConsumeTo(PlaceOf(mark_ - 1) + 1);
}

}  // namespace zarvo
