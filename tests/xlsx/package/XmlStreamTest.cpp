#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "tests/support/ErrorOf.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/XmlStream.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;
using Kind = XmlStream::Kind;

/// Returns all tags with the texts before them: "+a{ b='1'} text -a".
S Tags(const S& xml, std::size_t piece, bool withTexts = true) {
  MemoryStream source(xml, piece);
  XmlStream stream(source);
  S tags;
  for (;;) {
    S text;
    const XmlStream::Tag tag = stream.Next(withTexts ? &text : nullptr);
    tags += text;
    if (tag.kind == Kind::kEndOfInput) return tags;
    tags += tag.kind == Kind::kStart ? "[+" : tag.kind == Kind::kEnd ? "[-" : "[=";
    tags += S(tag.name) + S(tag.attributes) + "]";
  }
}

constexpr std::size_t kPieces[] = {std::size_t{1} << 20, 1, 2, 3, 7};

TEST(XmlStreamTest, TagsAndTheTextsBeforeThem) {
  const struct {
    const char *xml, *tags, *withoutTexts;
  } cases[] = {
      {"", "", ""},
      {"no tag &amp; all text", "no tag & all text", ""},
      {"<a><b/>x</a>y", "[+a][=b]x[-a]y", "[+a][=b][-a]"},
      {"<x:a x:b='1' c=\"2\"><y:b /></x:a >", "[+a x:b='1' c=\"2\"][=b ][-a ]",
       "[+a x:b='1' c=\"2\"][=b ][-a ]"},
      {"<a\n\tb='>' c=\"'/>'\" d='\"'/>", "[=a\n\tb='>' c=\"'/>'\" d='\"']",
       "[=a\n\tb='>' c=\"'/>'\" d='\"']"},
      {"\xEF\xBB\xBF<?xml version='1.0'?> <a>&lt;&#65;&#x42;&unknown;</a>", " [+a]<AB&unknown;[-a]",
       "[+a][-a]"},
      {"<a><!-- <b> -- > --->c<!----></a>", "[+a]c[-a]", "[+a][-a]"},
      {"<a><?p <b> ? >?>c<?"
       "?></a>",
       "[+a]c[-a]", "[+a][-a]"},
      {"<a>1<![CDATA[<b>&amp;]]]>2<![CDATA[]]>3</a>", "[+a]1<b>&amp;]23[-a]", "[+a][-a]"},
      {"<a>\r\n1\r2</a>", "[+a]\n1\n2[-a]", "[+a][-a]"},
  };
  for (const auto& c : cases) {
    for (const std::size_t piece : kPieces) {
      EXPECT_EQ(Tags(c.xml, piece), c.tags) << c.xml << piece;
      EXPECT_EQ(Tags(c.xml, piece, false), c.withoutTexts) << c.xml << piece;
    }
  }
  // A text and an attribute that are longer than the window.
  const S longText(600'000, 'x');
  for (const std::size_t piece : {std::size_t{1} << 20, std::size_t{50'000}}) {
    EXPECT_EQ(Tags("<a b='" + longText + "'>&lt;" + longText + "</a><!--" + longText + "-->.", piece),
              "[+a b='" + longText + "']<" + longText + "[-a].");
    EXPECT_EQ(Tags("<a>" + longText + "</a>" + longText, piece, false), "[+a][-a]");
  }
}

/// A stream that keeps all of its text in the window.
class KeepingStream : public XmlStream {
 public:
  using XmlStream::XmlStream;
  /// Reads to the end. Returns how often the window was filled.
  int FillAll() {
    int fills = 0;
    while (Fill()) ++fills;
    return fills;
  }
};

// A cell is read again from its beginning after each call of Fill.
TEST(XmlStreamTest, ALongTextNeedsFewFillsEvenIfTheSourceGivesSmallPieces) {
  const S text(std::size_t{8} << 20, 'x');
  MemoryStream source(text, 1000);
  const int fills = KeepingStream(source).FillAll();
  EXPECT_GT(fills, 10);
  EXPECT_LT(fills, 30);
}

TEST(XmlStreamTest, ElementsAreReadAndSkippedAsAWhole) {
  const S xml = "<r><t>a<b>b<t>c</t></b><e/><![CDATA[d]]></t><s>1<s><s/></s>2</s><u/>end</r>";
  for (const std::size_t piece : kPieces) {
    MemoryStream source(xml, piece);
    XmlStream stream(source);
    S text = "before:";
    EXPECT_EQ(stream.Next().name, "r");
    EXPECT_EQ(stream.Next().name, "t");
    stream.ReadText(text);
    EXPECT_EQ(text, "before:abcd");
    EXPECT_EQ(stream.Next().name, "s");
    stream.SkipElement();
    EXPECT_EQ(stream.Next().name, "u");
    stream.Drain();
    EXPECT_EQ(stream.Next().kind, Kind::kEndOfInput);
  }
}

TEST(XmlStreamTest, DamageAndDocumentTypesAreErrors) {
  const char* const damaged = "its XML is damaged";
  const std::pair<const char*, const char*> cases[] = {{"<a", damaged},
                                                       {"<a b='>", damaged},
                                                       {"<", damaged},
                                                       {"<!-- ->", damaged},
                                                       {"<?a>", damaged},
                                                       {"<![CDATA[a]>", damaged},
                                                       {"<!--->", damaged},
                                                       {"<!DOCTYPE a><a/>", "it declares a document type"},
                                                       {"<!", "it declares a document type"},
                                                       {"<!-a>", "it declares a document type"}};
  for (const auto& [xml, message] : cases) {
    for (const std::size_t piece : kPieces) {
      const S error = test::ErrorTextOf<PackageError>([&xml = xml, piece] { Tags(xml, piece); });
      EXPECT_TRUE(error.starts_with(message)) << xml << ": " << error;
    }
  }
  for (const char* xml : {"<a>x", "<a><b></b>", "<a><b/>"}) {
    MemoryStream source(xml), again(xml);
    XmlStream read(source), skipped(again);
    S text;
    read.Next();
    EXPECT_THROW(read.ReadText(text), PackageError) << xml;
    skipped.Next();
    EXPECT_THROW(skipped.SkipElement(), PackageError) << xml;
  }
}

TEST(XmlStreamTest, AttributesAreTakenFromTheFront) {
  const S attributes = "  a='1 &lt; 2' \n b:c = \"'\"\td=''";
  std::string_view rest = attributes;
  const XmlAttribute expected[] = {
      {"  a='1 &lt; 2'", "a", "1 &lt; 2"}, {" \n b:c = \"'\"", "b:c", "'"}, {"\td=''", "d", ""}};
  for (const XmlAttribute& attribute : expected) {
    const auto taken = TakeAttribute(rest);
    ASSERT_TRUE(taken);
    EXPECT_EQ(taken->all, attribute.all);
    EXPECT_EQ(taken->name, attribute.name);
    EXPECT_EQ(taken->value, attribute.value);
  }
  for (std::string_view none : {"", " ", "a", "a=", "a=1", "a='1", "a=\"1'", "'1'"})
    EXPECT_FALSE(TakeAttribute(none)) << none;
  const std::pair<const char*, const char*> values[] = {
      {"a", "1 < 2"}, {"b:c", "'"}, {"c", ""}, {"d", ""}, {"e", ""}};
  for (const auto& [name, value] : values) EXPECT_EQ(AttributeIn(attributes, name), value) << name;
  const S booleans = " a='1' b='false' c='on' d='x'";
  const struct {
    const char* name;
    bool fallback, value;
  } cases[] = {{"a", false, true},  {"b", true, false}, {"c", false, true}, {"d", true, true},
               {"d", false, false}, {"e", true, true},  {"e", false, false}};
  for (const auto& c : cases) EXPECT_EQ(BooleanIn(booleans, c.name, c.fallback), c.value) << c.name;
}

}  // namespace
}  // namespace plotsmith::xlsx
