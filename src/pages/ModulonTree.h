// The modulon page's tree: folders from the catalog's sections, modulons inside them, siblings in
// alphabetical order.
#pragma once

#include <string>
#include <vector>

#include "catalog/WizardCatalog.h"

namespace plovix {

class ModulonTree {
 public:
  static constexpr int kModulonImage = 5;
  static constexpr int kFolderImage = 6;
  static constexpr int kNoItem = -1;

  struct Item {
    std::string text;
    int image = kModulonImage;
    int parent = kNoItem;
    std::vector<int> children;  // in display order
  };

  // Empties the tree and builds it from the catalog entries in catalog order. The item whose text equals
  // `selectName` (the last one, when several do) is selected; `selectedByName` tells whether one was.
  void build(const std::vector<CatalogEntry>& entries, const std::string& selectName);

  const std::vector<Item>& items() const { return items_; }
  const std::vector<int>& topLevel() const { return topLevel_; }
  const Item& item(int index) const { return items_[static_cast<size_t>(index)]; }
  bool hasChildren(int index) const { return !item(index).children.empty(); }

  int selected() const { return selected_; }
  void select(int index) { selected_ = index; }
  bool selectedByName() const { return selectedByName_; }
  // The text of the selected item; empty when none is selected.
  std::string selectedText() const;
  // The first item whose text is `text`, in display order; kNoItem when none.
  int findByText(const std::string& text) const;

  // Every item in display order (depth first), with its depth; for front ends that draw the tree as a list.
  std::vector<std::pair<int, int>> displayOrder() const;

 private:
  int childNamed(int parent, const std::string& text) const;
  int insertSorted(int parent, const std::string& text, int image);
  std::vector<int>& childrenOf(int parent);

  std::vector<Item> items_;
  std::vector<int> topLevel_;
  int selected_ = kNoItem;
  bool selectedByName_ = false;
};

// The alphabetical order of tree siblings and list names: without regard to case.
bool alphabeticallyBefore(const std::string& a, const std::string& b);

}  // namespace plovix
