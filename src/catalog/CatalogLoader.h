// Loading the catalog: the library directories, their *wizard.lst files, records, sections and entries.
#pragma once

#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "catalog/CatalogVariants.h"
#include "catalog/WizardCatalog.h"

namespace plovix {

class CatalogLoader {
 public:
  CatalogLoader(WizardCatalog& catalog, UserInterface& ui, std::string platform)
      : catalog_(catalog), ui_(ui), platform_(std::move(platform)) {}

  // Reads the catalogs of both ";"-separated paths, the user path first, into the catalog.
  void load(const std::string& userPath, const std::string& hostPath);

  // Reads the text of one catalog file as if it had been found in `directory` (tests and fuzzing).
  void loadText(const std::string& directory, const std::string& filePath, const std::string& text);

 private:
  void start();
  void finish();
  void readLines(const std::string& filePath, const std::string& text);
  // A catalog file found by the scan, read before any of them is processed.
  struct CatalogFile {
    std::string directory;
    std::string path;
    std::string text;
  };

  void scanPath(const std::string& path, bool user);
  void scanDirectory(const std::string& directory);
  void processRecord(const std::string& record, int line);
  void readSectionLine(const std::string& record, int line);

  WizardCatalog& catalog_;
  UserInterface& ui_;
  const std::string platform_;
  CatalogVariantIndex index_;
  std::vector<CatalogFile> files_;
  std::string directory_;
  std::string section_;
  std::string file_;
};

}  // namespace plovix
