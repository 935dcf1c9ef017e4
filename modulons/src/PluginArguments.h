// The plug-in's command line: the output path, the manager's options and the NAME=VALUE pairs.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace plovix::wizard {

struct PluginArguments {
  std::string modulon;          // -m NAME
  std::string outputPath;       // the variation's design file, with "/" separators
  bool newVariation = false;    // -n
  bool symbol = false;          // -symbol
  bool windowOptions = false;   // -x, -y, -p2 and -h were given
  long long windowRight = 0;    // -x
  long long windowBottom = 0;   // -y
  long long managerThread = 0;  // -h
  std::vector<std::pair<std::string, std::string>> assignments;  // NAME=VALUE, in order
  bool describe = false;  // --describe: print the modulon's settings, write nothing
  bool help = false;      // --help: print the usage text
};

// The arguments, or a message saying what is wrong with them.
struct ParsedArguments {
  std::optional<PluginArguments> arguments;
  std::string error;
};

ParsedArguments parsePluginArguments(const std::vector<std::string>& argv);

// The CNX path beside an output path: the extension replaced by ".cnx".
std::string descriptionPathFor(const std::string& outputPath);

// The output path's extension (".v", ".vhd", ".tdf" ...), empty when it has none.
std::string extensionOf(const std::string& outputPath);

}  // namespace plovix::wizard
