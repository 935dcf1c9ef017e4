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

  // A catalog file's text, the directory it was found in and its path.
  struct CatalogFile {
    std::string directory;
    std::string path;
    std::string text;
  };

  // Reads catalog texts held in memory, in order, as if they had been found on the host library path
  // (tests and fuzzing).
  void loadTexts(std::vector<CatalogFile> files);

  // The same for the text of one catalog file found in `directory`.
  void loadText(const std::string& directory, const std::string& filePath, const std::string& text);

 private:
  void start();
  // Reads the files found, with room for every entry made at once.
  void readFiles();
  void finish();
  void readLines(const std::string& filePath, const std::string& text);

  void scanPath(const std::string& path, bool user);
  void scanDirectory(const std::string& directory);
  void processRecord(const std::string& record, size_t line);
  void readSectionLine(const std::string& record, size_t line);

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
