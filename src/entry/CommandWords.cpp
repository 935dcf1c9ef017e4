// The %-codes of a catalog command text, what each is replaced by, and the text's words.
#include "entry/CommandWords.h"

#include "base/FileSystem.h"
#include "base/HostQueries.h"
#include "base/PathText.h"
#include "entry/PluginLaunchParts.h"
#include "platform/CommandLineWords.h"

namespace plovix {

namespace {

// The replacement of one code character; false when the character is no code.
bool replacementOf(const CommandContext& context, char code, std::string& replacement) {
  switch (code) {
    case '%':
      replacement = "%";
      return true;
    case ':':
    case ';':
      replacement = ";";
      return true;
    case 'c':
      replacement = environmentVariable("CLASSPATH");
      return true;
    case 'f':
      replacement = " -devicefamily" + deviceFamily();
      return true;
    case 'j':
      replacement = "javaw";
      return true;
    case 'o':
      replacement = " -projectname" + projectTopFileName();
      return true;
    case 'p':
      replacement = toBackslashes(context.outputPath);
      return true;
    case 'v':
      replacement = toBackslashes(context.encPath);
      return true;
    case 'w':
      replacement = context.modulonDirectory;
      if (!replacement.empty() && replacement.back() == '/') replacement.pop_back();
      return true;
    default:
      return false;
  }
}

}  // namespace

CommandContext commandContextOf(const ManagerRun& run) {
  return {run.outputPath(), run.encPath, run.catalog ? run.catalog->findDirectory(run.modulonName) : ""};
}

std::string expandCommandMacros(const CommandContext& context, std::string_view text) {
  std::string result;
  size_t copied = 0;
  for (size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '%') continue;
    std::string replacement;
    if (!replacementOf(context, text[i + 1], replacement)) continue;
    result.append(text, copied, i - copied);
    result += replacement;
    ++i;
    copied = i + 1;
  }
  result.append(text, copied, std::string_view::npos);
  return result;
}

std::vector<std::string> commandWords(const CommandContext& context, std::string_view text) {
  std::vector<std::string> words = splitCommandLine(text);
  for (std::string& word : words) word = expandCommandMacros(context, word);
  return words;
}

std::vector<std::string> pluginCommandWords(UserInterface& ui, const CommandContext& context,
                                            std::string_view command) {
  std::vector<std::string> words = splitCommandLine(command);
  if (words.empty()) return words;
  words[0] = locatePluginProgram(ui, words[0], context.modulonDirectory);
  for (std::string& word : words) word = expandCommandMacros(context, word);
  return words;
}

}  // namespace plovix
