// Fuzzer of the .sym reader behind plovix --render-symbol: any text is read into a drawing and drawn as SVG,
// or refused with the number of a line of the text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "plovix_host.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  char* svg = nullptr;
  int errorLine = -1;
  if (sym_render_svg_text(reinterpret_cast<const char*>(data), size, &svg, &errorLine) == 0) {
    if (svg != nullptr || errorLine < 1) std::abort();
    return 0;
  }
  if (svg == nullptr || std::strstr(svg, "<svg") == nullptr) std::abort();
  sym_free_text(svg);
  return 0;
}
