// The window that asks for the values when a display is there.
#pragma once

#include <memory>

#include "WizardRun.h"

namespace plovix::wizard {

std::unique_ptr<ValueDialog> makeWindowDialog();

}  // namespace plovix::wizard
