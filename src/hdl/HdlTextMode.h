// Which text the VHDL and Verilog writers give: the standard text, or valid HDL where the standard text of a
// known construct is rejected by the tools or means something else in the other language.
#pragma once

#include <string_view>

namespace plovix {

enum class HdlTextMode { kStandard, kValid };

// The variable that chooses the mode (the plovix option --hdl-text sets it).
inline constexpr const char* kHdlTextVariable = "PLOVIX_HDL_TEXT";

// Parses "standard" or "valid" (case ignored); false for any other text.
bool parseHdlTextMode(std::string_view text, HdlTextMode& mode);

// The mode PLOVIX_HDL_TEXT chooses; standard when it is unset or not a mode's name.
HdlTextMode hdlTextModeFromEnvironment();

}  // namespace plovix
