#include "tests/render/threed/Chart3DTest.h"

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::test {
namespace {

constexpr int kSeries = 3;
constexpr const char* kColors[] = {"4F81BD", "C0504D", "9BBB59"};

std::string ValuesXml(int number, const std::vector<double>& values) {
  std::string points, texts;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string start = "<c:pt idx=\"" + std::to_string(i) + "\"><c:v>";
    points += start + xlsx::xml::Number(values[i] * number) + "</c:v></c:pt>";
    texts += start + "Q" + std::to_string(i + 1) + "</c:v></c:pt>";
  }
  const std::string count = "<c:ptCount val=\"" + std::to_string(values.size()) + "\"/>";
  const std::string index = std::to_string(number - 1);
  return "<c:ser><c:idx val=\"" + index + "\"/><c:order val=\"" + index + "\"/><c:tx><c:v>S" +
         std::to_string(number) + "</c:v></c:tx><c:spPr><a:solidFill><a:srgbClr val=\"" +
         kColors[number - 1] + "\"/></a:solidFill></c:spPr><c:cat><c:strLit>" + count + texts +
         "</c:strLit></c:cat><c:val><c:numLit>" + count + points + "</c:numLit></c:val></c:ser>";
}

std::string Axes(bool withDepth) {
  const auto axis = [](const char* kind, int id, int crossed, const char* position, const char* rest) {
    return std::string("<c:") + kind + "><c:axId val=\"" + std::to_string(id) +
           "\"/><c:scaling><c:orientation val=\"minMax\"/></c:scaling><c:delete val=\"0\"/><c:axPos val=\"" +
           position + "\"/>" + rest + "<c:crossAx val=\"" + std::to_string(crossed) + "\"/></c:" + kind + ">";
  };
  return axis("catAx", 1, 2, "b", "") + axis("valAx", 2, 1, "l", "<c:majorGridlines/>") +
         (withDepth ? axis("serAx", 3, 1, "b", "") : "");
}

}  // namespace

std::string Chart3DTest::Part(const Setup& setup) {
  const bool pie = setup.group == "pie3DChart", bars = setup.group == "bar3DChart";
  std::string group = "<c:" + setup.group + ">";
  if (bars) group += "<c:barDir val=\"" + setup.direction + "\"/>";
  if (!pie) group += "<c:grouping val=\"" + setup.grouping + "\"/>";
  for (int i = 1; i <= (pie ? 1 : kSeries); ++i) group += ValuesXml(i, setup.values);
  group += setup.behind;
  if (!pie) group += "<c:axId val=\"1\"/><c:axId val=\"2\"/><c:axId val=\"3\"/>";
  group += "</c:" + setup.group + ">";
  return ChartPartXml("<c:autoTitleDeleted val=\"1\"/><c:view3D>" + setup.view + "</c:view3D><c:plotArea>" +
                      group + (pie ? "" : Axes(setup.grouping == "standard")) + "</c:plotArea>");
}

render::Drawing Chart3DTest::Draw(const Setup& setup) {
  OpenChart(Part(setup));
  xlsx::Workbook& book = host_->Book();
  notes_.clear();
  return DrawChart(*book.Chart("/xl/charts/chart1.xml"), 384, 270, fonts_, notes_);
}

std::vector<const render::Item*> Chart3DTest::ItemsOf(const render::Drawing& drawing, render::Role role,
                                                      int series) {
  std::vector<const render::Item*> items;
  for (const render::Item& item : drawing.items) {
    if (item.tag.role == role && (series == 0 || item.tag.series == series)) items.push_back(&item);
  }
  return items;
}

render::Color Chart3DTest::FillOf(const render::Item& item) {
  return std::get<render::SolidFill>(std::get<render::PathItem>(item.content).fill).color;
}

}  // namespace plotsmith::test
