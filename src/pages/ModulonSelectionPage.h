// Page 2a: the modulon, the output language and the output file of a new variation.
#pragma once

#include <string>
#include <vector>

#include "pages/ModulonTree.h"
#include "pages/WizardPageFrame.h"

namespace plovix {

// What the save-file dialog opened by Browse... shows.
struct SaveFileRequest {
  std::string title;
  std::string filter;  // "Name (pattern)|pattern|...||"
  std::string fileName;
  std::string initialDirectory;
};

class ModulonSelectionPage : public WizardPageFrame {
 public:
  // Opening: the tree, the edit text, the library list and the language button from the fields.
  void open(PageContext& context);

  // Browse...: the dialog to show; then the chosen full path, when the user pressed OK.
  SaveFileRequest browseRequest(PageContext& context) const;
  void applyBrowseChoice(const std::string& chosenPath);

  // Back keeps the page's entries for the next visit.
  bool pressBack(PageContext& context, const std::optional<PixelRect>& window) override;
  bool pressNext(PageContext& context, const std::optional<PixelRect>& window) override;

  // The page's fields, kept between visits within one run.
  std::string outputText;
  std::string directory;
  std::string baseName;
  std::string extension;
  std::string modulonName;

  // The controls while the page is shown.
  std::string editText;
  int languageIndex = 0;  // the checked radio button: an OutputKind's buttonIndex (THDL, VHDL, Verilog)
  ModulonTree tree;
  std::vector<std::string> libraryDirectories;  // as the list shows them

 protected:
  bool validatePage(PageContext& context) override;

 private:
  std::string checkedExtension() const;
};

}  // namespace plovix
