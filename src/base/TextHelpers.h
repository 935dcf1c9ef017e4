// Small text operations: tokens, integers, bound expressions, hexadecimal and binary literals, trimming.
#pragma once

#include <string>
#include <string_view>

namespace plovix {

// The characters that trimming removes (the C isspace set).
inline constexpr std::string_view kBlankCharacters = " \t\n\v\f\r";

std::string trimText(std::string_view text);
std::string trimLeft(std::string_view text);
std::string trimRight(std::string_view text);
std::string toLowerText(std::string_view text);
std::string toUpperText(std::string_view text);
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);
bool startsWith(std::string_view text, std::string_view prefix);
bool endsWith(std::string_view text, std::string_view suffix);
bool equalsIgnoringCase(std::string_view a, std::string_view b);

// The C library's decimal conversion: leading blanks, an optional sign, digits up to the first other
// character; 0 when there are none.
long long atoiText(std::string_view text);

// Skips leading separators, takes the following run of non-separators as the token, skips the separators
// after it and leaves the rest in `text`.
std::string splitFirstToken(std::string& text, std::string_view separators);

// Empty is false; one leading "-" is skipped; the rest must be decimal digits only (a lone "-" passes).
bool isIntegerText(std::string_view text);

bool isTrueText(std::string_view text);

// The last index of a range of `width` elements starting at `low`, simplified when both are numbers.
std::string upperBoundText(std::string_view width, std::string_view low);

// The value in hexadecimal (or binary) digits, padded or cut to the digits that `bits` needs.
std::string hexLiteral(std::string_view value, int bits);
std::string binaryLiteral(std::string_view value, int bits);

}  // namespace plovix
