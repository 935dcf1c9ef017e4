// The wait for a running plug-in: its end, its position reports, quit requests and the user interface's
// events.
#include <poll.h>
#include <signal.h>

#include "entry/PluginLaunchParts.h"

namespace plovix {

namespace {

// One round waits at most this long, so the user interface handles its events at least this often.
constexpr int kRoundMilliseconds = 10;

}  // namespace

PluginWaitResult waitForPlugin(ChildProcess& child, PositionChannel& channel, QuitSignals& quitSignals,
                               WindowCorner& corner, UserInterface& ui) {
  PluginWaitResult result;
  for (;;) {
    pollfd watched[] = {{child.endDescriptor(), POLLIN, 0},
                        {channel.descriptor(), POLLIN, 0},
                        {quitSignals.descriptor(), POLLIN, 0}};
    poll(watched, 3, kRoundMilliseconds);

    if (const auto position = channel.receive()) {
      corner.right = position->right;
      corner.bottom = position->bottom;
      corner.known = true;
    }
    if (const int signal = quitSignals.take(); signal != 0) result.quitSignal = signal;

    const bool ended = child.hasEnded(result.exitCode, true);
    // A plug-in that held the terminal got the user's Ctrl-C itself: the run is asked to quit as well.
    if (ended && child.endSignal() == SIGINT) result.quitSignal = SIGINT;
    if (result.quitSignal != 0 || !ui.processEvents()) {
      child.kill();
      result.exitCode = 2;
      return result;
    }
    if (ended) {
      result.endSignal = child.endSignal();
      return result;
    }
  }
}

}  // namespace plovix
