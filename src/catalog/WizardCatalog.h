// The plug-in catalog: every modulon entry of the wizard.lst files on the user and host library paths.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/UserInterface.h"

namespace plovix {

struct CatalogEntry {
  std::string name;  // gets "(" + command line + ")" appended when it has variants
  std::string abstract;
  std::string directory;    // library directory of the catalog file, with its trailing separator
  std::string commandLine;  // normalised: "#" became "\n", "\" became "/"
  std::string alias;        // comma-separated, as written
  std::string section;      // folder path separated by "|"; empty for the top level
  bool supports2D = true;
  std::string nativeHdl;
  std::string nativeTool;
  std::string scripts;       // each applicable script HREF followed by "+"
  bool describes = false;    // the plug-in can describe its settings (a DESCRIBE element)
  std::string describeArgs;  // the words that make it do so, as a command-line text
  int variantNumber = 1;
  bool primary = true;
};

class WizardCatalog {
 public:
  // Reads every catalog of both library paths; problems are shown as warnings and never stop the load.
  void load(UserInterface& ui);

  // Reads the catalogs of the given ";"-separated paths (the user path first) instead of asking the host.
  void loadFrom(UserInterface& ui, const std::string& userPath, const std::string& hostPath);

  const std::vector<CatalogEntry>& entries() const { return entries_; }
  const std::vector<std::string>& userLibraryDirectories() const { return userDirectories_; }

  // Lookups take the last entry, in catalog order, whose name equals `name` exactly.
  const CatalogEntry* findEntry(const std::string& name) const;
  std::string findCommandLine(const std::string& name) const;
  std::string findDirectory(const std::string& name) const;
  bool supports2D(const std::string& name) const;
  std::string findNativeHdl(const std::string& name) const;
  std::string findNativeTool(const std::string& name) const;
  std::string findScripts(const std::string& name) const;

  // The modulon registered for an alias, or the name itself.
  std::string resolveAlias(const std::string& name) const;

  // True when the text, without trailing blanks, is the marker of files no wizard generated.
  static bool isNotWizardMarker(const std::string& text);

 private:
  friend class CatalogLoader;
  std::vector<CatalogEntry> entries_;
  std::vector<std::string> userDirectories_;
  std::map<std::string, std::string> aliases_;
};

}  // namespace plovix
