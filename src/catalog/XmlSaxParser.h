// The XML reader's parser and tokenizer: reads one document from a source and calls a handler as it goes.
#pragma once

#include <string>
#include <vector>

#include "catalog/XmlExceptions.h"
#include "catalog/XmlSaxHandler.h"
#include "catalog/XmlSaxInput.h"

namespace plovix {

// Token kinds with their fixed codes.
enum XmlTokenKind : int {
  kXmlOther = 0,
  kXmlEnd = 1,
  kXmlPunctuation = 2,
  kXmlCommentOpen = 3,
  kXmlTagOpen = 4,
  kXmlEndTagOpen = 5,
  kXmlTagClose = 6,
  kXmlNumber = 7,
  kXmlString = 8,
  kXmlIdentifier = 9,
};

// Accepts a small subset of XML 1.0: the declaration with version "1.0", elements with double-quoted
// attributes, one text run or comment after an element's children, and the references &lt; &gt; &quote;.
// The source and the handler are not owned; a parser reads one document.
class XML_SAX_PARSER {
 public:
  XML_SAX_PARSER(XML_SAX_INPUT& source, XML_SAX_HANDLER& handler) : source_(source), handler_(handler) {}

  // Reads the whole document; raises XML_SAX_PARSE_EXCEPTION or XML_EXCEPTION at the first fault.
  void parse();

 private:
  void fetch() { current_ = source_.nextChar(); }
  void nextToken();
  void nextTextToken(char terminator);
  void readTextCharacter();
  void expect(const std::string& expected, bool caseSensitive = true);
  void readAttributeList();
  // Reads a start tag; gives the element name and sets `isEmpty` for an empty-element tag.
  std::string readStartTag(bool& isEmpty);
  std::string readEndTag();
  std::string readElementName();
  void readContent();
  void readComment();
  void readTextRun();

  char current_ = ' ';
  std::string tokenText_;
  int tokenKind_ = kXmlOther;
  XML_SAX_INPUT& source_;
  XML_SAX_HANDLER& handler_;
  XmlAttributes attributes_;
};

}  // namespace plovix
