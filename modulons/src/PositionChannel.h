// Telling the manager where the plug-in's window was: "1034 <right> <bottom>" to its position socket.
#pragma once

#include <string>

namespace plovix::wizard {

// The abstract socket name the manager with that thread id listens on.
std::string positionSocketName(long long managerThread);

// Sends the window's right and bottom edges; false when nobody listens.
bool reportWindowCorner(long long managerThread, long long right, long long bottom);

}  // namespace plovix::wizard
