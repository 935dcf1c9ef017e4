// Telling the manager where the plug-in's window was: a position report (plovix_position.h) to its socket.
#pragma once

namespace plovix::wizard {

// Sends the window's right and bottom edges to the manager with that thread id; false when nobody listens.
bool reportWindowCorner(long long managerThread, int right, int bottom);

}  // namespace plovix::wizard
