// The browser page's list of folders and files: filling it for a directory and patterns, the wizard-only
// mode, the columns and their sorting.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

#include "base/UserInterface.h"

namespace plovix {

// Kinds of list items: the output kind's index (0 THDL, 1 VHDL, 2 Verilog) for wizard-generated design
// files, else one of these.
inline constexpr int kFolderKind = -1;
inline constexpr int kOtherFileKind = -2;

struct FileListItem {
  std::string name;
  uint32_t size = 0;  // the low part of the size
  int kind = kOtherFileKind;
  long long modifiedTime = 0;  // seconds since the epoch
  bool operator==(const FileListItem&) const = default;
};

enum FileListColumn : int { kColumnName = 0, kColumnSize = 1, kColumnType = 2, kColumnModified = 3 };

class FileList {
 public:
  // Images of the list by kind.
  static int imageOfKind(int kind);

  // Empties and refills the list: the sub-folders, then for each pattern of `patternText` (split at blanks
  // and commas; "*.*" matches every name) the matching files, sorted by name. False, with the list
  // unchanged, when the directory cannot be read; a directory on a medium that is not there asks whether
  // to try again.
  bool fill(UserInterface& ui, const std::string& directory, const std::string& patternText);

  // Sorts ascending by a column: names without regard to case, sizes by number, kinds by their code, times
  // in time order. Equal keys keep their order.
  void sortBy(int column);

  // The text of an item in a column of the detailed view.
  static std::string columnText(const FileListItem& item, int column);

  const std::vector<FileListItem>& items() const { return items_; }
  void renameItem(size_t index, const std::string& name) { items_[index].name = name; }

  bool wizardOnly = true;
  bool detailedView = false;  // the list starts in list view

 private:
  std::vector<FileListItem> items_;
};

// The last write time as the list shows it: month/day/year  hour:minute AM|PM, on the 12-hour clock.
std::string formatLastModified(const std::tm& time);
std::string formatLastModified(long long secondsSinceEpoch);

// The kind of a file found by its extension and its signature: the output kind when it is wizard-generated,
// else kOtherFileKind.
int fileKindOf(const std::string& directory, const std::string& name);

// True when a variation file's signature names a modulon (it is wizard-generated).
bool signatureNamesModulon(const std::string& nameRead);

}  // namespace plovix
