// Tests of the XML reader: the accepted subset, the order of handler events, the tree and every fault
// message.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalog/XmlSaxParser.h"
#include "catalog/XmlTreeHandler.h"

namespace plovix {
namespace {

const std::string kDeclaration = "<?xml version=\"1.0\"?>\n";

// Records every event as one line of text.
class EventLog : public XML_SAX_HANDLER {
 public:
  void startDocument() override { events.push_back("begin"); }
  void endDocument() override { events.push_back("end"); }
  void startElement(const std::string& name, const XmlAttributes& attributes) override {
    std::string line = "<" + name;
    for (const auto& [key, value] : attributes) line += " " + key + "=" + value;
    events.push_back(line + ">");
  }
  void endElement(const std::string& name) override { events.push_back("</" + name + ">"); }
  void characters(const std::string& text) override { events.push_back("text[" + text + "]"); }
  std::vector<std::string> events;
};

struct Outcome {
  std::vector<std::string> events;
  std::string failure;  // "parse: message" or "xml: message"; empty on success
};

Outcome parseDocument(const std::string& document) {
  XML_SAX_STRING_INPUT source(document);
  EventLog log;
  XML_SAX_PARSER parser(source, log);
  Outcome outcome;
  try {
    parser.parse();
  } catch (const XML_SAX_PARSE_EXCEPTION& error) {
    outcome.failure = "parse: " + error.message();
  } catch (const XML_EXCEPTION& error) {
    outcome.failure = "xml: " + error.message();
  }
  outcome.events = log.events;
  return outcome;
}

using Events = std::vector<std::string>;

std::string failureOf(const std::string& body) {
  return parseDocument(kDeclaration + body).failure;
}

TEST(XmlDeclaration, NeedsVersionOneAndAcceptsCapitalXml) {
  EXPECT_EQ(parseDocument("  <?XML version=\"1.0\"?>").failure, "");
  EXPECT_EQ(parseDocument("<?xml version=\"1.0\"?>  \n ").events, (Events{"begin", "end"}));
  EXPECT_EQ(parseDocument("<?xml version=\"1.00\"?>").failure, "parse: Unknown XML version encountered");
  EXPECT_EQ(parseDocument("<?xml encoding=\"x\"?>").failure, "parse: Unknown XML version encountered");
  EXPECT_EQ(parseDocument("<A/>").failure, "parse: Error: ? was needed but got A");
  EXPECT_EQ(parseDocument("").failure, "parse: Error: < was needed but got ");
  EXPECT_EQ(parseDocument("<?yml version=\"1.0\"?>").failure, "parse: Error: xml was needed but got yml");
}

TEST(XmlEvents, ComeInDocumentOrderWithTextAfterChildren) {
  EXPECT_EQ(parseDocument(kDeclaration + "<A/>").events, (Events{"begin", "<A>", "</A>", "end"}));
  EXPECT_EQ(parseDocument(kDeclaration + "<A></A>").events, (Events{"begin", "<A>", "</A>", "end"}));
  EXPECT_EQ(parseDocument(kDeclaration + "<A x=\"1\"y=\"two\" ><B/>tail</A><C />").events,
            (Events{"begin", "<A x=1 y=two>", "<B>", "</B>", "text[tail]", "</A>", "<C>", "</C>", "end"}));
  // The fault ends the parse but the events before it stand, and endDocument is not called.
  EXPECT_EQ(parseDocument(kDeclaration + "<A><B></C></A>").events, (Events{"begin", "<A>", "<B>"}));
}

TEST(XmlText, KeepsTrailingBlanksAndDecodesThreeReferences) {
  auto textOf = [](const std::string& content) {
    const Outcome outcome = parseDocument(kDeclaration + "<A>" + content + "</A>");
    EXPECT_EQ(outcome.failure, "");
    return outcome.events.size() > 2 ? outcome.events[2] : std::string();
  };
  EXPECT_EQ(textOf("  one two  "), "text[one two  ]");
  EXPECT_EQ(textOf("x &lt; y &gt; z &quote;q"), "text[x < y > z \"q]");
  EXPECT_EQ(textOf("a &amp; b &quot; &apos; &lt"), "text[a &amp; b &quot; &apos; &lt]");
  EXPECT_EQ(textOf("a &&lt;&q;"), "text[a &<&q;]");
  // The run's first item is read as a token: quotes vanish and a reference there is not decoded.
  EXPECT_EQ(textOf("\"quoted\" rest"), "text[quoted rest]");
  EXPECT_EQ(textOf("&lt;x"), "text[&lt;x]");
  EXPECT_EQ(textOf("12ab"), "text[12ab]");
}

TEST(XmlAttributes, AreDoubleQuotedAndKeptAsWritten) {
  EXPECT_EQ(parseDocument(kDeclaration + "<A v=\"&lt;b c\"/>").events[1], "<A v=&lt;b c>");
  EXPECT_EQ(failureOf("<A x='1'/>"), "parse: Attribute value is missing for attribute : x");
  EXPECT_EQ(failureOf("<A x=\"\"/>"), "parse: Attribute value is missing for attribute : x");
  EXPECT_EQ(failureOf("<A x=1/>"), "parse: Attribute value is missing for attribute : x");
  EXPECT_EQ(failureOf("<A x=\"1\" x=\"2\"/>"), "xml: Duplicate attribute name found");
  EXPECT_EQ(failureOf("<A x \"1\"/>"), "parse: Error: = was needed but got 1");
  EXPECT_EQ(failureOf("<A x=\"1/>"), "parse: Unexpected end of a quoted string encountered");
}

TEST(XmlStructure, ReportsEachFaultWithItsMessage) {
  EXPECT_EQ(failureOf("<A>text<B/></A>"), "parse: Error: </ was needed but got <");
  EXPECT_EQ(failureOf("<A></B>"), "parse: Start (A) and end tag (B) identifiers do not match");
  EXPECT_EQ(failureOf("<A></a>"), "parse: Start (A) and end tag (a) identifiers do not match");
  EXPECT_EQ(failureOf("<A>"), "parse: Error: </ was needed but got ");
  EXPECT_EQ(failureOf("<A>open text"), "parse: Text string terminated unexpectedly");
  EXPECT_EQ(failureOf("<1/>"), "parse: Expected identifier not found");
  EXPECT_EQ(failureOf("<A></ >"), "parse: Expected identifier not found");
  EXPECT_EQ(failureOf("<A/></B>"), "parse: Extra input found after the root end tag");
  EXPECT_EQ(failureOf("<A/ >"), "");
  EXPECT_EQ(failureOf("<A//>"), "parse: Error: > was needed but got /");
}

TEST(XmlComments, StandOnlyAfterTheLastChildAndHaveNoDash) {
  EXPECT_EQ(parseDocument(kDeclaration + "<A><B/><!-- note --></A>").events,
            (Events{"begin", "<A>", "<B>", "</B>", "</A>", "end"}));
  EXPECT_EQ(failureOf("<A><!-- a-b --></A>"), "parse: Error: - was needed but got b");
  EXPECT_EQ(failureOf("<A><!DOCTYPE x></A>"), "parse: Unknown comment tag combination encountered");
  EXPECT_EQ(failureOf("<!-- first --><A/>"), "parse: Extra input found after the root end tag");
  EXPECT_EQ(failureOf("<A><!-- open"), "parse: Text string terminated unexpectedly");
  EXPECT_EQ(failureOf("<A><!-- x --><B/></A>"), "parse: Error: </ was needed but got <");
}

TEST(XmlInput, StopsAtAByteFFAndToleratesOtherBytes) {
  EXPECT_EQ(failureOf("<A>x\xff</A>"), "parse: Text string terminated unexpectedly");
  EXPECT_EQ(failureOf("<A>\xff</A>"), "parse: Error: </ was needed but got ");
  EXPECT_EQ(parseDocument(kDeclaration + "<A>\x80\x01\\.:</A>").events[2], "text[\x80\x01\\.:]");
  EXPECT_EQ(failureOf(std::string("<A\0/>", 5)),
            "parse: Error: > was needed but got " + std::string(1, '\0'));
}

TEST(XmlTree, BuildsNodesUnderTheDocumentNode) {
  XML_SAX_STRING_INPUT source(kDeclaration + "<A k=\"v\"><B>first</B><B/>last</A><C/>");
  XML_TREE_HANDLER tree;
  XML_SAX_PARSER parser(source, tree);
  parser.parse();
  EXPECT_EQ(tree.documentNode().name(), "xml#_app%__doc$__root&");
  ASSERT_EQ(tree.topElements().size(), 2u);
  const XML_NODE& a = *tree.topElements()[0];
  EXPECT_EQ(a.name(), "A");
  EXPECT_EQ(a.text(), "last");
  ASSERT_NE(a.attribute("k"), nullptr);
  EXPECT_EQ(*a.attribute("k"), "v");
  EXPECT_EQ(a.attribute("K"), nullptr);
  ASSERT_EQ(a.children().size(), 2u);
  EXPECT_EQ(a.children()[0]->text(), "first");
  EXPECT_TRUE(a.children()[1]->children().empty());
  EXPECT_EQ(tree.topElements()[1]->name(), "C");
}

TEST(XmlTree, SurvivesDeepNestingAndKeepsThePartialTree) {
  std::string deep;
  for (int i = 0; i < 50000; ++i) deep += "<a>";
  XML_TREE_HANDLER tree;
  {
    XML_SAX_STRING_INPUT source(kDeclaration + "<top/>" + deep);
    XML_SAX_PARSER parser(source, tree);
    EXPECT_THROW(parser.parse(), XML_SAX_PARSE_EXCEPTION);
  }
  ASSERT_EQ(tree.topElements().size(), 1u);

  std::string closed = deep;
  for (int i = 0; i < 50000; ++i) closed += "</a>";
  XML_SAX_STRING_INPUT source(kDeclaration + closed);
  XML_TREE_HANDLER nested;
  XML_SAX_PARSER parser(source, nested);
  parser.parse();
  EXPECT_EQ(nested.topElements().size(), 1u);
}

}  // namespace
}  // namespace plovix
