// The browser page's look-in box: "/" as the one local drive, the network mounts as network drives, and
// the folders of the current directory under the drive that holds it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "pages/NetworkDrives.h"

namespace plovix {

struct LookInItem {
  std::string name;
  int driveType = 0;  // for drives: 3 local, 4 network; 0 for folders
  std::string displayText;
  std::string path;  // always ends in "/"
  int level = 0;     // 0 for a drive, 1 and more for the folders of the current directory
  int icon = 0;      // a drive's type minus 2; a folder's 5 when it is the current directory, else 4
};

class LookInBox {
 public:
  static constexpr int kLocalDrive = 3;
  static constexpr int kNetworkDrive = 4;
  static constexpr int kFolderIcon = 4;
  static constexpr int kCurrentFolderIcon = 5;
  static constexpr int kIndentPerLevel = 7;  // pixels, in the drop-down list

  // Collects the drives: "/" and the network mounts of this process; when the mount table cannot be read,
  // error 18 is reported and only "/" is listed.
  void collectDrives(UserInterface& ui);
  // The same from a given list of network mounts (nothing: the table could not be read).
  void collectDrives(UserInterface& ui, const std::optional<std::vector<NetworkDrive>>& networkDrives);

  // The root of a path: the mount point of the network drive that holds it, else "/".
  std::string rootOf(const std::string& path) const;

  // Lists the drives, with the folders of `path` (absolute, ending in "/") right after the drive that holds
  // it; the deepest folder (or the drive itself) is selected.
  void fillFor(const std::string& path);

  const std::vector<LookInItem>& items() const { return items_; }
  int selected() const { return selected_; }
  void select(int index) { selected_ = index; }
  // The path of the selected item; empty when nothing is selected.
  std::string selectedPath() const;

 private:
  std::vector<LookInItem> drives_;
  std::vector<LookInItem> items_;
  int selected_ = -1;
};

}  // namespace plovix
