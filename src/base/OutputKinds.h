// The three output languages with their extensions and comment leaders, the output-name rules, and the
// signature that names the modulon a variation file was made with.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/UserInterface.h"

namespace plovix {

struct OutputKind {
  std::string_view key;
  std::string_view displayName;
  std::string_view designExtension;
  std::string_view companionExtension;
  std::string_view commentLeader;
};

// THDL, VHDL, Verilog HDL, in lookup order.
inline constexpr std::array<OutputKind, 3> kOutputKinds = {{
    {"THDL", "THDL", ".tdf", ".inc", "--"},
    {"VHDL", "VHDL", ".vhd", ".cmp", "--"},
    {"VERILOG", "Verilog HDL", ".v", ".inc", "//"},
}};

// What the signature reader gives for a file that no wizard generated.
inline constexpr std::string_view kNotWizardMarker = "Not a wizard-generated file";

// The signature of a variation file's first line and the delimiter around the modulon name.
inline constexpr std::string_view kSignatureText = "modulon wizard:";

bool isOutputExtension(std::string_view extension);
std::string extensionOfKind(std::string_view key);
std::string commentLeaderOfExtension(std::string_view extension);
bool isDesignExtension(std::string_view extension);

// The index of the output kind whose design extension equals `extension`, or -1.
int outputKindIndexOfExtension(std::string_view extension);

// Applies the name rules of the language of `extension`; reports the first broken rule (38, 39, 40).
bool checkOutputFileName(UserInterface& ui, std::string_view extension, std::string_view baseName);

// The modulon name from the signature on a variation file's first line, or kNotWizardMarker.
std::string readModulonNameOfFile(const std::string& path);

// For ".vhd" and ".v": asks whether to write THDL instead of the language that cannot carry two-dimensional
// ports; the extension becomes ".tdf" whatever the answer. True to go on.
bool offerThdlFallback(UserInterface& ui, std::string& extension);

}  // namespace plovix
