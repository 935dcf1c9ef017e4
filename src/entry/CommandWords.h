// Catalog command texts as program arguments: the words of a text, its %-codes expanded inside each word.
// The plug-in launch, the vendor scripts and anything else that starts a catalog's program use these.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/UserInterface.h"
#include "entry/ManagerRun.h"

namespace plovix {

// What the run-dependent %-codes stand for; %c, %f, %j and %o come from the environment and the host.
struct CommandContext {
  std::string outputPath;        // %p, written with "\" for "/"
  std::string encPath;           // %v, written with "\" for "/"
  std::string modulonDirectory;  // the modulon's catalog directory (findDirectory): %w without its last "/"
};

// The context of the run's output, native copy and modulon.
CommandContext commandContextOf(const ManagerRun& run);

// The text with every %-code replaced; a "%" before any other character stays with it, and replacements
// are not scanned again.
std::string expandCommandMacros(const CommandContext& context, std::string_view text);

// The words of a command text: split by the Windows C-runtime rules (splitCommandLine) first, then every
// word's %-codes expanded inside that word, so that no value, whatever characters it holds, can split a
// word or join two. For ordinary values the words are those of the expanded text.
std::vector<std::string> commandWords(const CommandContext& context, std::string_view text);

// The same for a plug-in's catalog command line: before the expansion the program (the first word) is
// looked for in the modulon's directory and beside the running program (locatePluginProgram). Empty for a
// text without words.
std::vector<std::string> pluginCommandWords(UserInterface& ui, const CommandContext& context,
                                            std::string_view command);

}  // namespace plovix
