// The mounted network file systems that play the network drives: NFS, SMB and SSH mounts from the mount
// table.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace plovix {

struct NetworkDrive {
  std::string mountPoint;  // without a trailing "/"
  std::string server;
  std::string share;
};

// The network mounts of a mount table's text (the format of /proc/self/mounts), sorted by mount point.
std::vector<NetworkDrive> parseNetworkMounts(const std::string& mountTable);

// The network mounts of this process; nothing when the mount table cannot be read.
std::optional<std::vector<NetworkDrive>> readNetworkMounts();

}  // namespace plovix
