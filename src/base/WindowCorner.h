// The bottom-right corner of the last page or plug-in window, kept between pages and runs.
#pragma once

namespace plovix {

struct WindowCorner {
  int right = 500;
  int bottom = 500;
  bool known = false;
};

}  // namespace plovix
