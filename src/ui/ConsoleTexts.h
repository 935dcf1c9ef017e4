// The console front end's own texts: the command hints of its pages and the names of focused controls.
#pragma once

#include <string_view>

namespace plovix::consoletexts {

inline constexpr std::string_view kActionCommands = "1 or 2 = choose, n = Next >, c = Cancel";
inline constexpr std::string_view kModulonCommands =
    "<number> = select a modulon, thdl / vhdl / verilog = output type, o <name> = output file name,\n"
    "w = Browse..., n = Next >, b = < Back, c = Cancel";
inline constexpr std::string_view kBrowseHint = "full path, or empty to keep the name";
inline constexpr std::string_view kBrowserCommands =
    "<number> = choose a file or open a folder, f <name> = file name (wildcards filter), cd <folder>,\n"
    "u = Up One Level, l [<number>] = look in, t [<number>] = files of type, w = show only wizard-generated "
    "files,\n"
    "m [<number>|<name>] = modulon, s <column 1-4> = sort, r [<number>] <new name> = rename, d = "
    "Detailed/List "
    "View,\n"
    "n = Next >, b = < Back, c = Cancel";

inline constexpr const char* kModulonTree = "the modulon list";
inline constexpr const char* kOutputName = "the output file name";
inline constexpr const char* kFileNameBox = "the file name";
inline constexpr const char* kModulonBox = "the modulon name";
inline constexpr const char* kFileList = "the file list";

}  // namespace plovix::consoletexts
