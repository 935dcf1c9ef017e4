// Fuzzer of the catalog loader: any set of catalog files (the input cut at form feeds, up to eight files in
// directories of their own, read in order) loads without a crash and gives well-formed entries.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzInterface.h"
#include "catalog/CatalogLoader.h"
#include "catalog/WizardCatalog.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<plovix::CatalogLoader::CatalogFile> files;
  for (std::string& text : plovix::fuzz::inputParts(data, size, '\f', 8)) {
    const std::string directory = "/lib/" + std::to_string(files.size()) + "/";
    files.push_back({directory, directory + "wizard.lst", std::move(text)});
  }
  plovix::fuzz::SilentInterface ui;
  plovix::WizardCatalog catalog;
  plovix::CatalogLoader loader(catalog, ui, "linux");
  loader.loadTexts(std::move(files));
  for (const plovix::CatalogEntry& entry : catalog.entries()) {
    if (entry.name.empty() || entry.commandLine.empty()) std::abort();
    if (entry.commandLine.find_first_of("#\\") != std::string::npos) std::abort();
    if (entry.variantNumber < 1) std::abort();
    // A variant always carries its command line in parentheses.
    if (!entry.primary && entry.name.find('(') == std::string::npos) std::abort();
    if (catalog.findEntry(entry.name) == nullptr) std::abort();
    if (catalog.findDirectory(entry.name).substr(0, 5) != "/lib/") std::abort();
    catalog.resolveAlias(entry.name);
  }
  return 0;
}
