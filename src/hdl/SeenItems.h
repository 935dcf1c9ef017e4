// A list of items written into one text between separators, which the writers search for an item: a set
// answers where the text search cannot give another answer, so the search does not grow with the text.
#pragma once

#include <string>
#include <string_view>

#include "cnx/NameSet.h"

namespace plovix {

class SeenItems {
 public:
  // Shared separators give the text ",a,b," (searched for ",item,"); wrapped items give " a  b " (searched
  // for " item ").
  enum class Layout { kSharedSeparators, kWrappedItems };

  SeenItems(char separator, Layout layout);

  // Whether the text holds the item with a separator on each side.
  bool contains(std::string_view item) const;
  void add(Name item);

 private:
  std::string wrapped(std::string_view item) const;

  char separator_;
  Layout layout_;
  std::string text_;
  NameSet items_;
  // Some item holds the separator, so a search may match across items: only the text can answer.
  bool textOnly_ = false;
};

}  // namespace plovix
