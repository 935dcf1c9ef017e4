// Temporary: rendering symbols is being written.
#include <cstdio>

#include "Subcommands.h"

namespace plovix {

int renderSymbol(UserInterface&, const std::string&) {
  std::fprintf(stderr, "plovix: --render-symbol is not built yet\n");
  return 1;
}

}  // namespace plovix
