// Text-mode files: every "\n" is stored as "\r\n" when written and a "\r" before "\n" is dropped when read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plovix {

// The text with every "\n" turned into "\r\n" / every "\r\n" into "\n".
std::string toTextMode(std::string_view text);
std::string fromTextMode(std::string_view bytes);

// Reads a whole file as it is stored. On failure returns false and sets `errorNumber`; a file of more than
// `maxBytes` bytes is not read further and fails with EFBIG.
bool readFileBytes(const std::string& path, std::string& bytes, int& errorNumber,
                   size_t maxBytes = std::string::npos);

// Reads a whole file in text mode, with the same limit.
bool readTextFile(const std::string& path, std::string& text, int& errorNumber,
                  size_t maxBytes = std::string::npos);

// Splits a text into lines without their line ends; a last line without "\n" counts, an empty tail does not.
std::vector<std::string> splitLines(std::string_view text);

// Writes `text` in text mode through the safe writer (replaceFile): the target holds its old or its new text,
// never a mixture. On failure returns false and sets `errorNumber`; the target is unchanged.
bool writeTextFile(const std::string& path, std::string_view text, int& errorNumber);

// The same for bytes written as they are (no line-end conversion).
bool writeFileBytes(const std::string& path, std::string_view bytes, int& errorNumber);

// Appends `text` in text mode to a file, creating it when missing (appendToFile).
bool appendTextFile(const std::string& path, std::string_view text, int& errorNumber);

}  // namespace plovix
