// The three output languages with their extensions and comment leaders, the output-name rules, and the
// signature that names the modulon a variation file was made with.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Messages.h"
#include "base/UserInterface.h"

namespace plovix {

// The output languages, in the order of the modulon page's language buttons.
enum class OutputLanguage { kThdl, kVhdl, kVerilog };

// Which characters a language allows in an output file's base name, and the message of a name that breaks it.
struct OutputNameRule {
  bool tilde;            // "~" allowed
  bool underscoreFirst;  // "_" may begin the name
  bool letterFirst;      // the first character must be a letter (or "_" when underscoreFirst)
  Msg message;
};

// One output language: everything the system knows of it besides its writer (hdl/).
struct OutputKind {
  OutputLanguage language;
  std::string_view key;          // as a catalog's native HDL names it
  std::string_view cliWord;      // --language, PLOVIX_LANGUAGE and the console page's command
  std::string_view displayName;  // the browser page's file types and type column
  std::string_view designExtension;
  std::string_view companionExtension;
  std::string_view commentLeader;
  int buttonIndex;  // the modulon page's language button
  OutputNameRule nameRule;
};

// The output kind table: THDL, VHDL, Verilog HDL, in lookup and button order.
inline constexpr std::array<OutputKind, 3> kOutputKinds = {{
    {OutputLanguage::kThdl,
     "THDL",
     "thdl",
     "THDL",
     ".tdf",
     ".inc",
     "--",
     0,
     {true, true, false, Msg::kIllegalThdlName}},
    {OutputLanguage::kVhdl,
     "VHDL",
     "vhdl",
     "VHDL",
     ".vhd",
     ".cmp",
     "--",
     1,
     {false, false, true, Msg::kIllegalVhdlName}},
    {OutputLanguage::kVerilog,
     "VERILOG",
     "verilog",
     "Verilog HDL",
     ".v",
     ".inc",
     "//",
     2,
     {false, true, true, Msg::kIllegalVerilogName}},
}};

// The row of a language.
constexpr const OutputKind& outputKind(OutputLanguage language) {
  return kOutputKinds[static_cast<size_t>(language)];
}

// The row whose design extension, CLI word or button is the one given; null for none.
const OutputKind* outputKindOfExtension(std::string_view extension);
const OutputKind* outputKindOfCliWord(std::string_view word);
const OutputKind* outputKindOfButton(int buttonIndex);

// What the signature reader gives for a file that no wizard generated.
inline constexpr std::string_view kNotWizardMarker = "Not a wizard-generated file";

// The signature of a variation file's first line and the delimiter around the modulon name.
inline constexpr std::string_view kSignatureText = "modulon wizard:";

bool isOutputExtension(std::string_view extension);
std::string extensionOfKind(std::string_view key);
std::string commentLeaderOfExtension(std::string_view extension);
// A graphic design file: a design file of the project that no wizard writes.
inline constexpr std::string_view kGraphicDesignExtension = ".gdf";

// An output language's design extension or a graphic design file's.
bool isDesignExtension(std::string_view extension);

// The index in kOutputKinds of the kind whose design extension equals `extension`, or -1.
int outputKindIndexOfExtension(std::string_view extension);

// Applies the name rule of the language of `extension`; reports a broken rule with the rule's message.
bool checkOutputFileName(UserInterface& ui, std::string_view extension, std::string_view baseName);

// The modulon name from the signature on a variation file's first line, or kNotWizardMarker.
std::string readModulonNameOfFile(const std::string& path);

// For ".vhd" and ".v": asks whether to write THDL instead of the language that cannot carry two-dimensional
// ports; the extension becomes ".tdf" whatever the answer. True to go on.
bool offerThdlFallback(UserInterface& ui, std::string& extension);

}  // namespace plovix
