// The exceptions the XML reader raises for malformed input, each carrying its message text.
#pragma once

#include <string>

namespace plovix {

class XML_SAX_EXCEPTION {
 public:
  explicit XML_SAX_EXCEPTION(std::string message) : message_(std::move(message)) {}
  const std::string& message() const { return message_; }

 private:
  std::string message_;
};

// Every syntax error of a document.
class XML_SAX_PARSE_EXCEPTION : public XML_SAX_EXCEPTION {
 public:
  using XML_SAX_EXCEPTION::XML_SAX_EXCEPTION;
};

// A tag that names one attribute twice; unrelated to the SAX exceptions.
class XML_EXCEPTION {
 public:
  explicit XML_EXCEPTION(std::string message) : message_(std::move(message)) {}
  const std::string& message() const { return message_; }

 private:
  std::string message_;
};

}  // namespace plovix
