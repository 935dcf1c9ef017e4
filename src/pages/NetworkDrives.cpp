// Reading the network mounts from the mount table.
#include "pages/NetworkDrives.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace plovix {

namespace {

constexpr const char* kNetworkTypes[] = {"nfs", "nfs4", "cifs", "smb3", "fuse.sshfs"};

bool isNetworkType(const std::string& type) {
  return std::find(std::begin(kNetworkTypes), std::end(kNetworkTypes), type) != std::end(kNetworkTypes);
}

// The mount table writes blanks, tabs, line feeds and backslashes in names as three octal digits.
std::string unescapeMountText(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 3 < text.size()) {
      const std::string digits = text.substr(i + 1, 3);
      if (digits.find_first_not_of("01234567") == std::string::npos) {
        out += static_cast<char>(std::stoi(digits, nullptr, 8));
        i += 3;
        continue;
      }
    }
    out += text[i];
  }
  return out;
}

// "//server/share", "server:/export" or "user@host:path" taken apart.
void splitSource(const std::string& source, NetworkDrive& drive) {
  if (source.size() > 2 && (source.compare(0, 2, "//") == 0 || source.compare(0, 2, "\\\\") == 0)) {
    const size_t slash = source.find_first_of("/\\", 2);
    drive.server = source.substr(2, slash == std::string::npos ? std::string::npos : slash - 2);
    drive.share = slash == std::string::npos ? std::string() : source.substr(slash + 1);
    return;
  }
  const size_t colon = source.find(':');
  if (colon == std::string::npos) {
    drive.share = source;
    return;
  }
  drive.server = source.substr(0, colon);
  drive.share = source.substr(colon + 1);
}

}  // namespace

std::vector<NetworkDrive> parseNetworkMounts(const std::string& mountTable) {
  std::vector<NetworkDrive> drives;
  std::istringstream lines(mountTable);
  std::string line;
  while (std::getline(lines, line)) {
    std::istringstream fields(line);
    std::string source, mountPoint, type;
    if (!(fields >> source >> mountPoint >> type) || !isNetworkType(type)) continue;
    NetworkDrive drive;
    drive.mountPoint = unescapeMountText(mountPoint);
    while (drive.mountPoint.size() > 1 && drive.mountPoint.back() == '/') drive.mountPoint.pop_back();
    if (drive.mountPoint.empty() || drive.mountPoint == "/") continue;
    splitSource(unescapeMountText(source), drive);
    drives.push_back(std::move(drive));
  }
  std::stable_sort(drives.begin(), drives.end(),
                   [](const NetworkDrive& a, const NetworkDrive& b) { return a.mountPoint < b.mountPoint; });
  return drives;
}

std::optional<std::vector<NetworkDrive>> readNetworkMounts() {
  std::ifstream in("/proc/self/mounts", std::ios::binary);
  if (!in) return std::nullopt;
  const std::string table((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  return parseNetworkMounts(table);
}

}  // namespace plovix
