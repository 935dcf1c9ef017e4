// The browser page in Qt: the look-in box, the view buttons, the file list, the file name, the file types,
// the wizard-only check box and the modulon box.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>

#include "pages/VariationBrowserPage.h"
#include "ui/qt/QtPageDialog.h"

namespace plovix {

class QtBrowserDialog : public QtPageDialog {
 public:
  QtBrowserDialog(VariationBrowserPage& page, PageContext& context);

 protected:
  void pushControls() override;

 private:
  void pushList();
  void pushModulonBox();
  void startRename();
  void finishRename(QTreeWidgetItem* item);

  VariationBrowserPage& page_;
  QComboBox* lookIn_;
  QToolButton* upOneLevel_;
  QToolButton* listView_;
  QToolButton* detailedView_;
  QTreeWidget* list_;
  QLineEdit* fileName_;
  QComboBox* fileType_;
  QCheckBox* wizardOnly_;
  QComboBox* modulon_;
  std::vector<FileListItem> shownItems_;  // the listing the rows show
  bool updating_ = false;
  int renaming_ = -1;
};

}  // namespace plovix
