// Collecting the drives and filling the look-in box for a path.
#include "pages/LookInBox.h"

#include "base/Format.h"
#include "base/Report.h"
#include "base/TextHelpers.h"

namespace plovix {

void LookInBox::collectDrives(UserInterface& ui) {
  collectDrives(ui, readNetworkMounts());
}

void LookInBox::collectDrives(UserInterface& ui,
                              const std::optional<std::vector<NetworkDrive>>& networkDrives) {
  drives_.clear();
  LookInItem root;
  root.name = "/";
  root.driveType = kLocalDrive;
  root.displayText = formatText("%s(%s)", "", "/");
  root.path = "/";
  root.icon = kLocalDrive - 2;
  drives_.push_back(root);
  if (!networkDrives) {
    reportError(ui, Msg::kCannotEnumerateNetworkDrives);
    return;
  }
  for (const NetworkDrive& drive : *networkDrives) {
    LookInItem item;
    item.name = drive.mountPoint;
    item.driveType = kNetworkDrive;
    item.displayText =
        formatText("%s on '%s' (%s)", drive.share.c_str(), drive.server.c_str(), drive.mountPoint.c_str());
    item.path = drive.mountPoint + "/";
    item.icon = kNetworkDrive - 2;
    drives_.push_back(item);
  }
}

std::string LookInBox::rootOf(const std::string& path) const {
  std::string root = "/";
  for (const LookInItem& drive : drives_) {
    if (drive.driveType == kNetworkDrive && startsWith(path, drive.path) && drive.name.size() > root.size()) {
      root = drive.name;
    }
  }
  return root;
}

void LookInBox::fillFor(const std::string& path) {
  items_.clear();
  selected_ = -1;
  const std::string root = rootOf(path);
  for (const LookInItem& drive : drives_) {
    items_.push_back(drive);
    if (drive.name != root) continue;
    selected_ = static_cast<int>(items_.size()) - 1;
    std::string prefix = drive.path;
    std::string rest = path.size() > prefix.size() ? path.substr(prefix.size()) : std::string();
    int level = 0;
    size_t start = 0;
    while (start < rest.size()) {
      size_t slash = rest.find('/', start);
      if (slash == std::string::npos) slash = rest.size();
      const std::string folder = rest.substr(start, slash - start);
      start = slash + 1;
      if (folder.empty()) continue;
      prefix += folder + "/";
      LookInItem item;
      item.name = folder;
      item.displayText = folder;
      item.path = prefix;
      item.level = ++level;
      item.icon = kFolderIcon;
      items_.push_back(item);
      selected_ = static_cast<int>(items_.size()) - 1;
    }
    if (selected_ >= 0 && items_[static_cast<size_t>(selected_)].level > 0) {
      items_[static_cast<size_t>(selected_)].icon = kCurrentFolderIcon;
    }
  }
}

std::string LookInBox::selectedPath() const {
  return selected_ < 0 ? std::string() : items_[static_cast<size_t>(selected_)].path;
}

}  // namespace plovix
