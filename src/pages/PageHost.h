// The interface through which the run shows its pages; the batch, console and Qt front ends implement it.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "base/WindowCorner.h"
#include "pages/ActionPage.h"
#include "pages/ModulonSelectionPage.h"
#include "pages/VariationBrowserPage.h"

namespace plovix {

class WizardCatalog;

// What a page may use while it is shown.
struct PageContext {
  UserInterface& ui;
  const WizardCatalog& catalog;
  WindowCorner& corner;
  std::string projectDirectory;
  // The run's output path (directory + file title + extension) when the page is shown; the batch front end
  // fills the pages from it.
  std::string outputPath;
};

class PageHost {
 public:
  virtual ~PageHost() = default;

  // Each shows its page modally and returns the page's result (also left in page.result).
  virtual PageResult showActionPage(ActionPage& page, PageContext& context) = 0;
  virtual PageResult showModulonPage(ModulonSelectionPage& page, PageContext& context) = 0;
  virtual PageResult showBrowserPage(VariationBrowserPage& page, PageContext& context) = 0;
};

}  // namespace plovix
