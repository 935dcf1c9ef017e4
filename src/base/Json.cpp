// Reading and writing JSON text (RFC 8259): a recursive reader with a depth limit, and the writer.
#include "base/Json.h"

#include <charconv>
#include <cstdint>

#include "base/Format.h"

namespace plovix {

JsonValue JsonValue::ofBool(bool value) {
  JsonValue v;
  v.kind = JsonKind::kBool;
  v.boolean = value;
  return v;
}

JsonValue JsonValue::ofInteger(long long value) {
  JsonValue v;
  v.kind = JsonKind::kNumber;
  v.text = formatInt(value);
  return v;
}

JsonValue JsonValue::ofString(std::string value) {
  JsonValue v;
  v.kind = JsonKind::kString;
  v.text = std::move(value);
  return v;
}

JsonValue JsonValue::array() {
  JsonValue v;
  v.kind = JsonKind::kArray;
  return v;
}

JsonValue JsonValue::object() {
  JsonValue v;
  v.kind = JsonKind::kObject;
  return v;
}

JsonValue JsonValue::ofStrings(const std::vector<std::string>& values) {
  JsonValue v = array();
  for (const std::string& value : values) v.push(ofString(value));
  return v;
}

JsonValue& JsonValue::add(std::string name, JsonValue value) {
  members.push_back({std::move(name), std::move(value)});
  return *this;
}

JsonValue& JsonValue::push(JsonValue value) {
  items.push_back(std::move(value));
  return *this;
}

const JsonValue* JsonValue::member(std::string_view name) const {
  for (const auto& [key, value] : members)
    if (key == name) return &value;
  return nullptr;
}

bool JsonValue::integer(long long& out) const {
  if (kind != JsonKind::kNumber) return false;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, out);
  return error == std::errc() && stop == end;
}

namespace {

class JsonReader {
 public:
  explicit JsonReader(std::string_view text) : text_(text) {}

  bool readDocument(JsonValue& out, JsonError& error) {
    skipBlanks();
    bool ok = readValue(out, 1);
    if (ok) {
      skipBlanks();
      if (pos_ < text_.size()) ok = fail(Msg::kJsonTrailingText);
    }
    if (!ok) error = where();
    return ok;
  }

 private:
  bool fail(Msg message) {
    failure_ = message;
    return false;
  }

  JsonError where() const {
    JsonError error;
    error.message = failure_;
    error.line = 1;
    size_t lineStart = 0;
    for (size_t i = 0; i < pos_ && i < text_.size(); ++i) {
      if (text_[i] == '\n') {
        ++error.line;
        lineStart = i + 1;
      }
    }
    error.column = pos_ - lineStart + 1;
    return error;
  }

  void skipBlanks() {
    while (pos_ < text_.size() &&
           (text_[pos_] == ' ' || text_[pos_] == '\t' || text_[pos_] == '\n' || text_[pos_] == '\r'))
      ++pos_;
  }

  bool atEnd() const { return pos_ >= text_.size(); }

  bool readWord(std::string_view word) {
    if (text_.substr(pos_, word.size()) != word) return fail(Msg::kJsonUnexpectedCharacter);
    pos_ += word.size();
    return true;
  }

  bool readValue(JsonValue& out, size_t depth) {
    if (depth > kJsonMaxDepth) return fail(Msg::kJsonTooDeep);
    if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
    switch (text_[pos_]) {
      case '{':
        return readObject(out, depth);
      case '[':
        return readArray(out, depth);
      case '"':
        out = JsonValue::ofString({});
        return readString(out.text);
      case 't':
        out = JsonValue::ofBool(true);
        return readWord("true");
      case 'f':
        out = JsonValue::ofBool(false);
        return readWord("false");
      case 'n':
        out = JsonValue();
        return readWord("null");
      default:
        return readNumber(out);
    }
  }

  bool readObject(JsonValue& out, size_t depth) {
    out = JsonValue::object();
    ++pos_;
    skipBlanks();
    if (!atEnd() && text_[pos_] == '}') {
      ++pos_;
      return true;
    }
    for (;;) {
      skipBlanks();
      if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
      if (text_[pos_] != '"') return fail(Msg::kJsonUnexpectedCharacter);
      std::string name;
      if (!readString(name)) return false;
      skipBlanks();
      if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
      if (text_[pos_] != ':') return fail(Msg::kJsonUnexpectedCharacter);
      ++pos_;
      skipBlanks();
      JsonValue value;
      if (!readValue(value, depth + 1)) return false;
      out.add(std::move(name), std::move(value));
      if (!readSeparator('}')) return false;
      if (text_[pos_ - 1] == '}') return true;
    }
  }

  bool readArray(JsonValue& out, size_t depth) {
    out = JsonValue::array();
    ++pos_;
    skipBlanks();
    if (!atEnd() && text_[pos_] == ']') {
      ++pos_;
      return true;
    }
    for (;;) {
      skipBlanks();
      JsonValue value;
      if (!readValue(value, depth + 1)) return false;
      out.push(std::move(value));
      if (!readSeparator(']')) return false;
      if (text_[pos_ - 1] == ']') return true;
    }
  }

  // After a member or an item: a comma, or the closing bracket (consumed either way).
  bool readSeparator(char closing) {
    skipBlanks();
    if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
    if (text_[pos_] != ',' && text_[pos_] != closing) return fail(Msg::kJsonUnexpectedCharacter);
    ++pos_;
    return true;
  }

  bool readHex4(uint32_t& value) {
    if (text_.size() - pos_ < 4) return fail(Msg::kJsonBadEscape);
    value = 0;
    for (int i = 0; i < 4; ++i) {
      const char c = text_[pos_++];
      value <<= 4;
      if (c >= '0' && c <= '9') {
        value |= static_cast<uint32_t>(c - '0');
      } else if (c >= 'a' && c <= 'f') {
        value |= static_cast<uint32_t>(c - 'a' + 10);
      } else if (c >= 'A' && c <= 'F') {
        value |= static_cast<uint32_t>(c - 'A' + 10);
      } else {
        --pos_;
        return fail(Msg::kJsonBadEscape);
      }
    }
    return true;
  }

  static void appendUtf8(std::string& out, uint32_t code) {
    if (code < 0x80) {
      out += static_cast<char>(code);
    } else if (code < 0x800) {
      out += static_cast<char>(0xC0 | (code >> 6));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
      out += static_cast<char>(0xE0 | (code >> 12));
      out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (code >> 18));
      out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (code & 0x3F));
    }
  }

  // A \u escape after its backslash and "u": one code unit, or a surrogate pair written as two escapes.
  bool readUnicodeEscape(std::string& out) {
    uint32_t code = 0;
    if (!readHex4(code)) return false;
    if (code >= 0xDC00 && code <= 0xDFFF) return fail(Msg::kJsonBadEscape);
    if (code >= 0xD800 && code <= 0xDBFF) {
      uint32_t low = 0;
      if (text_.substr(pos_, 2) != "\\u") return fail(Msg::kJsonBadEscape);
      pos_ += 2;
      if (!readHex4(low)) return false;
      if (low < 0xDC00 || low > 0xDFFF) return fail(Msg::kJsonBadEscape);
      code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
    }
    appendUtf8(out, code);
    return true;
  }

  bool readString(std::string& out) {
    ++pos_;  // the opening quote
    for (;;) {
      if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
      const char c = text_[pos_];
      if (c == '"') {
        ++pos_;
        return true;
      }
      if (static_cast<unsigned char>(c) < 0x20) return fail(Msg::kJsonControlCharacter);
      ++pos_;
      if (c != '\\') {
        out += c;
        continue;
      }
      if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
      const char e = text_[pos_++];
      switch (e) {
        case '"':
        case '\\':
        case '/':
          out += e;
          break;
        case 'b':
          out += '\b';
          break;
        case 'f':
          out += '\f';
          break;
        case 'n':
          out += '\n';
          break;
        case 'r':
          out += '\r';
          break;
        case 't':
          out += '\t';
          break;
        case 'u':
          if (!readUnicodeEscape(out)) return false;
          break;
        default:
          --pos_;
          return fail(Msg::kJsonBadEscape);
      }
    }
  }

  bool readDigits() {
    const size_t start = pos_;
    while (!atEnd() && text_[pos_] >= '0' && text_[pos_] <= '9') ++pos_;
    return pos_ > start || fail(atEnd() ? Msg::kJsonUnexpectedEnd : Msg::kJsonBadNumber);
  }

  bool readNumber(JsonValue& out) {
    const size_t start = pos_;
    if (text_[pos_] == '-') ++pos_;
    if (atEnd()) return fail(Msg::kJsonUnexpectedEnd);
    if (text_[pos_] < '0' || text_[pos_] > '9')
      return fail(pos_ == start ? Msg::kJsonUnexpectedCharacter : Msg::kJsonBadNumber);
    if (text_[pos_] == '0') {
      ++pos_;
    } else if (!readDigits()) {
      return false;
    }
    if (!atEnd() && text_[pos_] == '.') {
      ++pos_;
      if (!readDigits()) return false;
    }
    if (!atEnd() && (text_[pos_] == 'e' || text_[pos_] == 'E')) {
      ++pos_;
      if (!atEnd() && (text_[pos_] == '+' || text_[pos_] == '-')) ++pos_;
      if (!readDigits()) return false;
    }
    out = JsonValue();
    out.kind = JsonKind::kNumber;
    out.text = std::string(text_.substr(start, pos_ - start));
    return true;
  }

  std::string_view text_;
  size_t pos_ = 0;
  Msg failure_ = Msg::kUnknownError;
};

void writeString(const std::string& text, std::string& out) {
  out += '"';
  for (const char c : text) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          out += formatText("\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(c)));
        } else {
          out += c;
        }
    }
  }
  out += '"';
}

void writeValue(const JsonValue& value, bool indented, size_t level, std::string& out) {
  const auto newLine = [&](size_t depth) {
    if (indented) out += "\n" + std::string(2 * depth, ' ');
  };
  switch (value.kind) {
    case JsonKind::kNull:
      out += "null";
      return;
    case JsonKind::kBool:
      out += value.boolean ? "true" : "false";
      return;
    case JsonKind::kNumber:
      out += value.text;
      return;
    case JsonKind::kString:
      writeString(value.text, out);
      return;
    case JsonKind::kArray:
      out += '[';
      for (size_t i = 0; i < value.items.size(); ++i) {
        if (i > 0) out += indented ? "," : ", ";
        newLine(level + 1);
        writeValue(value.items[i], indented, level + 1, out);
      }
      if (!value.items.empty()) newLine(level);
      out += ']';
      return;
    case JsonKind::kObject:
      out += '{';
      for (size_t i = 0; i < value.members.size(); ++i) {
        if (i > 0) out += indented ? "," : ", ";
        newLine(level + 1);
        writeString(value.members[i].name, out);
        out += ": ";
        writeValue(value.members[i].value, indented, level + 1, out);
      }
      if (!value.members.empty()) newLine(level);
      out += '}';
      return;
  }
}

}  // namespace

bool parseJson(std::string_view text, JsonValue& out, JsonError& error) {
  JsonValue value;
  if (!JsonReader(text).readDocument(value, error)) return false;
  out = std::move(value);
  return true;
}

std::string writeJson(const JsonValue& value, bool indented) {
  std::string out;
  writeValue(value, indented, 0, out);
  return out;
}

}  // namespace plovix
