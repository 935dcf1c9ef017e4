// The modulon page in Qt: the modulon tree, the language buttons, the output name with Browse..., the user
// libraries and the note.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTreeWidget>
#include <array>

#include "pages/ModulonSelectionPage.h"
#include "ui/qt/QtPageDialog.h"

namespace plovix {

class QtModulonDialog : public QtPageDialog {
 public:
  QtModulonDialog(ModulonSelectionPage& page, PageContext& context);

 protected:
  void pullControls() override;
  void pushControls() override;

 private:
  void browse();

  ModulonSelectionPage& page_;
  QTreeWidget* tree_;
  std::array<QRadioButton*, 3> languages_{};
  QLineEdit* output_;
  QListWidget* libraries_;
};

// Shows the save-file dialog of a request; true with the chosen path when the user pressed OK.
bool runSaveFileDialog(QWidget* parent, const SaveFileRequest& request, std::string& chosenPath);

}  // namespace plovix
