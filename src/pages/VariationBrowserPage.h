// Page 2b: the browser for an existing variation file.
#pragma once

#include <string>

#include "pages/WizardPageFrame.h"

namespace plovix {

class VariationBrowserPage : public WizardPageFrame {
 public:
  std::string baseName;
  std::string extension;
  std::string directory;
  std::string modulonName;
  bool showOnlyWizardFiles = true;
  bool newVariation = true;
};

}  // namespace plovix
