#include "dom/XmlDepth.h"

#include <cstddef>

namespace plotsmith::dom {
namespace {

/// The position behind the next `end`, or behind the text.
std::size_t Behind(std::string_view xml, std::string_view end, std::size_t from) {
  const auto at = xml.find(end, from);
  return at == std::string_view::npos ? xml.size() : at + end.size();
}

}  // namespace

bool NestsDeeperThan(std::string_view xml, int limit) {
  int depth = 0;
  for (std::size_t i = xml.find('<'); i < xml.size(); i = xml.find('<', i)) {
    const std::string_view rest = xml.substr(i);
    if (rest.starts_with("<!--")) {
      i = Behind(xml, "-->", i + 4);
    } else if (rest.starts_with("<![CDATA[")) {
      i = Behind(xml, "]]>", i + 9);
    } else if (rest.starts_with("<?")) {
      i = Behind(xml, "?>", i + 2);
    } else if (rest.starts_with("</")) {
      --depth;
      i += 2;
    } else {
      std::size_t end = i + 1;
      for (char quote = 0; end < xml.size() && (quote != 0 || xml[end] != '>'); ++end) {
        if (quote != 0) {
          if (xml[end] == quote) quote = 0;
        } else if (xml[end] == '"' || xml[end] == '\'') {
          quote = xml[end];
        }
      }
      if (end >= xml.size()) break;
      if (xml[i + 1] != '!' && xml[end - 1] != '/' && ++depth > limit) return true;
      i = end;
    }
  }
  return false;
}

}  // namespace plotsmith::dom
