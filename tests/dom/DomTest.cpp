#include <functional>
#include <gtest/gtest.h>

#include "dom/Dom.h"
#include "dom/XmlDepth.h"
#include "runtime/RuntimeError.h"
#include "tests/support/ErrorOf.h"

namespace plotsmith::dom {
namespace {

TEST(DomTest, AnInvalidTextLeavesAnEmptyDocument) {
  auto document = IXMLDOMDocument2::Create();
  ASSERT_TRUE(document.loadXML("<!-- c --><chart a='1'/>"));
  EXPECT_EQ(document.documentElement().tagName(), "chart");
  ASSERT_TRUE(
      document.loadXML("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<!DOCTYPE chart>\n<chart a='1'/>\n"));
  EXPECT_EQ(document.xml(), "<chart a=\"1\"/>");
  for (const char* xml :
       {"", "text", "<a>", "<a/><b/>", "<a></b>", "</a>", "x<a/>", "<a/>x", "<a b='1' b='2'/>", "<a>&</a>",
        "<a b='<'/>", "<a>&nbsp;</a>", "<a>\x0B</a>", " <?xml version='1.0'?><a/>"}) {
    EXPECT_FALSE(document.loadXML(xml)) << xml;
    EXPECT_FALSE(document.documentElement()) << xml;
  }
  std::string deep = "<!DOCTYPE a [<!-- ' -->]>";
  for (int i = 0; i < 300000; ++i) deep += "<a>";
  for (int i = 0; i < 300000; ++i) deep += "</a>";
  EXPECT_FALSE(document.loadXML(deep)) << "such a deep branch can't even be removed";
}

TEST(DomTest, AParseErrorHasReasonLineAndCharacter) {
  auto document = IXMLDOMDocument2::Create();
  std::string deep;
  for (int i = 0; i < 300; ++i) deep += "<a>";
  for (int i = 0; i < 300; ++i) deep += "</a>";
  const std::tuple<std::string, const char*, int, int> cases[] = {
      {"<a>\n  <b></c></a>", "mismatched tag", 2, 8},
      {"<\xC3\xA4 x='\xC3\xB6'><b></\xC3\xA4>", "mismatched tag", 1, 15},
      {"", "no element found", 1, 1},
      {"<a b='1' b='2'/>", "duplicate attribute", 1, 10},
      {deep, "elements are nested deeper than 256", 1, 1},
      {"<a/>", "", 0, 0}};
  for (const auto& [xml, reason, line, linepos] : cases) {
    EXPECT_EQ(document.loadXML(xml), *reason == '\0') << xml;
    EXPECT_EQ(document.parseError().reason, reason) << xml;
    EXPECT_EQ(document.parseError().line, line) << xml;
    EXPECT_EQ(document.parseError().linepos, linepos) << xml;
  }
}

TEST(DomTest, TextsAndAttributesSurviveARoundTrip) {
  auto document = IXMLDOMDocument2::Create();
  auto chart = document.createElement("chart");
  chart.setAttribute("title", "a < b & \"c\"\n\t d");
  chart.setAttribute("number", 2.5);
  chart.setAttribute("control",
                     "a\x01\x0B\xED\xA0\xBD\xEF\xBF\xBF"
                     "b");
  auto comment = document.createElement("comment");
  comment.appendChild(document.createTextNode("  two\r\nlines "));
  chart.appendChild(comment);
  document.appendChild(chart);

  auto again = IXMLDOMDocument2::Create();
  ASSERT_TRUE(again.loadXML(document.xml()));
  const auto root = again.selectSingleNode("chart");
  EXPECT_EQ(root.getAttribute("title"), runtime::Variant("a < b & \"c\"\n\t d"));
  EXPECT_EQ(root.getAttribute("number"), runtime::Variant("2.5"));
  EXPECT_TRUE(root.getAttribute("absent").IsNull());
  const auto attributes = root.attributes();
  ASSERT_EQ(attributes.size(), 3u);
  EXPECT_EQ(attributes[1].name, "number");
  EXPECT_EQ(attributes[1].value, "2.5");
  EXPECT_EQ(root.getAttribute("control"), runtime::Variant("ab"));
  EXPECT_EQ(root.selectSingleNode("comment").firstChild().nodeValue(), "  two\nlines ")
      << "line ends are normalized";
}

TEST(DomTest, NodesMoveBetweenTreesAndOut) {
  auto first = IXMLDOMDocument2::Create(), second = IXMLDOMDocument2::Create();
  ASSERT_TRUE(first.loadXML("<t><c n='1'/><x><c n='2'/></x></t>"));
  auto root = second.createElement("t");
  second.appendChild(root);
  auto column = first.createElement("c");
  column.setAttribute("n", "3");
  root.appendChild(column);
  column.setAttribute("n", "4");  // The handle follows the node into the other document.
  EXPECT_EQ(second.xml(), "<t><c n=\"4\"/></t>");

  auto taken = first.selectSingleNode("t/x/c");
  root.appendChild(taken);
  EXPECT_EQ(second.xml(), "<t><c n=\"4\"/><c n=\"2\"/></t>");
  EXPECT_EQ(first.xml(), "<t><c n=\"1\"/><x/></t>") << "a node is in one document at a time";
  EXPECT_EQ(taken.xml(), "<c n=\"2\"/>");
  first.selectSingleNode("t/x").appendChild(taken);
  EXPECT_EQ(second.xml(), "<t><c n=\"4\"/></t>");

  auto loose = first.createElement("c");
  EXPECT_EQ(first.selectNodes("//c").size(), 2u) << "a node outside the tree isn't found";
  auto x = first.selectSingleNode("t/x");
  first.documentElement().removeChild(x);
  EXPECT_EQ(first.xml(), "<t><c n=\"1\"/></t>");
  EXPECT_EQ(x.selectNodes("c").size(), 1u) << "a removed node is still complete";
  EXPECT_THROW(first.documentElement().removeChild(loose), runtime::RuntimeError);
}

TEST(DomTest, NothingIsError91) {
  const IXMLDOMElement nothing = IXMLDOMDocument2::Create().selectSingleNode("chart");
  EXPECT_FALSE(nothing);
  EXPECT_EQ(test::ErrorOf([&] { nothing.getAttribute("id"); }), runtime::error::kObjectNotSet);
}

TEST(DomTest, NoDocumentIsError91) {
  using Document = IXMLDOMDocument2;
  const std::function<void(Document&)> calls[] = {
      [](Document& none) { none.loadXML("<a/>"); },     [](Document& none) { none.parseError(); },
      [](Document& none) { none.documentElement(); },   [](Document& none) { none.createElement("a"); },
      [](Document& none) { none.createTextNode("a"); }, [](Document& none) { none.xml(); }};
  for (const auto& call : calls) {
    Document none;
    EXPECT_EQ(test::ErrorOf([&] { call(none); }), runtime::error::kObjectNotSet);
  }
}

TEST(XmlDepthTest, CountsOnlyElements) {
  const std::tuple<const char*, int, bool> cases[] = {
      {"<a><b/><b x='>'/><!-- <c> --><![CDATA[<d>]]><?p <e>?>text</a>", 2, false},
      {"<a><b>text</b></a>", 1, true},
      {"<a></a><a></a>", 1, false},
      // This looks like a quotation to a scanner that ignores the context.
      {"<!DOCTYPE a [<!-- ' -->]><a><b/></a><!-- ' -->", 1, true},
      {"<!DOCTYPE a [<!ENTITY x '<a><b/></a>'>]><a/>", 1, false}};
  for (const auto& [xml, limit, deeper] : cases) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(xml, pugi::parse_full));
    EXPECT_EQ(NestsDeeperThan(document, limit), deeper) << xml;
  }
}

}  // namespace
}  // namespace plotsmith::dom
