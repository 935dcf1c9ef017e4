// The catalog's variant rule: how a new entry is suffixed, placed after its variants, or dropped as a
// duplicate.
#pragma once

#include <list>
#include <string>
#include <unordered_map>
#include <vector>

#include "catalog/WizardCatalog.h"

namespace plovix {

// Holds the entries while a catalog loads. Entries are grouped by base name and section (both ignoring case),
// so that a new entry is compared only with the entries it can match: the cost of one insertion grows with
// the number of same-named entries of its section, not with the size of the catalog.
class CatalogVariantIndex {
 public:
  // Inserts the entry by the variant rule; gives false when it was an exact duplicate and was discarded.
  bool insert(CatalogEntry entry);

  // The entries in catalog order; the index is empty afterwards.
  std::vector<CatalogEntry> takeEntries();

 private:
  struct Slot {
    CatalogEntry entry;
    std::string lowerCommand;
  };
  using SlotList = std::list<Slot>;

  SlotList slots_;
  // Per group key, the group's entries in catalog order.
  std::unordered_map<std::string, std::vector<SlotList::iterator>> groups_;
};

// The name up to its first "(" (the whole name when it has none).
std::string catalogBaseName(const std::string& name);

}  // namespace plovix
