// The XML reader's character sources: the abstract byte source and the one that reads an in-memory string.
#pragma once

#include <cstddef>
#include <string>

namespace plovix {

// A source of bytes for the XML reader, read one at a time.
class XML_SAX_INPUT {
 public:
  // The end marker; a 0xFF byte inside the input reads the same and so ends it.
  static constexpr char kEnd = static_cast<char>(-1);

  virtual ~XML_SAX_INPUT() = default;

  // The next byte, or kEnd once the input is exhausted (and on every call after that).
  virtual char nextChar() = 0;
};

// A source over a copy of a string.
class XML_SAX_STRING_INPUT : public XML_SAX_INPUT {
 public:
  explicit XML_SAX_STRING_INPUT(std::string text) : text_(std::move(text)) {}

  char nextChar() override {
    lastChar_ = position_ < text_.size() ? text_[position_++] : kEnd;
    return lastChar_;
  }

 private:
  std::string text_;
  std::size_t position_ = 0;
  char lastChar_ = kEnd;
};

}  // namespace plovix
