// The catalog's lookups by modulon name and alias.
#include "base/OutputKinds.h"
#include "base/TextHelpers.h"
#include "catalog/WizardCatalog.h"

namespace plovix {

const CatalogEntry* WizardCatalog::findEntry(const std::string& name) const {
  const CatalogEntry* found = nullptr;
  for (const CatalogEntry& entry : entries_) {
    if (entry.name == name) found = &entry;
  }
  return found;
}

std::string WizardCatalog::findCommandLine(const std::string& name) const {
  const CatalogEntry* entry = findEntry(name);
  return entry == nullptr ? std::string() : entry->commandLine;
}

std::string WizardCatalog::findDirectory(const std::string& name) const {
  const CatalogEntry* entry = findEntry(name);
  return entry == nullptr ? std::string() : entry->directory;
}

bool WizardCatalog::supports2D(const std::string& name) const {
  const CatalogEntry* entry = findEntry(name);
  return entry == nullptr ? true : entry->supports2D;
}

std::string WizardCatalog::findNativeHdl(const std::string& name) const {
  const CatalogEntry* entry = findEntry(name);
  return entry == nullptr ? std::string() : entry->nativeHdl;
}

std::string WizardCatalog::findNativeTool(const std::string& name) const {
  const CatalogEntry* entry = findEntry(name);
  return entry == nullptr ? std::string() : entry->nativeTool;
}

std::string WizardCatalog::findScripts(const std::string& name) const {
  const CatalogEntry* entry = findEntry(name);
  return entry == nullptr ? std::string() : entry->scripts;
}

std::string WizardCatalog::resolveAlias(const std::string& name) const {
  const auto it = aliases_.find(name);
  return it == aliases_.end() ? name : it->second;
}

bool WizardCatalog::isNotWizardMarker(const std::string& text) {
  return trimRight(text) == kNotWizardMarker;
}

}  // namespace plovix
