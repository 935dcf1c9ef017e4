// The document handler that builds a tree of element nodes, and the node itself.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "catalog/XmlSaxHandler.h"

namespace plovix {

// One element: its name, its text run, its attributes and its children in document order.
class XML_NODE {
 public:
  explicit XML_NODE(std::string name) : name_(std::move(name)) {}
  // Frees the subtree without recursion, so a deeply nested document cannot exhaust the stack.
  ~XML_NODE();
  XML_NODE(const XML_NODE&) = delete;
  XML_NODE& operator=(const XML_NODE&) = delete;

  const std::string& name() const { return name_; }
  const std::string& text() const { return text_; }
  void setText(std::string text) { text_ = std::move(text); }

  // The value of an attribute, or null when the element has no such attribute.
  const std::string* attribute(const std::string& name) const;
  // Raises XML_EXCEPTION when the name is already present.
  void addAttribute(const std::string& name, const std::string& value);
  const XmlAttributes& attributes() const { return attributes_; }

  const std::vector<std::unique_ptr<XML_NODE>>& children() const { return children_; }
  void appendChild(std::unique_ptr<XML_NODE> child) { children_.push_back(std::move(child)); }

 private:
  std::string name_;
  std::string text_;
  XmlAttributes attributes_;
  std::vector<std::unique_ptr<XML_NODE>> children_;
};

class XML_TREE_HANDLER : public XML_SAX_HANDLER {
 public:
  // The name of the document node, which holds the top-level elements.
  static constexpr const char* kDocumentNodeName = "xml#_app%__doc$__root&";

  XML_TREE_HANDLER() : document_(std::make_unique<XML_NODE>(kDocumentNodeName)) {}

  void startElement(const std::string& name, const XmlAttributes& attributes) override;
  void endElement(const std::string& name) override;
  void characters(const std::string& text) override;

  const XML_NODE& documentNode() const { return *document_; }
  // The document's top-level elements in order.
  const std::vector<std::unique_ptr<XML_NODE>>& topElements() const { return document_->children(); }

 private:
  XML_NODE& innermost() { return open_.empty() ? *document_ : *open_.back(); }

  std::unique_ptr<XML_NODE> document_;
  // The open elements below the document node, innermost last; each is owned here until it is closed.
  std::vector<std::unique_ptr<XML_NODE>> open_;
};

}  // namespace plovix
