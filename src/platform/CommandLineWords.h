// Splitting a command line into program arguments by the rules of the Windows C runtime.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plovix {

// Blanks and tabs separate words; double quotes group and are removed ("" inside quotes is one quote);
// backslashes are literal unless they precede a double quote, where each pair gives one backslash and an odd
// one makes the quote literal.
std::vector<std::string> splitCommandLine(std::string_view line);

}  // namespace plovix
