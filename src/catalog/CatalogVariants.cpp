// The variant rule: entries of one name and section with different command lines become name(command line).
#include "catalog/CatalogVariants.h"

#include <algorithm>

#include "base/TextHelpers.h"

namespace plovix {

namespace {

// The group of an entry: its base name and section, both in lower case, joined without ambiguity.
std::string groupKey(const std::string& baseName, const std::string& section) {
  std::string key = toLowerText(baseName);
  const size_t baseLength = key.size();
  key += toLowerText(section);
  key.append(reinterpret_cast<const char*>(&baseLength), sizeof baseLength);
  return key;
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
  Group& group = groups_[groupKey(catalogBaseName(entry.name), entry.section)];

  bool duplicate = false;
  uint32_t insertAfter = kNone;
  if (entry.name.find('(') == std::string::npos) {
    CatalogEntry* primary = nullptr;
    for (uint32_t index = group.first; index != kNone; index = nextInGroup_[index]) {
      CatalogEntry& existing = stored_[index];
      if (existing.primary) primary = &existing;
      if (equalsIgnoringCase(existing.commandLine, entry.commandLine)) {
        duplicate = true;
        continue;
      }
      const int number = existing.variantNumber;
      const bool lastOfItsPrimary =
          primary != nullptr && &existing != primary && number == primary->variantNumber;
      if ((number != 1 && !lastOfItsPrimary) || primary == nullptr) continue;
      ++primary->variantNumber;
      entry.variantNumber = primary->variantNumber;
      entry.name += "(" + entry.commandLine + ")";
      entry.primary = false;
      if (primary->variantNumber == 2) primary->name += "(" + primary->commandLine + ")";
      insertAfter = index;
      break;
    }
  }
  if (duplicate) return false;
  link(std::move(entry), group, insertAfter);
  return true;
}

void CatalogVariantIndex::expect(size_t count) {
  const size_t needed = stored_.size() + count;
  if (needed > stored_.capacity()) {
    const size_t capacity = std::max(needed, 2 * stored_.capacity());
    stored_.reserve(capacity);
    next_.reserve(capacity);
    nextInGroup_.reserve(capacity);
  }
  const size_t groupsNeeded = groups_.size() + count;
  if (groupsNeeded > groups_.bucket_count() * groups_.max_load_factor()) {
    groups_.reserve(std::max(groupsNeeded, 2 * groups_.size()));
  }
}

void CatalogVariantIndex::link(CatalogEntry entry, Group& group, uint32_t after) {
  const auto index = static_cast<uint32_t>(stored_.size());
  stored_.push_back(std::move(entry));
  next_.push_back(kNone);
  nextInGroup_.push_back(kNone);
  if (after == kNone || after == last_) {
    if (last_ == kNone) {
      first_ = index;
    } else {
      next_[last_] = index;
    }
    last_ = index;
  } else {
    next_[index] = next_[after];
    next_[after] = index;
    reordered_ = true;
  }
  if (after == kNone) after = group.last;
  if (after == kNone) {
    group.first = index;
  } else {
    nextInGroup_[index] = nextInGroup_[after];
    nextInGroup_[after] = index;
  }
  if (group.last == after) group.last = index;
}

// Entries inserted in the middle of the catalog are put in their place here, once, with a single pass.
std::vector<CatalogEntry> CatalogVariantIndex::takeEntries() {
  std::vector<CatalogEntry> entries;
  if (!reordered_) {
    entries = std::move(stored_);
  } else {
    entries.reserve(stored_.size());
    for (uint32_t index = first_; index != kNone; index = next_[index]) {
      entries.push_back(std::move(stored_[index]));
    }
  }
  stored_.clear();
  next_.clear();
  nextInGroup_.clear();
  groups_.clear();
  first_ = last_ = kNone;
  reordered_ = false;
  return entries;
}

}  // namespace plovix
