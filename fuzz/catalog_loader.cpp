// Fuzzer of the catalog loader: any catalog text loads without a crash and gives well-formed entries.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/UserInterface.h"
#include "catalog/CatalogLoader.h"
#include "catalog/WizardCatalog.h"

namespace {

// Shows nothing; the warnings only have to come out without a crash.
class SilentInterface : public plovix::UserInterface {
 public:
  void report(const std::string& text) override { shown += text.size(); }
  bool ask(const std::string&) override { return true; }
  size_t shown = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  SilentInterface ui;
  plovix::WizardCatalog catalog;
  plovix::CatalogLoader loader(catalog, ui, "linux");
  loader.loadText("/lib/", "/lib/fuzz_wizard.lst", text);
  for (const plovix::CatalogEntry& entry : catalog.entries()) {
    if (entry.name.empty() || entry.commandLine.empty()) std::abort();
    if (entry.commandLine.find_first_of("#\\") != std::string::npos) std::abort();
    if (entry.variantNumber < 1) std::abort();
    // A variant always carries its command line in parentheses.
    if (!entry.primary && entry.name.find('(') == std::string::npos) std::abort();
    if (catalog.findEntry(entry.name) == nullptr) std::abort();
    catalog.resolveAlias(entry.name);
  }
  return 0;
}
