// The one printf-style formatting helper that every generated text and message is built with.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace plovix {

// Formats like printf and returns the result as a byte string.
std::string formatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Formats like formatText and appends the result to `out`, with no text of its own in between: for the many
// short lines of a generated section.
void appendFormatted(std::string& out, const char* format, ...) __attribute__((format(printf, 2, 3)));

// Fills a template whose only conversions are "%s" (and "%%" for a percent sign) with `texts`, in order, in
// one pass: for templates around sections of megabytes, which formatText would measure and copy twice. As
// with formatText, a text ends at its first NUL.
std::string fillTemplate(std::string_view format, std::initializer_list<std::string_view> texts);

// "%d" of an integer and "%c" of a character.
std::string formatInt(long long value);
std::string formatChar(char c);

}  // namespace plovix
