// Building the element tree from the parser's events.
#include "catalog/XmlTreeHandler.h"

#include "catalog/XmlExceptions.h"

namespace plovix {

XML_NODE::~XML_NODE() {
  std::vector<std::unique_ptr<XML_NODE>> pending = std::move(children_);
  while (!pending.empty()) {
    std::unique_ptr<XML_NODE> node = std::move(pending.back());
    pending.pop_back();
    for (std::unique_ptr<XML_NODE>& child : node->children_) pending.push_back(std::move(child));
    node->children_.clear();
  }
}

const std::string* XML_NODE::attribute(const std::string& name) const {
  const auto it = attributes_.find(name);
  return it == attributes_.end() ? nullptr : &it->second;
}

void XML_NODE::addAttribute(const std::string& name, const std::string& value) {
  if (!attributes_.emplace(name, value).second) throw XML_EXCEPTION("Duplicate attribute name found");
}

void XML_TREE_HANDLER::startElement(const std::string& name, const XmlAttributes& attributes) {
  auto node = std::make_unique<XML_NODE>(name);
  for (const auto& [attributeName, value] : attributes) node->addAttribute(attributeName, value);
  open_.push_back(std::move(node));
}

void XML_TREE_HANDLER::endElement(const std::string&) {
  if (open_.empty()) return;
  std::unique_ptr<XML_NODE> node = std::move(open_.back());
  open_.pop_back();
  innermost().appendChild(std::move(node));
}

void XML_TREE_HANDLER::characters(const std::string& text) {
  innermost().setText(text);
}

}  // namespace plovix
