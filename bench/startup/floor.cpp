// The start-up floor for bench/startup.sh: a trivial C++ program linked as plovix is (the C++ runtime and
// libplovixhost.so through its run path) that prints a version line.
#include <cstdio>
#include <string>

#include "plovix_host.h"

int main() {
  const std::string line = std::string("plovix ") + PLOVIX_VERSION;
  std::puts(line.c_str());
  return sym_display_pixels_per_inch() > 0 ? 0 : 1;
}
