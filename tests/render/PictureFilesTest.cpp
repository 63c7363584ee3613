#include <pugixml.hpp>
#include <set>

#include "render/cairo/CairoPainter.h"
#include "render/cairo/PangoTexts.h"
#include "render/cairo/PixelGrid.h"
#include "render/fonts/PlainFonts.h"
#include "render/svg/SvgPaint.h"
#include "render/svg/SvgWriter.h"
#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::MakePng;
using render::MakeSvg;
using render::Path;
using render::SolidFill;

class PictureFilesTest : public DrawingTest {
 protected:
  static Drawing Small() {
    Drawing drawing;
    drawing.width = 72;
    drawing.height = 36;
    drawing.title = "Bread & butter";
    drawing.description = "Series \"A\": 1 < 2";
    drawing.items.push_back(
        {{Role::kChartArea}, PathItem{Path().AddRect({0, 0, 72, 36}), SolidFill{{255, 255, 0, 1}}, {}}});
    drawing.items.push_back({{}, render::PushClip{Path().AddRect({10, 10, 20, 20})}});
    render::Stroke stroke{{255, 0, 0, 0.5}, 1.5, {3, 1.5}, render::LineCap::kRound};
    drawing.items.push_back(
        {{Role::kBar, 1, 1}, PathItem{Path().AddRect({0, 0, 72, 36}), SolidFill{{0, 0, 255, 1}}, stroke}});
    drawing.items.push_back({{}, render::PopClip{}});
    TextItem text{"<Größe>", {"Calibri", 12, true, true, true}, {0, 128, 0, 1}, {36, 30}};
    text.align = render::TextAlign::kMiddle;
    text.rotation = -90;
    drawing.items.push_back({{Role::kTitle}, text});
    return drawing;
  }
  Drawing Columns(int series, int points) {
    S all;
    for (int s = 0; s < series; ++s) all += SeriesXml(s, Numbers(static_cast<std::size_t>(points), s + 1));
    return Draw(PlotXml(ColumnsXml(all) + AxesXml()));
  }
};

TEST_F(PictureFilesTest, SvgHasTextsAsTextsAndFewBytes) {
  const S svg = MakeSvg(Small());
  const S id = Between(svg, "<clipPath id=\"", "\"><path").substr(S("<clipPath id=\"").size());
  EXPECT_EQ(svg,
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"72pt\" height=\"36pt\" viewBox=\"0 0 72 36\" "
            "role=\"img\" font-family=\"Calibri,Carlito,sans-serif\" font-size=\"12\">\n<title>Bread &amp; "
            "butter</title>\n<desc>Series &quot;A&quot;: 1 &lt; 2</desc>\n<defs><clipPath id=\"" +
                id +
                "\"><path d=\"M10 10h20v20h-20z\"/></clipPath></defs>\n<path d=\"M0 0h72v36h-72z\" "
                "fill=\"#FF0\"/>\n<g clip-path=\"url(#" +
                id +
                ")\">\n<path d=\"M0 0h72v36h-72z\" fill=\"#00F\" stroke=\"#FF0000\" stroke-opacity=\".5\" "
                "stroke-width=\"1.5\" stroke-dasharray=\"3 1.5\" stroke-linecap=\"round\" "
                "stroke-linejoin=\"round\"/>\n</g>\n<text x=\"36\" y=\"30\" transform=\"rotate(-90 36 30)\" "
                "text-anchor=\"middle\" font-weight=\"bold\" font-style=\"italic\" "
                "text-decoration=\"underline\" fill=\"#008000\">&lt;Größe&gt;</text>\n</svg>\n");
}

TEST_F(PictureFilesTest, SvgKeepsTheBlanksOfTexts) {
  struct {
    S text;
    bool keeps;
  } cases[] = {{"one two", false}, {" before", true}, {"behind ", true},
               {"one  two", true}, {"a\tb", true},    {"", false}};
  for (const auto& test : cases) {
    Drawing drawing;
    drawing.items.push_back({{Role::kTitle}, TextItem{test.text, {"Calibri", 10}, {}, {}}});
    const S svg = MakeSvg(drawing);
    EXPECT_NE(svg.find((test.keeps ? " xml:space=\"preserve\">" : ">") + test.text + "</text>"), S::npos)
        << svg;
    EXPECT_EQ(svg.find("xml:space") != S::npos, test.keeps) << test.text;
  }
}

TEST_F(PictureFilesTest, SvgsOfOnePageHaveIdsOfTheirOwn) {
  const auto idOf = [](const Drawing& drawing) { return Between(MakeSvg(drawing), "url(#", ")"); };
  Drawing other = Small();
  other.description += '.';
  EXPECT_EQ(idOf(Small()).size(), S("url(#f00000000-1").size());
  EXPECT_EQ(idOf(Small()), idOf(Small()));
  EXPECT_NE(idOf(Small()), idOf(other));
}

TEST_F(PictureFilesTest, SvgOfAChartIsWellFormedAndContainsItsValues) {
  Drawing drawing = Columns(2, 3);
  drawing.items.push_back({{}, TextItem{S("a\x01&\xFF\n"), {"Odd 'font' \"1\"", 10}}});
  const S svg = MakeSvg(drawing);
  pugi::xml_document document;
  ASSERT_TRUE(document.load_buffer(svg.data(), svg.size())) << svg;
  const auto root = document.child("svg");
  EXPECT_STREQ(root.child_value("title"), "Column chart");
  EXPECT_STREQ(root.child_value("desc"), "Column chart.\nSeries 0: 1 1, 2 1, 3 1\nSeries 1: 1 2, 2 2, 3 2");
  EXPECT_LT(svg.size(), 6000u);
}

TEST_F(PictureFilesTest, TextsHoldOnlyWhatXmlCan) {
  const std::pair<S, S> cases[] = {{"a & b <c> \"d\"", "a &amp; b &lt;c&gt; &quot;d&quot;"},
                                   {"1\n2\t3", "1\n2\t3"},
                                   {S("x\x01\0\x1Fy", 5), "xy"},
                                   {"\xFF\xC3", "\uFFFD\uFFFD"},
                                   {"\xEF\xBF\xBF\xED\xA0\x80z", "z"},
                                   {"Größe \U0001F600", "Größe \U0001F600"}};
  for (const auto& [text, escaped] : cases) EXPECT_EQ(render::SvgEscape(text), escaped) << text;
}

TEST_F(PictureFilesTest, NumbersAreShort) {
  const std::pair<double, const char*> cases[] = {
      {0, "0"},     {-0.001, "0"},         {0.5, ".5"},    {-0.25, "-.25"}, {12.004, "12"}, {12.005, "12.01"},
      {100, "100"}, {1e300, "1000000000"}, {-3.1, "-3.1"}, {NAN, "0"},      {0.999, "1"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(render::SvgNumber(number), text) << number;
}

TEST_F(PictureFilesTest, PngIsTheSameOnEveryRunAndAsLargeAsAsked) {
  const Drawing drawing = Columns(3, 4);
  render::CairoFonts others;  // Earlier drawings must have no effect.
  const S png = MakePng(drawing, SharedFonts(), 96);
  EXPECT_EQ(png, MakePng(drawing, others, 96));
  EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(png[at + i]);
    return value;
  };
  EXPECT_EQ(number(16), 512u);  // 384 points
  EXPECT_EQ(number(20), 360u);
  EXPECT_THROW(MakePng(drawing, SharedFonts(), 1e9), std::length_error);
  EXPECT_THROW(MakePng(Drawing(), SharedFonts(), 96), std::length_error);
}

TEST_F(PictureFilesTest, LinesAndEdgesOfPicturesLieOnPixels) {
  const render::PixelScale scale{4.0 / 3, 4.0 / 3};
  const auto places = [&](const Path& path, double width) {
    Numbers pixels;
    const Path snapped = OnPixels(path, scale, width);
    for (const auto& step : snapped.Steps()) {
      if (step.kind == PathStep::Kind::kClose) continue;
      pixels.push_back(step.to.x * scale.x);
      pixels.push_back(step.to.y * scale.y);
    }
    return pixels;
  };
  const auto expectNear = [](const Numbers& a, const Numbers& b) {
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_NEAR(a[i], b[i], 1e-9) << i;
  };
  const Path line = Path().MoveTo({10, 20.3}).LineTo({30, 20.3});
  expectNear(places(line, 0.75), {13.5, 27.5, 40.5, 27.5});  // one pixel
  expectNear(places(line, 1.5), {13, 27, 40, 27});           // two
  // Adjacent paths stay adjacent.
  const Path lower = Path().AddRect({0, 10.2, 3, 5}), upper = Path().AddRect({0, 4, 3, 6.2});
  EXPECT_EQ(OnPixels(lower, scale, 0).Bounds().top, OnPixels(upper, scale, 0).Bounds().Bottom());
  EXPECT_NEAR(render::WidthOnPixels(0.25, scale), 0.75, 1e-9);
  EXPECT_TRUE(IsUpright(lower));
  EXPECT_FALSE(IsUpright(Path().MoveTo({0, 0}).LineTo({1, 1})));
  EXPECT_FALSE(IsUpright(Path().AddEllipse({0, 0, 1, 1})));
}

TEST_F(PictureFilesTest, PdfHasAPageForEachDrawing) {
  const Drawing pages[] = {Small(), Columns(1, 2)};
  const auto makePdf = [&] {
    const auto document = render::NewPdf(SharedFonts());
    for (const Drawing& page : pages) document->Add(page);
    return document->Finish();
  };
  const S pdf = makePdf();
  EXPECT_EQ(pdf, makePdf());
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("/Count 2"), S::npos);
  EXPECT_NE(pdf.find("/MediaBox [ 0 0 72 36 ]"), S::npos);
}

TEST_F(PictureFilesTest, AChartOnAPageIsMovedAsAWhole) {
  const Drawing chart = Columns(1, 2);
  Drawing page;
  page.width = page.height = 600;
  Append(page, chart, {100, 50});
  ASSERT_EQ(page.items.size(), chart.items.size());
  for (std::size_t i = 0; i < chart.items.size(); ++i) {
    const Rect from = BoundsOf(chart.items[i]), to = BoundsOf(page.items[i]);
    if (from == Rect()) continue;
    EXPECT_NEAR(to.left - from.left, 100, 1e-9) << i;
    EXPECT_NEAR(to.top - from.top, 50, 1e-9) << i;
    EXPECT_NEAR(to.width, from.width, 1e-9) << i;
  }
}

TEST_F(PictureFilesTest, FontsHaveTheWidthsOfTheFiles) {
  const auto width = [&](const S& text, const render::Font& font) {
    return SharedFonts().Measure(text, font).width;
  };
  const render::Font calibri{"Calibri", 10};
  // Compare with the advance widths of the font, in thousandths of an em.
  EXPECT_NEAR(width("n", calibri), 5.25, 0.03);
  EXPECT_NEAR(width("nnnn", {"Calibri", 20}), 4 * 10.5, 0.1);
  EXPECT_NEAR(width("A", {"Arial", 10}), 6.67, 0.03);
  EXPECT_GT(width("A", {"Arial", 10, true}), width("A", {"Arial", 10}));
  EXPECT_GT(width("A", {"No such font", 10}), 0);
  EXPECT_EQ(width("", calibri), 0);
  const auto extent = SharedFonts().Measure("x", calibri);
  EXPECT_NEAR(extent.Height(), 12.2, 0.1);
}

TEST_F(PictureFilesTest, PlainTextsAreAsWideAsPangoMakesThem) {
  const render::PangoTexts pango;
  std::set<S> withOthers;  // families of which Pango measured a text
  S family;
  const render::PlainFonts fonts([&]() -> const render::TextMeasure& {
    withOthers.insert(family);
    return pango;
  });
  S letters, common;
  for (char32_t c = U'\u00c0'; c <= U'\u017f'; ++c) {
    if (c != U'\u00d7' && c != U'\u00f7') runtime::AppendUtf8(letters, c);
  }
  for (char c = 0x20; c < 0x7f; ++c) common += c;
  const S texts[] = {"",
                     "0",
                     "12,345.67 %",
                     "To AV AWAY",
                     "office fi ffl",
                     " a  b ",
                     "(x+y)/2 = \"q\"",
                     "Gr\u00fc\u00dfe aus \u0141\u00f3d\u017a \u2026",
                     "\u201cA\u201d \u2013 \u20ac 5 \u2212 3\u00b7\u00b2",
                     "\u2013 5 \u2212",
                     letters,
                     common};
  for (const char* const name :
       {"Calibri", "Arial", "Cambria", "Times New Roman", "Liberation Mono", "No such font", ""}) {
    family = name;
    for (const double size : {6.0, 10.0, 10.5, 11.3, 96.0}) {
      for (const int look : {0, 1, 2, 3, 4}) {
        const render::Font font{family, size, (look & 1) != 0, (look & 2) != 0, look == 4};
        for (const S& text : texts) {
          const auto plain = fonts.Measure(text, font), laidOut = pango.Measure(text, font);
          EXPECT_EQ(plain.width, laidOut.width) << family << " " << size << " " << look << ": " << text;
          EXPECT_EQ(plain.ascent, laidOut.ascent) << family;
          EXPECT_EQ(plain.descent, laidOut.descent) << family;
        }
      }
    }
  }
  EXPECT_EQ(withOthers, std::set<S>{"Cambria"});  // Its substitute Caladea doesn't have all of the letters.
}

TEST_F(PictureFilesTest, LinesThatBeginWithAHebrewLetterRunFromLeftToRight) {
  const render::Font font{"Calibri", 12};
  const auto pictureOf = [&](const std::vector<std::pair<S, double>>& texts) {
    Drawing drawing;
    drawing.width = drawing.height = 36;
    for (const auto& [text, left] : texts) {
      drawing.items.push_back({{}, TextItem{text, font, {}, {left, 20}}});
    }
    return MakePng(drawing, SharedFonts());
  };
  const S letter = "\u05d0";
  const double width = SharedFonts().Measure(letter, font).width;
  EXPECT_TRUE(pictureOf({{letter + "b", 6}}) == pictureOf({{letter, 6}, {"b", 6 + width}}));
}

TEST_F(PictureFilesTest, OtherTextsAreLeftToPango) {
  struct Counting : render::TextMeasure {
    render::TextExtent Measure(std::string_view line, const render::Font&) const override {
      asked.emplace_back(line);
      return {};
    }
    bool HasFonts() const override { return true; }
    mutable std::vector<S> asked;
  } others;
  const render::PlainFonts fonts([&]() -> const render::TextMeasure& { return others; });
  const std::vector<S> texts = {"\u05d0",
                                "a\u0301",
                                "a\tb",
                                "1\u00d72",
                                "\xc3",
                                "a\xff"
                                "b",
                                "\U0001f600",
                                "a\u2060",
                                S(5000, 'a'),
                                "\u4e2d"};
  for (const S& text : texts) fonts.Measure(text, {"Calibri", 10});
  EXPECT_EQ(others.asked, texts);
  others.asked.clear();
  fonts.Measure("a", {"Calibri, Arial", 10});
  EXPECT_EQ(others.asked, std::vector<S>{"a"});
}

}  // namespace
}  // namespace plotsmith
