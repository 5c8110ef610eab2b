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

namespace zarvo {

enum class XmlToken { kOpen, kClose, kText, kEnd, kError };

// Walks over the attributes of a tag.
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

class XmlScanner {
 public:
  explicit XmlScanner(InputWindow& window);

  // The next token. What the functions below give stays valid until the next call. A text that
  // holds blanks alone is passed over.
  XmlToken Next();

  [[nodiscard]] std::string_view Name() const { return name_; }              // kOpen, kClose
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

  Step Take();
  Step TakeText(const char* start, const char* end);
  Step TakeTag(const char* start);
  Step TakeOpen(const char* start);
  Step TakeClose(const char* start);
  Step TakeMarkup(const char* start);
  Step TakeDocumentType(const char* start);
  Step PassTo(const char* start, std::size_t skip, std::string_view closing);
  Step TakeLiteral(const char* start);
  Step Found(XmlToken token, const char* start, const char* behind);
  Step Failed(const char* start, std::string_view message);
  XmlToken AtEnd();

  InputWindow& window_;
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

}  // namespace zarvo
