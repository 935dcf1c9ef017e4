// The fixed table of the 41 error and warning texts, indexed by ErrorCode.
#pragma once

#include <string_view>

namespace plovix {

// An index 0 to 40 into the message table.
using ErrorCode = int;

inline constexpr int kErrorTableSize = 41;

// The caption of every message box and the manager's name in texts.
inline constexpr std::string_view kManagerName = "Plovix Plug-In Manager";

// The format text (placeholders "%s") of a code; empty for a code outside the table.
std::string_view errorText(ErrorCode code);

}  // namespace plovix
