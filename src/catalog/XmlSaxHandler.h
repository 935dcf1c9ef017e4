// The XML reader's document handler: the events of a parse, each doing nothing unless overridden.
#pragma once

#include <map>
#include <string>

namespace plovix {

// The attributes of one tag: name to value, names compared exactly.
using XmlAttributes = std::map<std::string, std::string>;

class XML_SAX_HANDLER {
 public:
  virtual ~XML_SAX_HANDLER() = default;

  virtual void startDocument() {}
  // Called only after a successful parse.
  virtual void endDocument() {}
  // The attribute map is valid only during the call.
  virtual void startElement(const std::string& /*name*/, const XmlAttributes& /*attributes*/) {}
  virtual void endElement(const std::string& /*name*/) {}
  // One text run of an element, delivered after its children.
  virtual void characters(const std::string& /*text*/) {}
};

}  // namespace plovix
