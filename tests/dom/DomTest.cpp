#include <functional>
#include <gtest/gtest.h>

#include "dom/Dom.h"
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
      {deep, "elements are nested deeper than 256", 1, 772},
      {"<!DOCTYPE a [<!ENTITY e SYSTEM 'e.xml'>]>\n<a>&e;</a>",
       "error in processing external entity reference", 2, 4},
      {"<!DOCTYPE a SYSTEM 'a.dtd'>\n<a>&e;</a>", "the entity 'e' is external", 2, 7},
      {"<a/>", "", 0, 0}};
  for (const auto& [xml, reason, line, linepos] : cases) {
    EXPECT_EQ(document.loadXML(xml), *reason == '\0') << xml;
    EXPECT_EQ(document.parseError().reason, reason) << xml;
    EXPECT_EQ(document.parseError().line, line) << xml;
    EXPECT_EQ(document.parseError().linepos, linepos) << xml;
  }
}

TEST(DomTest, EntitiesDoNotGrowWithoutBound) {
  std::string bomb = "<!DOCTYPE a [<!ENTITY e0 '0123456789'>\n";
  for (int i = 1; i < 8; ++i) {
    const std::string inner = "&e" + std::to_string(i - 1) + ";";
    bomb += "<!ENTITY e" + std::to_string(i) + " '";
    for (int copy = 0; copy < 10; ++copy) bomb += inner;
    bomb += "'>\n";
  }
  bomb += "]><a>&e7;</a>";
  auto document = IXMLDOMDocument2::Create();
  EXPECT_FALSE(document.loadXML(bomb));
  EXPECT_EQ(document.parseError().reason,
            "limit on input amplification factor (from DTD and entities) breached");
  EXPECT_EQ(document.xml(), "");
}

TEST(DomTest, EveryKindOfNodeIsKept) {
  auto document = IXMLDOMDocument2::Create();
  const std::tuple<const char*, const char*> cases[] = {
      {"<a> <!-- <c> --><![CDATA[<d>]]><?p <e>?>\r\ntext &amp; <b/>\n</a>",
       "<a> <!-- <c> --><![CDATA[<d>]]><?p <e>?>\ntext &amp; <b/>\n</a>"},
      {"<!-- 1 --><?p?>\n<a x:b=\" 1\n2&#10;3\"><![CDATA[]]></a> <!-- 2 -->",
       "<!-- 1 --><?p?><a x:b=\" 1 2&#10;3\"><![CDATA[]]></a><!-- 2 -->"},
      {"<!DOCTYPE a [<!ENTITY t 'To&#116;al <b/>'><!ATTLIST a c CDATA '1'>]><a b='&lt;&#x4D;'>x &t;\ny</a>",
       "<a b=\"&lt;M\" c=\"1\">x Total <b/>\ny</a>"}};
  for (const auto& [xml, expected] : cases) {
    EXPECT_TRUE(document.loadXML(xml)) << xml << document.parseError().reason;
    EXPECT_EQ(document.xml(), expected);
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

}  // namespace
}  // namespace plotsmith::dom
