// Temporary: printing the catalog is being written.
#include <cstdio>

#include "Subcommands.h"

namespace plovix {

int listModulons(UserInterface&) {
  std::fprintf(stderr, "plovix: --list-modulons is not built yet\n");
  return 1;
}

}  // namespace plovix
