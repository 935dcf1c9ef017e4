// Page 2b: the browser for an existing variation file.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "pages/FileList.h"
#include "pages/LookInBox.h"
#include "pages/WizardPageFrame.h"

namespace plovix {

class VariationBrowserPage : public WizardPageFrame {
 public:
  // Opening: the look-in box, the file types, the check box, the list, the file name and the modulon box.
  void open(PageContext& context);

  // The pattern the list is filled with: the selected file type's when only wizard-generated files are
  // shown, else "*.*".
  std::string currentPattern() const;

  // The page's events.
  void chooseLookIn(PageContext& context, int index);
  void selectFileType(PageContext& context, int index);
  void clickWizardOnly(PageContext& context);
  // Every change of the file name box's text, typed or set by the page.
  void changeFileName(const std::string& text);
  void clickItem(int index);
  // A double-click on a file performs Next; gives true when the page closed.
  bool doubleClickItem(PageContext& context, int index, const std::optional<PixelRect>& window);
  // F2 edits the label of the selected item, or of the first one; -1 when the list is empty.
  int renameTarget() const;
  // The end of a label edit: the file or folder gets the new name. False when it kept the old one.
  bool renameItem(PageContext& context, int index, const std::string& newName);
  void showDetailedView(bool detailed) { list.detailedView = detailed; }
  void upOneLevel(PageContext& context);

  // The file name box's text applied as a path or wildcard; the Next form also lists the folder of a plain
  // file name. Gives whether a listing succeeded.
  bool applyTypedText(PageContext& context, bool nextForm);

  bool pressBack(PageContext& context, const std::optional<PixelRect>& window) override;

  // The page's fields, exchanged with the run.
  std::string baseName;
  std::string extension;
  std::string directory;
  std::string modulonName;
  bool showOnlyWizardFiles = true;
  bool newVariation = true;

  // The controls while the page is shown.
  LookInBox lookIn;
  std::vector<std::pair<std::string, std::string>> fileTypes;  // display text and pattern text
  int selectedFileType = 0;
  bool wizardOnlyChecked = true;
  FileList list;
  int selectedItem = -1;
  std::string fileNameText;
  std::vector<std::string> modulonItems;
  std::string modulonText;  // the modulon box's text

 protected:
  bool validatePage(PageContext& context) override;

 private:
  // Lists a directory; on success the directory and the look-in box follow it.
  bool navigateTo(PageContext& context, const std::string& path, const std::string& pattern);
  void selectFileTypeOf(const std::string& fileExtension);
  std::string modulonNamedBy(const std::string& path) const;
  bool splitTyped(PageContext& context, const std::string& text, std::string& outDirectory,
                  std::string& outFile) const;
};

}  // namespace plovix
