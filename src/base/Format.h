// The one printf-style formatting helper that every generated text and message is built with.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace plovix {

// Formats like printf and returns the result as a byte string. Texts of any length are copied whole (their
// sizes are size_t), so the result never depends on an int's range; a conversion that cannot be made
// throws (std::invalid_argument for one this helper does not know, std::length_error for a number that
// cannot be formatted) instead of giving a short or empty text.
std::string formatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Formats like formatText and appends the result to `out`, with no text of its own in between: for the many
// short lines of a generated section.
void appendFormatted(std::string& out, const char* format, ...) __attribute__((format(printf, 2, 3)));

// A text filled into a template by fillTemplate: a text, or a section that appends itself to the result, so
// that a section of megabytes is written once, in place, instead of being built apart and copied.
class TemplatePart {
 public:
  TemplatePart(std::string_view text) : text_(text) {}
  TemplatePart(const std::string& text) : text_(text) {}
  TemplatePart(const char* text) : text_(text) {}
  template <class Append>
  requires std::is_invocable_v<Append&, std::string&> TemplatePart(Append&& append)
      : append_(std::forward<Append>(append)) {}

  // Appends the part to `out`; as with formatText, the part ends at its first NUL.
  void appendTo(std::string& out) const;

 private:
  std::string_view text_;
  std::function<void(std::string&)> append_;
};

// Fills a template whose only conversions are "%s" (and "%%" for a percent sign) with `parts`, in order,
// in one pass: for templates around sections of megabytes, which formatText would measure and copy twice.
std::string fillTemplate(std::string_view format, std::initializer_list<TemplatePart> parts);
// The same, appended to `out`.
void appendTemplate(std::string& out, std::string_view format, std::initializer_list<TemplatePart> parts);

// "%d" of an integer and "%c" of a character.
std::string formatInt(long long value);
std::string formatChar(char c);

}  // namespace plovix
