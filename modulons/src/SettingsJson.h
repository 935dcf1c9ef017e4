// A modulon's settings as the JSON object that answers --describe.
#pragma once

#include <string>

#include "Modulon.h"

namespace plovix::wizard {

// {"modulon": ..., "title": ..., "settings": [...]}: every setting in the order the plug-in asks for it, with
// its kind, its range or words, its default and its question as help; one setting per line.
std::string settingsJson(const Modulon& modulon);

}  // namespace plovix::wizard
