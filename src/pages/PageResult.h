// The result a page leaves when it closes.
#pragma once

namespace plovix {

enum class PageResult : int { kFinish = 0, kNext = 1, kBack = -1, kCancel = 2 };

}  // namespace plovix
