// The catalog's variant rule: how a new entry is suffixed, placed after its variants, or dropped as a
// duplicate.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "catalog/WizardCatalog.h"

namespace plovix {

// Holds the entries while a catalog loads. Entries are grouped by base name and section (both ignoring case),
// so that a new entry is compared only with the entries it can match: the cost of one insertion grows with
// the number of same-named entries of its section, not with the size of the catalog. Entries stay where they
// were stored; the catalog order and each group's order are kept as links between them.
class CatalogVariantIndex {
 public:
  // Inserts the entry by the variant rule; gives false when it was an exact duplicate and was discarded.
  bool insert(CatalogEntry entry);

  // Makes room for up to `count` more entries (a catalog file's line count), growing geometrically.
  void expect(size_t count);

  // The entries in catalog order; the index is empty afterwards.
  std::vector<CatalogEntry> takeEntries();

 private:
  static constexpr uint32_t kNone = UINT32_MAX;

  struct Group {
    uint32_t first = kNone;
    uint32_t last = kNone;
  };

  // Stores a new entry and links it into the catalog order and its group after `after` (kNone: at the end).
  void link(CatalogEntry entry, Group& group, uint32_t after);

  // The entries in the order they were stored, with the links of the catalog order and of each group.
  std::vector<CatalogEntry> stored_;
  std::vector<uint32_t> next_;
  std::vector<uint32_t> nextInGroup_;
  uint32_t first_ = kNone;
  uint32_t last_ = kNone;
  bool reordered_ = false;
  std::unordered_map<std::string, Group> groups_;
};

// The name up to its first "(" (the whole name when it has none).
std::string catalogBaseName(const std::string& name);

}  // namespace plovix
