#include "tests/support/HostTest.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

class StandardFontTest : public test::HostTest {};

TEST_F(StandardFontTest, IsThatOfTheNormalStyle) {
  const auto styles = [](const S& fonts, const S& xfs, const S& names) {
    return "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><fonts>" + fonts +
           "</fonts><cellStyleXfs>" + xfs + "</cellStyleXfs><cellXfs><xf/></cellXfs><cellStyles>" + names +
           "</cellStyles></styleSheet>";
  };
  const S verdana = "<font><sz val=\"9\"/><name val=\"Verdana\"/></font>";
  const S themed = "<font><sz val=\"12\"/><name val=\"Old\"/><scheme val=\"minor\"/></font>";
  const S named = "<cellStyle name=\"X\" xfId=\"0\"/><cellStyle name=\"N\" xfId=\"1\" builtinId=\"0\"/>";
  const struct {
    S styles;
    bool theme;
    S font;
    double size;
  } cases[] = {
      {"", false, "Calibri", 11},
      {styles(verdana, "", ""), false, "Verdana", 9},
      {styles(themed + verdana, "<xf fontId=\"0\"/><xf fontId=\"1\"/>", named), true, "Verdana", 9},
      {styles(verdana + themed, "<xf fontId=\"0\"/><xf fontId=\"1\"/>", named), true, "Aptos", 12},
      {styles(verdana + themed, "<xf fontId=\"0\"/><xf fontId=\"1\"/>", named), false, "Old", 12},
      {styles(verdana, "<xf fontId=\"0\"/><xf fontId=\"77\"/>", named), false, "Verdana", 9},
  };
  for (const auto& c : cases) {
    test::PlainBook book = test::SalesBook({});
    book.styles = c.styles;
    book.Write(folder_ / "book.xlsx");
    if (c.theme) {
      Package package = Package::Open(folder_ / "book.xlsx");
      package.Add(
          "/xl/theme/theme1.xml", "application/vnd.openxmlformats-officedocument.theme+xml",
          "<a:theme xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"><a:themeElements>"
          "<a:fontScheme name=\"x\"><a:minorFont><a:latin typeface=\"Aptos\"/></a:minorFont>"
          "</a:fontScheme></a:themeElements></a:theme>");
      package.AddRelationship("/xl/workbook.xml",
                              "http://schemas.openxmlformats.org/officeDocument/2006/relationships/theme",
                              "/xl/theme/theme1.xml");
      package.Save(folder_ / "book.xlsx");
    }
    OpenFile(folder_ / "book.xlsx");
    EXPECT_EQ(host_->StandardFont(), c.font) << c.styles;
    EXPECT_EQ(host_->StandardFontSize(), c.size) << c.styles;
  }
}

}  // namespace
}  // namespace plotsmith::xlsx
