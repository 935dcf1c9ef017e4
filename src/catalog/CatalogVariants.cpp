// The variant rule: entries of one name and section with different command lines become name(command line).
#include "catalog/CatalogVariants.h"

#include "base/TextHelpers.h"

namespace plovix {

namespace {

// The group of an entry: its base name and section, both in lower case, joined without ambiguity.
std::string groupKey(const std::string& baseName, const std::string& section) {
  const std::string lowerBase = toLowerText(baseName);
  return std::to_string(lowerBase.size()) + ":" + lowerBase + toLowerText(section);
}

}  // namespace

std::string catalogBaseName(const std::string& name) {
  return name.substr(0, name.find('('));
}

// The new entry is compared with every earlier entry E in catalog order, P being the last primary entry at or
// before E. An entry of another group never compares equal; a non-primary entry always follows an entry of
// its own group, so P is the last primary entry of E's group before it and the scan may stay in the group.
// Once the new entry took a suffix its name holds "(", which no base name does, so the scan can end there.
bool CatalogVariantIndex::insert(CatalogEntry entry) {
  const std::string lowerCommand = toLowerText(entry.commandLine);
  const std::string key = groupKey(catalogBaseName(entry.name), entry.section);
  std::vector<SlotList::iterator>& group = groups_[key];

  bool duplicate = false;
  size_t insertAfter = group.size();
  if (entry.name.find('(') == std::string::npos) {
    Slot* primary = nullptr;
    for (size_t i = 0; i < group.size(); ++i) {
      Slot& existing = *group[i];
      if (existing.entry.primary) primary = &existing;
      if (existing.lowerCommand == lowerCommand) {
        duplicate = true;
        continue;
      }
      const int number = existing.entry.variantNumber;
      const bool lastOfItsPrimary =
          primary != nullptr && &existing != primary && number == primary->entry.variantNumber;
      if (number != 1 && !lastOfItsPrimary) continue;
      if (primary == nullptr) continue;
      CatalogEntry& p = primary->entry;
      ++p.variantNumber;
      entry.variantNumber = p.variantNumber;
      entry.name += "(" + entry.commandLine + ")";
      entry.primary = false;
      if (p.variantNumber == 2) p.name += "(" + p.commandLine + ")";
      insertAfter = i;
      break;
    }
  }
  if (duplicate) return false;

  if (insertAfter < group.size()) {
    const auto position = slots_.insert(std::next(group[insertAfter]), Slot{std::move(entry), lowerCommand});
    group.insert(group.begin() + static_cast<std::ptrdiff_t>(insertAfter) + 1, position);
  } else {
    slots_.push_back(Slot{std::move(entry), lowerCommand});
    group.push_back(std::prev(slots_.end()));
  }
  return true;
}

std::vector<CatalogEntry> CatalogVariantIndex::takeEntries() {
  std::vector<CatalogEntry> entries;
  entries.reserve(slots_.size());
  for (Slot& slot : slots_) entries.push_back(std::move(slot.entry));
  slots_.clear();
  groups_.clear();
  return entries;
}

}  // namespace plovix
