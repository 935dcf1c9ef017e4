// Building the modulon tree from the catalog's sections.
#include "pages/ModulonTree.h"

#include <algorithm>

#include "base/TextHelpers.h"

namespace plovix {

bool alphabeticallyBefore(const std::string& a, const std::string& b) {
  return toLowerText(a) < toLowerText(b);
}

std::vector<int>& ModulonTree::childrenOf(int parent) {
  return parent == kNoItem ? topLevel_ : items_[static_cast<size_t>(parent)].children;
}

int ModulonTree::childNamed(int parent, const std::string& text) const {
  const std::vector<int>& children = parent == kNoItem ? topLevel_ : item(parent).children;
  for (int child : children) {
    if (item(child).text == text) return child;
  }
  return kNoItem;
}

int ModulonTree::insertSorted(int parent, const std::string& text, int image) {
  const int index = static_cast<int>(items_.size());
  items_.push_back(Item{text, image, parent, {}});
  std::vector<int>& siblings = childrenOf(parent);
  // A new item goes after the siblings that do not sort after it.
  const auto at = std::upper_bound(siblings.begin(), siblings.end(), index, [this](int a, int b) {
    return alphabeticallyBefore(item(a).text, item(b).text);
  });
  siblings.insert(at, index);
  return index;
}

void ModulonTree::build(const std::vector<CatalogEntry>& entries, const std::string& selectName) {
  items_.clear();
  topLevel_.clear();
  selected_ = kNoItem;
  selectedByName_ = false;
  for (const CatalogEntry& entry : entries) {
    int current = kNoItem;
    if (!entry.section.empty()) {
      std::vector<std::string> folders;
      size_t start = 0;
      for (;;) {
        const size_t bar = entry.section.find('|', start);
        folders.push_back(
            entry.section.substr(start, bar == std::string::npos ? std::string::npos : bar - start));
        if (bar == std::string::npos) break;
        start = bar + 1;
      }
      size_t i = 0;
      for (; i < folders.size(); ++i) {
        const int match = childNamed(current, folders[i]);
        if (match == kNoItem) break;
        current = match;
      }
      for (; i < folders.size(); ++i) current = insertSorted(current, folders[i], kFolderImage);
    }
    const int modulon = insertSorted(current, entry.name, kModulonImage);
    if (entry.name == selectName) {
      selected_ = modulon;
      selectedByName_ = true;
    }
  }
}

std::string ModulonTree::selectedText() const {
  return selected_ == kNoItem ? std::string() : item(selected_).text;
}

std::vector<std::pair<int, int>> ModulonTree::displayOrder() const {
  std::vector<std::pair<int, int>> order;
  std::vector<std::pair<int, int>> stack;
  for (auto it = topLevel_.rbegin(); it != topLevel_.rend(); ++it) stack.emplace_back(*it, 0);
  while (!stack.empty()) {
    const auto [index, depth] = stack.back();
    stack.pop_back();
    order.emplace_back(index, depth);
    const std::vector<int>& children = item(index).children;
    for (auto it = children.rbegin(); it != children.rend(); ++it) stack.emplace_back(*it, depth + 1);
  }
  return order;
}

int ModulonTree::findByText(const std::string& text) const {
  for (const auto& [index, depth] : displayOrder()) {
    if (item(index).text == text) return index;
  }
  return kNoItem;
}

}  // namespace plovix
