// The one printf-style formatting helper that every generated text and message is built with.
#pragma once

#include <string>

namespace plovix {

// Formats like printf and returns the result as a byte string.
std::string formatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

// "%d" of an integer and "%c" of a character.
std::string formatInt(long long value);
std::string formatChar(char c);

}  // namespace plovix
