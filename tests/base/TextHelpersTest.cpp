// Tests of the small text operations: tokens, integers, bound expressions and literals.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "base/Format.h"
#include "base/TextHelpers.h"

namespace plovix {
namespace {

TEST(SplitFirstToken, SkipsSeparatorsAroundTheToken) {
  std::string text = " \ta b";
  EXPECT_EQ(splitFirstToken(text, " \t"), "a");
  EXPECT_EQ(text, "b");
  EXPECT_EQ(splitFirstToken(text, " \t"), "b");
  EXPECT_EQ(text, "");

  std::string onlySeparators = " \t ";
  EXPECT_EQ(splitFirstToken(onlySeparators, " \t"), "");
  EXPECT_EQ(onlySeparators, "");

  std::string percent = "%%name%rest%";
  EXPECT_EQ(splitFirstToken(percent, "%"), "name");
  EXPECT_EQ(percent, "rest%");
}

TEST(IsIntegerText, AcceptsOnlyAnOptionalMinusAndDigits) {
  for (const char* yes : {"0", "-12", "-", "007"}) EXPECT_TRUE(isIntegerText(yes)) << yes;
  for (const char* no : {"+5", "1.5", "", "12 ", " 12", "--1", "a"}) EXPECT_FALSE(isIntegerText(no)) << no;
}

TEST(UpperBoundText, BothNumeric) {
  EXPECT_EQ(upperBoundText("8", "0"), "7");
  EXPECT_EQ(upperBoundText("8", "4"), "11");
  EXPECT_EQ(upperBoundText("-8", "7"), "0");
  EXPECT_EQ(upperBoundText("0", "5"), "5");
  EXPECT_EQ(upperBoundText(" 8 ", " 2 "), "9");
  EXPECT_EQ(upperBoundText("5-3", "0"), "4");  // numeric characters only: read as 5
  EXPECT_EQ(upperBoundText("", "3"), "3");     // an empty width is the number 0
  EXPECT_EQ(upperBoundText("2147483647", "2"), "-2147483648") << "32-bit arithmetic wraps";
}

TEST(UpperBoundText, SymbolicBounds) {
  EXPECT_EQ(upperBoundText("8", "N"), "N+7");
  EXPECT_EQ(upperBoundText("-3", "N"), "N-2");
  EXPECT_EQ(upperBoundText("1", "N"), "N");
  EXPECT_EQ(upperBoundText("-1", "N"), "N");
  EXPECT_EQ(upperBoundText("W", "0"), "W-1");
  EXPECT_EQ(upperBoundText("W", "1"), "W");
  EXPECT_EQ(upperBoundText("W", "3"), "W+2");
  EXPECT_EQ(upperBoundText("W", "N"), "N+W-1");
}

TEST(Literals, HexadecimalDigitsPaddedOrCut) {
  EXPECT_EQ(hexLiteral("10", 8), "0A");
  EXPECT_EQ(hexLiteral("255", 4), "F");
  EXPECT_EQ(hexLiteral("-1", 16), "FFFF");
  EXPECT_EQ(hexLiteral("-1", 40), "FFFFFFFFFF");
  EXPECT_EQ(hexLiteral("5", 1), "5");
  EXPECT_EQ(hexLiteral("4096", 12), "000");
}

TEST(Literals, BinaryDigitsPaddedOrCut) {
  EXPECT_EQ(binaryLiteral("5", 8), "00000101");
  EXPECT_EQ(binaryLiteral("5", 2), "01");
  EXPECT_EQ(binaryLiteral("-2", 4), "1110");
  EXPECT_EQ(binaryLiteral("0", 3), "000");
  EXPECT_EQ(binaryLiteral("-1", 34), "1111111111111111111111111111111111");
}

TEST(TextHelpers, TrimmingAndConversions) {
  EXPECT_EQ(trimText(" \t\r\n\v\fa b \n"), "a b");
  EXPECT_EQ(trimRight("x  "), "x");
  EXPECT_EQ(trimLeft("  x "), "x ");
  EXPECT_EQ(atoiText("  -42abc"), -42);
  EXPECT_EQ(atoiText("abc"), 0);
  EXPECT_EQ(replaceAll("a/b/c", "/", "\\"), "a\\b\\c");
  EXPECT_TRUE(isTrueText("TRUE"));
  EXPECT_FALSE(isTrueText("true"));
}

// formatText walks the format itself: it must give what printf gives, for texts of any size.
TEST(TextHelpers, FormatTextGivesWhatPrintfGives) {
  const std::string big(1 << 20, 'b');
  char expected[256];
  const auto same = [&](const std::string& got, int length) { return got == std::string(expected, length); };
  EXPECT_TRUE(same(
      formatText("%s+%d|%5s|%-4s|%.2s|%*d", "N", 7, "ab", "c", "xyz", 4, -3),
      std::snprintf(expected, sizeof expected, "%s+%d|%5s|%-4s|%.2s|%*d", "N", 7, "ab", "c", "xyz", 4, -3)));
  EXPECT_TRUE(same(formatText("%lld %+lld %.2d %X %x %o %u %ld %c %% %zu %hhd %hu %-3d|%05.1f", -9LL, 5LL, 3,
                              255u, -1, 8u, 4u, -1L, 'q', size_t{7}, 300, 70000, 2, 1.25),
                   std::snprintf(expected, sizeof expected,
                                 "%lld %+lld %.2d %X %x %o %u %ld %c %% %zu %hhd %hu %-3d|%05.1f", -9LL, 5LL,
                                 3, 255u, -1, 8u, 4u, -1L, 'q', size_t{7}, 300, 70000, 2, 1.25)));
  EXPECT_EQ(formatText("<%s>%s", big.c_str(), "."), "<" + big + ">.");
  std::string out = "x";
  appendFormatted(out, "%s-%d", "y", 1);
  EXPECT_EQ(out, "xy-1");
}

}  // namespace
}  // namespace plovix
