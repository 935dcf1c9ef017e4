// A bundled modulon: its settings, the check across them, and how its values become a CNX description.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "DescriptionText.h"
#include "Setting.h"

namespace plovix::wizard {

// The language of the output file, from its extension; the description may differ between them.
enum class OutputLanguage { kThdl, kVhdl, kVerilog };

struct Modulon {
  std::string name;
  std::string title;  // one line saying what the modulon is
  std::vector<Setting> settings;
  // A message when the values do not fit together, else nothing.
  std::function<std::optional<std::string>(const SettingValues&)> check;
  // Adds the modulon's statements (modules, constants, ports, connections, symbol) to the description.
  std::function<void(const SettingValues&, OutputLanguage, DescriptionText&)> describe;

  // The setting of that name, the case of its letters aside.
  const Setting* findSetting(const std::string& settingName) const;
  // Every setting at its default value.
  SettingValues defaultValues() const;
};

}  // namespace plovix::wizard
