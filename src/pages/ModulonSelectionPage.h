// Page 2a: the modulon, the output language and the output file of a new variation.
#pragma once

#include <string>

#include "pages/WizardPageFrame.h"

namespace plovix {

class ModulonSelectionPage : public WizardPageFrame {
 public:
  std::string outputText;
  std::string directory;
  std::string baseName;
  std::string extension;
  std::string modulonName;
};

}  // namespace plovix
