// A small JSON value with its reader and writer: run manifests, check reports and modulon descriptions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/Messages.h"

namespace plovix {

enum class JsonKind { kNull, kBool, kNumber, kString, kArray, kObject };

struct JsonMember;

// One JSON value. Strings are byte strings: the reader turns \u escapes into UTF-8, the writer passes bytes
// of 0x80 and above through as they are. A number keeps its literal text.
struct JsonValue {
  JsonKind kind = JsonKind::kNull;
  bool boolean = false;
  std::string text;                 // a string's bytes or a number's literal
  std::vector<JsonValue> items;     // an array's values
  std::vector<JsonMember> members;  // an object's members, in order

  static JsonValue ofBool(bool value);
  static JsonValue ofInteger(long long value);
  static JsonValue ofString(std::string value);
  static JsonValue array();
  static JsonValue object();
  // An array of strings.
  static JsonValue ofStrings(const std::vector<std::string>& values);

  // Appends a member to an object / a value to an array; gives the object or array for chaining.
  JsonValue& add(std::string name, JsonValue value);
  JsonValue& push(JsonValue value);

  // The first member of that name, or null.
  const JsonValue* member(std::string_view name) const;
  // A number without fraction or exponent that fits a long long.
  bool integer(long long& out) const;
};

// One member of an object.
struct JsonMember {
  std::string name;
  JsonValue value;
};

// The most values nested in one another that the reader takes.
inline constexpr size_t kJsonMaxDepth = 64;

// Where a text stops being JSON: 1-based line and column of the byte, and what is wrong there.
struct JsonError {
  size_t line = 0;
  size_t column = 0;
  Msg message = Msg::kUnknownError;
};

// Reads one JSON value that fills the whole text (white space around it allowed).
bool parseJson(std::string_view text, JsonValue& out, JsonError& error);

// The value as JSON text: on one line, or indented by two blanks per level; no line end after it.
std::string writeJson(const JsonValue& value, bool indented = false);

}  // namespace plovix
