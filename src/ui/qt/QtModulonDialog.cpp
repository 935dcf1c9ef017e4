// Building the Qt modulon page and its save-file dialog.
#include "ui/qt/QtModulonDialog.h"

#include <QFileDialog>
#include <QLabel>
#include <QPushButton>

#include "base/OutputKinds.h"
#include "pages/PageTexts.h"
#include "ui/qt/QtPicture.h"

namespace plovix {

namespace {

QString text(std::string_view s) {
  return QString::fromStdString(std::string(s));
}

QLabel* addLabel(QWidget* parent, std::string_view s, QRect rect, bool wrap = false) {
  auto* label = new QLabel(text(s), parent);
  label->setWordWrap(wrap);
  label->setGeometry(rect);
  return label;
}

}  // namespace

bool runSaveFileDialog(QWidget* parent, const SaveFileRequest& request, std::string& chosenPath) {
  // "Name (pattern)|pattern|...||": every other piece names a filter.
  QStringList filters;
  const QStringList pieces = QString::fromStdString(request.filter).split('|');
  for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
    if (!pieces[i].isEmpty()) filters << pieces[i];
  }
  QFileDialog dialog(parent, QString::fromStdString(request.title),
                     QString::fromStdString(request.initialDirectory));
  dialog.setObjectName("saveFileDialog");
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilters(filters);
  if (!request.fileName.empty()) dialog.selectFile(QString::fromStdString(request.fileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  chosenPath = dialog.selectedFiles().front().toStdString();
  return true;
}

QtModulonDialog::QtModulonDialog(ModulonSelectionPage& page, PageContext& context)
    : QtPageDialog(page, context, QSize(560, 340)), page_(page) {
  setObjectName("modulonPage");
  QLabel* treeLabel = addLabel(this, pagetexts::kModulonTreeLabel, QRect(10, 8, 220, 18));
  tree_ = new QTreeWidget(this);
  tree_->setObjectName("modulonTree");
  tree_->setHeaderHidden(true);
  tree_->setGeometry(10, 28, 220, 302);
  registerControl(kControlModulonTree, tree_);
  treeLabel->setBuddy(tree_);

  addLabel(this, pagetexts::kModulonQuestion, QRect(245, 8, 305, 34), true);
  QLabel* typeLabel = addLabel(this, pagetexts::kTypeQuestion, QRect(245, 48, 305, 18));
  const std::string_view names[] = {pagetexts::kThdlButton, pagetexts::kVhdlButton,
                                    pagetexts::kVerilogButton};
  const int ids[] = {kControlThdlButton, kControlVhdlButton, kControlVerilogButton};
  for (int i = 0; i < 3; ++i) {
    languages_[static_cast<size_t>(i)] = new QRadioButton(text(names[i]), this);
    languages_[static_cast<size_t>(i)]->setObjectName(
        QString::fromStdString(std::string(outputKindOfButton(i)->cliWord)));
    languages_[static_cast<size_t>(i)]->setGeometry(255 + i * 95, 68, 95, 22);
    registerControl(ids[i], languages_[static_cast<size_t>(i)]);
  }

  QLabel* outputLabel = addLabel(this, pagetexts::kOutputNameLabel, QRect(245, 98, 305, 18));
  output_ = new QLineEdit(this);
  output_->setObjectName("outputName");
  output_->setGeometry(245, 118, 220, 24);
  registerControl(kControlOutputName, output_);
  typeLabel->setBuddy(languages_[0]);
  outputLabel->setBuddy(output_);
  auto* browseButton = new QPushButton(text(pagetexts::kBrowseButton), this);
  browseButton->setObjectName("browse");
  browseButton->setAutoDefault(false);
  browseButton->setGeometry(472, 118, 78, 24);
  registerControl(kControlBrowse, browseButton);
  connect(browseButton, &QPushButton::clicked, this, [this] { browse(); });

  addLabel(this, pagetexts::kLibraryListLabel, QRect(245, 152, 305, 18));
  libraries_ = new QListWidget(this);
  libraries_->setObjectName("libraries");
  libraries_->setGeometry(245, 172, 305, 70);
  registerControl(kControlLibraryList, libraries_);
  addLabel(this, pagetexts::kProjectNote, QRect(245, 250, 305, 80), true);
}

void QtModulonDialog::browse() {
  pullControls();
  std::string chosen;
  if (runSaveFileDialog(this, page_.browseRequest(context_), chosen)) page_.applyBrowseChoice(chosen);
  afterEvent(false);
}

void QtModulonDialog::pullControls() {
  page_.editText = output_->text().toStdString();
  for (int i = 0; i < 3; ++i) {
    if (languages_[static_cast<size_t>(i)]->isChecked()) page_.languageIndex = i;
  }
  const QTreeWidgetItem* current = tree_->currentItem();
  page_.tree.select(current != nullptr && current->isSelected() ? current->data(0, Qt::UserRole).toInt()
                                                                : ModulonTree::kNoItem);
}

void QtModulonDialog::pushControls() {
  tree_->clear();
  std::vector<QTreeWidgetItem*> made(page_.tree.items().size(), nullptr);
  for (const auto& [index, depth] : page_.tree.displayOrder()) {
    const ModulonTree::Item& item = page_.tree.item(index);
    QTreeWidgetItem* widgetItem = item.parent == ModulonTree::kNoItem
                                      ? new QTreeWidgetItem(tree_)
                                      : new QTreeWidgetItem(made[static_cast<size_t>(item.parent)]);
    widgetItem->setText(0, QString::fromStdString(item.text));
    widgetItem->setIcon(0, modulonTreeIcon(item.image));
    widgetItem->setData(0, Qt::UserRole, index);
    made[static_cast<size_t>(index)] = widgetItem;
  }
  tree_->expandAll();
  if (page_.tree.selected() != ModulonTree::kNoItem) {
    QTreeWidgetItem* selected = made[static_cast<size_t>(page_.tree.selected())];
    tree_->setCurrentItem(selected);
    tree_->scrollToItem(selected);
  }
  for (int i = 0; i < 3; ++i) languages_[static_cast<size_t>(i)]->setChecked(i == page_.languageIndex);
  output_->setText(QString::fromStdString(page_.editText));
  libraries_->clear();
  for (const std::string& library : page_.libraryDirectories)
    libraries_->addItem(QString::fromStdString(library));
}

}  // namespace plovix
