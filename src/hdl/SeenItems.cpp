// Implementation of the searched list of items.
#include "hdl/SeenItems.h"

namespace plovix {

SeenItems::SeenItems(char separator, Layout layout) : separator_(separator), layout_(layout) {
  if (layout_ == Layout::kSharedSeparators) text_ += separator_;
}

std::string SeenItems::wrapped(std::string_view item) const {
  std::string text(1, separator_);
  text += item;
  text += separator_;
  return text;
}

// A non-empty item without the separator matches only a whole item, as long as no item holds the separator.
bool SeenItems::contains(std::string_view item) const {
  if (textOnly_ || item.empty() || item.find(separator_) != std::string_view::npos)
    return text_.find(wrapped(item)) != std::string::npos;
  return items_.contains(item);
}

void SeenItems::add(Name item) {
  if (item.view().find(separator_) != std::string_view::npos) textOnly_ = true;
  items_.insert(item);
  if (layout_ == Layout::kSharedSeparators) {
    text_ += item.view();
    text_ += separator_;
  } else {
    text_ += wrapped(item.view());
  }
}

}  // namespace plovix
