// Parsing the command line the manager builds: program options, the quoted output path, " -n ", " -symbol ",
// the extra arguments and the window options; or one of the questions --describe and --help.
#include "PluginArguments.h"

#include <cctype>
#include <cstdlib>

#include "PluginMessages.h"

namespace plovix::wizard {

namespace {

// "-x120" gives 120; an option letter followed by anything but digits gives nothing.
std::optional<long long> numberAfter(const std::string& argument, size_t prefixLength) {
  const std::string digits = argument.substr(prefixLength);
  if (digits.empty()) return std::nullopt;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(digits[i])) && !(i == 0 && digits[i] == '-'))
      return std::nullopt;
  }
  return std::strtoll(digits.c_str(), nullptr, 10);
}

bool applyWindowOption(const std::string& argument, PluginArguments& out) {
  if (argument == "-p2") return out.windowOptions = true;
  const char letter = argument.size() > 2 ? argument[1] : 0;
  if (letter != 'x' && letter != 'y' && letter != 'h') return false;
  const std::optional<long long> value = numberAfter(argument, 2);
  if (!value) return false;
  (letter == 'x' ? out.windowRight : letter == 'y' ? out.windowBottom : out.managerThread) = *value;
  out.windowOptions = true;
  return true;
}

std::string withForwardSlashes(std::string path) {
  for (char& c : path) {
    if (c == '\\') c = '/';
  }
  return path;
}

}  // namespace

ParsedArguments parsePluginArguments(const std::vector<std::string>& argv) {
  PluginArguments out;
  bool havePath = false;
  for (size_t i = 0; i < argv.size(); ++i) {
    const std::string& argument = argv[i];
    if (argument.empty()) continue;
    if (argument == "-m" || argument == "--modulon") {
      if (i + 1 < argv.size()) out.modulon = argv[++i];
    } else if (argument == "--describe") {
      out.describe = true;
    } else if (argument == "--help") {
      out.help = true;
    } else if (argument == "-n") {
      out.newVariation = true;
    } else if (argument == "-symbol") {
      out.symbol = true;
    } else if (argument[0] == '-' &&
               (applyWindowOption(argument, out) || argument.rfind("-devicefamily", 0) == 0 ||
                argument.rfind("-projectname", 0) == 0)) {
      // Window, device family and project options: taken or ignored, never refused.
    } else if (argument[0] != '-' && argument.find('=') != std::string::npos) {
      const size_t equals = argument.find('=');
      out.assignments.emplace_back(argument.substr(0, equals), argument.substr(equals + 1));
    } else if (!havePath && argument[0] != '-') {
      out.outputPath = withForwardSlashes(argument);
      havePath = true;
    } else {
      return {std::nullopt, strayArgumentText(argument)};
    }
  }
  // The two questions about the plug-in itself need no output file.
  if (!havePath && !out.describe && !out.help) return {std::nullopt, missingOutputText()};
  return {out, ""};
}

std::string extensionOf(const std::string& outputPath) {
  const size_t slash = outputPath.find_last_of("/\\");
  const size_t dot = outputPath.rfind('.');
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return "";
  return outputPath.substr(dot);
}

std::string descriptionPathFor(const std::string& outputPath) {
  return outputPath.substr(0, outputPath.size() - extensionOf(outputPath).size()) + ".cnx";
}

}  // namespace plovix::wizard
