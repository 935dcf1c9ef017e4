// The XML reader's tokenizer (token and text mode) and its parser of declaration, tags, content and comments.
#include "catalog/XmlSaxParser.h"

#include <string_view>

#include "base/TextHelpers.h"

namespace plovix {

namespace {

constexpr std::string_view kPunctuation = "!#$%&'()*+,-/;=?@[]^`{|}~";

bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool isPunctuation(char c) {
  return kPunctuation.find(c) != std::string_view::npos;
}

// The character references text mode decodes, with what each stands for.
struct CharacterReference {
  std::string_view text;
  char replacement;
};
constexpr CharacterReference kReferences[] = {{"&lt;", '<'}, {"&gt;", '>'}, {"&quote;", '"'}};

bool isReferencePrefix(const std::string& text) {
  for (const CharacterReference& reference : kReferences) {
    if (startsWith(reference.text, text)) return true;
  }
  return false;
}

[[noreturn]] void fail(const std::string& message) {
  throw XML_SAX_PARSE_EXCEPTION(message);
}

}  // namespace

void XML_SAX_PARSER::nextToken() {
  tokenText_.clear();
  while (isBlank(current_)) fetch();
  const char c = current_;
  if (c == XML_SAX_INPUT::kEnd) {
    tokenKind_ = kXmlEnd;
  } else if (isPunctuation(c)) {
    tokenKind_ = kXmlPunctuation;
    tokenText_ = c;
    fetch();
  } else if (c == '<') {
    fetch();
    if (current_ == '/') {
      tokenKind_ = kXmlEndTagOpen;
      tokenText_ = "</";
      fetch();
    } else if (current_ == '!') {
      tokenKind_ = kXmlCommentOpen;
      tokenText_ = "<!";
      fetch();
    } else {
      tokenKind_ = kXmlTagOpen;
      tokenText_ = "<";
    }
  } else if (c == '>') {
    tokenKind_ = kXmlTagClose;
    tokenText_ = ">";
    fetch();
  } else if (isDigit(c)) {
    while (isDigit(current_)) {
      tokenText_ += current_;
      fetch();
    }
    tokenKind_ = kXmlNumber;
  } else if (c == '"') {
    fetch();
    if (current_ == '"') {
      // Two quotes in a row give no string: the second one is a token of its own.
      tokenKind_ = kXmlOther;
      tokenText_ = current_;
      fetch();
      return;
    }
    while (current_ != '"') {
      if (current_ == XML_SAX_INPUT::kEnd) fail("Unexpected end of a quoted string encountered");
      tokenText_ += current_;
      fetch();
    }
    tokenKind_ = kXmlString;
    fetch();
  } else if (isLetter(c) || c == '_') {
    while (isLetter(current_) || isDigit(current_) || current_ == '_') {
      tokenText_ += current_;
      fetch();
    }
    tokenKind_ = kXmlIdentifier;
  } else {
    tokenKind_ = kXmlOther;
    tokenText_ = c;
    fetch();
  }
}

void XML_SAX_PARSER::nextTextToken(char terminator) {
  tokenText_.clear();
  while (current_ != terminator) {
    if (current_ == XML_SAX_INPUT::kEnd) fail("Text string terminated unexpectedly");
    readTextCharacter();
  }
  tokenKind_ = kXmlString;
}

void XML_SAX_PARSER::readTextCharacter() {
  if (current_ != '&') {
    tokenText_ += current_;
    fetch();
    return;
  }
  // Read on while the characters still spell the start of a known reference.
  std::string pending(1, '&');
  for (;;) {
    fetch();
    std::string longer = pending + current_;
    if (current_ == XML_SAX_INPUT::kEnd || !isReferencePrefix(longer)) break;
    pending = std::move(longer);
    for (const CharacterReference& reference : kReferences) {
      if (pending == reference.text) {
        tokenText_ += reference.replacement;
        fetch();
        return;
      }
    }
  }
  // Not a reference: its characters stay as they are, and the current one is read on as ordinary text.
  tokenText_ += pending;
}

void XML_SAX_PARSER::expect(const std::string& expected, bool caseSensitive) {
  const bool matches =
      caseSensitive ? tokenText_ == expected : toLowerText(tokenText_) == toLowerText(expected);
  if (!matches) fail("Error: " + expected + " was needed but got " + tokenText_);
  nextToken();
}

void XML_SAX_PARSER::parse() {
  handler_.startDocument();
  nextToken();
  expect("<");
  expect("?");
  expect("xml", false);
  readAttributeList();
  expect("?");
  expect(">");
  const auto version = attributes_.find("version");
  if (version == attributes_.end() || version->second != "1.0") fail("Unknown XML version encountered");
  readContent();
  if (!tokenText_.empty()) fail("Extra input found after the root end tag");
  handler_.endDocument();
}

void XML_SAX_PARSER::readAttributeList() {
  attributes_ = XmlAttributes();
  while (tokenKind_ == kXmlIdentifier) {
    const std::string name = tokenText_;
    nextToken();
    expect("=");
    if (tokenKind_ != kXmlString) fail("Attribute value is missing for attribute : " + name);
    if (attributes_.count(name) != 0) throw XML_EXCEPTION("Duplicate attribute name found");
    attributes_.emplace(name, tokenText_);
    nextToken();
  }
}

std::string XML_SAX_PARSER::readElementName() {
  if (tokenKind_ != kXmlIdentifier) fail("Expected identifier not found");
  std::string name = tokenText_;
  nextToken();
  return name;
}

std::string XML_SAX_PARSER::readStartTag(bool& isEmpty) {
  expect("<");
  std::string name = readElementName();
  readAttributeList();
  isEmpty = tokenText_ == "/";
  if (isEmpty) nextToken();
  expect(">");
  return name;
}

std::string XML_SAX_PARSER::readEndTag() {
  expect("</");
  std::string name = readElementName();
  expect(">");
  return name;
}

// An element's content is any number of child elements followed by at most one text run or comment. The
// open elements are kept on a list rather than the call stack, so deep nesting cannot exhaust the stack.
void XML_SAX_PARSER::readContent() {
  std::vector<std::string> open;
  for (;;) {
    if (tokenText_ == "<") {
      bool isEmpty = false;
      std::string name = readStartTag(isEmpty);
      handler_.startElement(name, attributes_);
      if (isEmpty) {
        handler_.endElement(name);
      } else {
        open.push_back(std::move(name));
      }
      continue;
    }
    if (tokenText_ == "<!") {
      readComment();
    } else if (tokenText_ != "</" && tokenKind_ != kXmlEnd) {
      readTextRun();
    }
    if (open.empty()) return;
    const std::string endName = readEndTag();
    if (endName != open.back()) {
      fail("Start (" + open.back() + ") and end tag (" + endName + ") identifiers do not match");
    }
    handler_.endElement(endName);
    open.pop_back();
  }
}

void XML_SAX_PARSER::readTextRun() {
  std::string run = tokenText_;
  nextTextToken('<');
  run += tokenText_;
  handler_.characters(run);
  nextToken();
}

void XML_SAX_PARSER::readComment() {
  if (current_ != '-') fail("Unknown comment tag combination encountered");
  nextToken();
  expect("-");
  expect("-");
  nextTextToken('-');
  nextToken();
  expect("-");
  expect("-");
  expect(">");
}

}  // namespace plovix
