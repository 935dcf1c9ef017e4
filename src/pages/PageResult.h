// The result a page leaves when it closes.
#pragma once

namespace plovix {

enum PageResult : int { kPageFinish = 0, kPageNext = 1, kPageBack = -1, kPageCancel = 2 };

}  // namespace plovix
