// The %-codes of a plug-in command line and what each is replaced by.
#include "base/FileSystem.h"
#include "base/HostQueries.h"
#include "base/PathText.h"
#include "entry/PluginLaunch.h"

namespace plovix {

namespace {

// The replacement of one code character; false when the character is no code.
bool replacementOf(const ManagerApp& app, char code, std::string& replacement) {
  const ManagerRun& run = app.run;
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
      replacement = toBackslashes(run.outputPath());
      return true;
    case 'v':
      replacement = toBackslashes(run.encPath);
      return true;
    case 'w': {
      replacement = run.catalog ? run.catalog->findDirectory(run.modulonName) : std::string();
      if (!replacement.empty() && replacement.back() == '/') replacement.pop_back();
      return true;
    }
    default:
      return false;
  }
}

}  // namespace

std::string expandCommandMacros(const ManagerApp& app, const std::string& text) {
  std::string result;
  size_t copied = 0;
  for (size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '%') continue;
    std::string replacement;
    if (!replacementOf(app, text[i + 1], replacement)) continue;
    result.append(text, copied, i - copied);
    result += replacement;
    ++i;
    copied = i + 1;
  }
  result.append(text, copied, std::string::npos);
  return result;
}

}  // namespace plovix
