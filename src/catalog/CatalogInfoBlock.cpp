// The INFO element of a catalog entry and its children ABSTRACT, ALIAS, NATIVE_HDL, NATIVE_TOOL and DESCRIBE.
#include "catalog/CatalogInfoBlock.h"

#include "base/TextHelpers.h"
#include "catalog/XmlSaxParser.h"
#include "catalog/XmlTreeHandler.h"

namespace plovix {

namespace {

std::string attributeOf(const XML_NODE& node, const std::string& name) {
  const std::string* value = node.attribute(name);
  return value == nullptr ? std::string() : *value;
}

void registerAliases(const std::string& list, const std::string& modulon,
                     std::map<std::string, std::string>& aliases) {
  size_t start = 0;
  for (;;) {
    const size_t comma = list.find(',', start);
    aliases[trimText(list.substr(start, comma - start))] = modulon;
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
}

// Each child of NATIVE_TOOL is a script; its HREF counts when its OS_NAME is absent or names the platform.
void appendScripts(const XML_NODE& tool, const std::string& platform, CatalogEntry& entry) {
  for (const auto& script : tool.children()) {
    const std::string os = toLowerText(attributeOf(*script, "OS_NAME"));
    const std::string href = attributeOf(*script, "HREF");
    if (!href.empty() && (os.empty() || os == platform)) entry.scripts += href + "+";
  }
}

}  // namespace

void readInformationBlock(const std::string& block, const std::string& platform, CatalogEntry& entry,
                          std::map<std::string, std::string>& aliases) {
  XML_SAX_STRING_INPUT source("<?xml version=\"1.0\"?>\n" + block);
  XML_TREE_HANDLER tree;
  XML_SAX_PARSER parser(source, tree);
  parser.parse();

  if (tree.topElements().empty()) return;
  const XML_NODE& info = *tree.topElements().back();
  if (info.name() != "INFO") return;
  for (const auto& child : info.children()) {
    const std::string& name = child->name();
    if (name == "ABSTRACT") {
      entry.abstract = child->text();
    } else if (name == "ALIAS") {
      entry.alias = child->text();
      registerAliases(entry.alias, entry.name, aliases);
    } else if (name == "NATIVE_HDL") {
      entry.nativeHdl = attributeOf(*child, "NAME");
    } else if (name == "NATIVE_TOOL") {
      entry.nativeTool = attributeOf(*child, "NAME");
      appendScripts(*child, platform, entry);
    } else if (name == "DESCRIBE") {
      // The plug-in describes its settings when started with these words added.
      entry.describes = true;
      entry.describeArgs = trimText(attributeOf(*child, "ARGS"));
      if (entry.describeArgs.empty()) entry.describeArgs = kDefaultDescribeArgs;
    }
  }
}

}  // namespace plovix
