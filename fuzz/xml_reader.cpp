// Fuzzer of the XML reader: any bytes, with or without a valid declaration in front, parse or raise cleanly.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "catalog/XmlSaxParser.h"
#include "catalog/XmlTreeHandler.h"

namespace {

// Walks the tree without recursion and checks what every node must hold.
void checkTree(const plovix::XML_TREE_HANDLER& tree) {
  std::vector<const plovix::XML_NODE*> pending;
  for (const auto& top : tree.topElements()) pending.push_back(top.get());
  while (!pending.empty()) {
    const plovix::XML_NODE* node = pending.back();
    pending.pop_back();
    if (node->name().empty()) std::abort();
    for (const auto& child : node->children()) pending.push_back(child.get());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string document(reinterpret_cast<const char*>(data), size);
  // The first byte decides whether a valid declaration comes first, so that most inputs reach the elements.
  if (!document.empty() && (document[0] & 1) != 0)
    document = "<?xml version=\"1.0\"?>\n" + document.substr(1);
  plovix::XML_SAX_STRING_INPUT source(document);
  plovix::XML_TREE_HANDLER tree;
  plovix::XML_SAX_PARSER parser(source, tree);
  try {
    parser.parse();
  } catch (const plovix::XML_SAX_EXCEPTION& error) {
    if (error.message().empty()) std::abort();
  } catch (const plovix::XML_EXCEPTION& error) {
    if (error.message().empty()) std::abort();
  }
  checkTree(tree);
  return 0;
}
