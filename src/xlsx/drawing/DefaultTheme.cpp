#include "xlsx/drawing/DefaultTheme.h"

#include <array>
#include <string_view>
#include <utility>

namespace plotsmith::xlsx {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> kColors = {{{"dk2", "1F497D"},
                                                                                    {"lt2", "EEECE1"},
                                                                                    {"accent1", "4F81BD"},
                                                                                    {"accent2", "C0504D"},
                                                                                    {"accent3", "9BBB59"},
                                                                                    {"accent4", "8064A2"},
                                                                                    {"accent5", "4BACC6"},
                                                                                    {"accent6", "F79646"},
                                                                                    {"hlink", "0000FF"},
                                                                                    {"folHlink", "800080"}}};

std::string Element(std::string_view name, const std::string& content) {
  const std::string tag = "a:" + std::string(name);
  return "<" + tag + ">" + content + "</" + tag + ">";
}

std::string Font(std::string_view name, std::string_view typeface) {
  return Element(name, "<a:latin typeface=\"" + std::string(typeface) +
                           "\"/><a:ea typeface=\"\"/><a:cs typeface=\"\"/>");
}

/// Returns a list with three equal entries. The schema requires three of each format: subtle, moderate and
/// intense.
std::string Thrice(std::string_view name, const std::string& content) {
  return Element(name, content + content + content);
}

}  // namespace

std::string DefaultTheme(const Namespaces& vocabulary) {
  std::string colors = R"(<a:dk1><a:sysClr val="windowText" lastClr="000000"/></a:dk1>)"
                       R"(<a:lt1><a:sysClr val="window" lastClr="FFFFFF"/></a:lt1>)";
  for (const auto& [name, rgb] : kColors) {
    colors += Element(name, "<a:srgbClr val=\"" + std::string(rgb) + "\"/>");
  }
  const std::string fill = R"(<a:solidFill><a:schemeClr val="phClr"/></a:solidFill>)";
  const std::string line = "<a:ln w=\"9525\">" + fill + "<a:prstDash val=\"solid\"/></a:ln>";
  const std::string effect = Element("effectStyle", "<a:effectLst/>");
  return std::string(kXmlDeclaration) + "<a:theme xmlns:a=\"" + std::string(vocabulary.drawing) +
         "\" name=\"Office\"><a:themeElements>" + "<a:clrScheme name=\"Office\">" + colors +
         "</a:clrScheme><a:fontScheme name=\"Office\">" + Font("majorFont", "Cambria") +
         Font("minorFont", "Calibri") + "</a:fontScheme><a:fmtScheme name=\"Office\">" +
         Thrice("fillStyleLst", fill) + Thrice("lnStyleLst", line) + Thrice("effectStyleLst", effect) +
         Thrice("bgFillStyleLst", fill) + "</a:fmtScheme></a:themeElements></a:theme>";
}

}  // namespace plotsmith::xlsx
