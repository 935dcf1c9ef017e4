// Tests of the JSON reader and writer: what round-trips, and where and why bad text is refused.
#include <gtest/gtest.h>

#include "base/Json.h"

namespace plovix {
namespace {

// Each text is read and written again on one line: the result is the canonical form.
TEST(Json, ReadsAndWritesBackCanonically) {
  const std::pair<std::string, std::string> cases[] = {
      {" {\"a\" :[1, -2.5e+3, true,false, null],\n\"b\":{}}\n",
       "{\"a\": [1, -2.5e+3, true, false, null], \"b\": {}}"},
      {R"("\u00e9\ud83d\ude00\/\b\f\n\r\t\"\\")",
       "\"\xc3\xa9\xf0\x9f\x98\x80/\\u0008\\u000c\\n\\r\\t\\\"\\\\\""},
      {"[[]]", "[[]]"},
      {"\"\x01x\"", ""},  // refused: a raw control character
      {"0", "0"},
      {"\"caf\xe9\"", "\"caf\xe9\""},  // bytes that are not UTF-8 pass through
  };
  for (const auto& [text, canonical] : cases) {
    JsonValue value;
    JsonError error;
    const bool read = parseJson(text, value, error);
    EXPECT_EQ(read, !canonical.empty()) << text;
    if (read) {
      EXPECT_EQ(writeJson(value), canonical) << text;
    }
  }
}

TEST(Json, RefusesBadTextNamingLineColumnAndFault) {
  const struct {
    std::string text;
    size_t line, column;
    Msg message;
  } cases[] = {
      {"{\"a\":1,}", 1, 8, Msg::kJsonUnexpectedCharacter},
      {"[1,\n 2", 2, 3, Msg::kJsonUnexpectedEnd},
      {"[01]", 1, 3, Msg::kJsonUnexpectedCharacter},
      {"-", 1, 2, Msg::kJsonUnexpectedEnd},
      {"1.e5", 1, 3, Msg::kJsonBadNumber},
      {"\"\\x\"", 1, 3, Msg::kJsonBadEscape},
      {"\"\\udc00\"", 1, 8, Msg::kJsonBadEscape},
      {"\"\\ud800x\"", 1, 8, Msg::kJsonBadEscape},
      {"{} {}", 1, 4, Msg::kJsonTrailingText},
      {"tru", 1, 1, Msg::kJsonUnexpectedCharacter},
      {"", 1, 1, Msg::kJsonUnexpectedEnd},
      {std::string(kJsonMaxDepth + 1, '['), 1, kJsonMaxDepth + 1, Msg::kJsonTooDeep},
  };
  for (const auto& c : cases) {
    JsonValue value;
    JsonError error;
    ASSERT_FALSE(parseJson(c.text, value, error)) << c.text;
    EXPECT_EQ(error.line, c.line) << c.text;
    EXPECT_EQ(error.column, c.column) << c.text;
    EXPECT_EQ(error.message, c.message) << c.text;
  }
}

TEST(Json, IntegersOnlyWhenTheyFit) {
  long long out = 0;
  JsonValue value;
  JsonError error;
  ASSERT_TRUE(parseJson("[9223372036854775807, 9223372036854775808, 1.0, -3]", value, error));
  EXPECT_TRUE(value.items[0].integer(out));
  EXPECT_FALSE(value.items[1].integer(out));
  EXPECT_FALSE(value.items[2].integer(out));
  EXPECT_TRUE(value.items[3].integer(out));
  EXPECT_EQ(out, -3);
  EXPECT_EQ(writeJson(JsonValue::object().add("k", JsonValue::ofStrings({"a"})), true),
            "{\n  \"k\": [\n    \"a\"\n  ]\n}");
}

}  // namespace
}  // namespace plovix
