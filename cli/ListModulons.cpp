// plovix --list-modulons: the catalog as a tab-separated table on standard output.
#include <cstdio>
#include <string>

#include "Subcommands.h"
#include "base/HostQueries.h"
#include "catalog/WizardCatalog.h"
#include "ui/BatchHints.h"

namespace plovix {

namespace {

constexpr const char* kHeader =
    "name\tsection\tdirectory\tcommand_line\tsupports2D\tnative_hdl\tnative_tool\tscripts\talias\tabstract\n";

// A field with backslash, line feed and tab written as \\, \n and \t.
std::string escapedField(const std::string& text) {
  std::string escaped;
  for (char c : text) {
    if (c == '\\') {
      escaped += "\\\\";
    } else if (c == '\n') {
      escaped += "\\n";
    } else if (c == '\t') {
      escaped += "\\t";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string tableLine(const CatalogEntry& entry) {
  std::string line;
  for (const std::string* field : {&entry.name, &entry.section, &entry.directory, &entry.commandLine}) {
    line += escapedField(*field) + "\t";
  }
  line += entry.supports2D ? "true\t" : "false\t";
  for (const std::string* field : {&entry.nativeHdl, &entry.nativeTool, &entry.scripts, &entry.alias}) {
    line += escapedField(*field) + "\t";
  }
  return line + escapedField(entry.abstract) + "\n";
}

}  // namespace

int listModulons(BatchFrontEnd& messages) {
  WizardCatalog catalog;
  catalog.load(messages);
  if (catalog.entries().empty()) messages.hint(emptyCatalogHint(libraryPath(true), libraryPath(false)));
  std::string table = kHeader;
  for (const CatalogEntry& entry : catalog.entries()) table += tableLine(entry);
  std::fwrite(table.data(), 1, table.size(), stdout);
  return std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace plovix
