#include "xlsx/package/XmlTags.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"

namespace plotsmith::xlsx {

std::optional<XmlTag> NextTag(std::string_view text, std::size_t from) {
  constexpr std::pair<std::string_view, std::string_view> kOther[] = {
      {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
  for (auto i = text.find('<', from); i != std::string_view::npos; i = text.find('<', i)) {
    const std::string_view rest = text.substr(i);
    const auto other = std::find_if(std::begin(kOther), std::end(kOther),
                                    [&](const auto& form) { return rest.starts_with(form.first); });
    if (other != std::end(kOther)) {
      i = text.find(other->second, i + other->first.size());
      continue;
    }
    std::size_t end = i + 1;
    for (char quote = 0; end < text.size() && (quote != 0 || text[end] != '>'); ++end) {
      if (quote != 0) {
        if (text[end] == quote) quote = 0;
      } else if (text[end] == '"' || text[end] == '\'') {
        quote = text[end];
      }
    }
    if (end == text.size()) break;
    XmlTag tag{{i, end + 1}};
    tag.kind = text[i + 1] == '/'     ? XmlTag::Kind::kEnd
               : text[end - 1] == '/' ? XmlTag::Kind::kEmpty
                                      : XmlTag::Kind::kStart;
    const std::size_t nameBegin = i + (tag.kind == XmlTag::Kind::kEnd ? 2 : 1);
    tag.name = text.substr(nameBegin, text.find_first_of(" \t\r\n/>", nameBegin) - nameBegin);
    const std::size_t nameEnd = nameBegin + tag.name.size();
    tag.attributes = text.substr(nameEnd, end - (tag.kind == XmlTag::Kind::kEmpty ? 1 : 0) - nameEnd);
    return tag;
  }
  return std::nullopt;
}

XmlTag FindChild(std::string_view text, std::size_t from, const std::function<bool(const XmlTag&)>& wanted) {
  int depth = 0;
  for (auto tag = NextTag(text, from); tag; tag = NextTag(text, tag->span.end)) {
    if (depth == 0 && (tag->kind == XmlTag::Kind::kEnd || wanted(*tag))) return *tag;
    if (tag->kind == XmlTag::Kind::kStart) ++depth;
    if (tag->kind == XmlTag::Kind::kEnd) --depth;
  }
  throw PackageError("its XML is damaged");
}

void RemoveChildren(std::string& text, std::size_t from, const std::function<bool(const XmlTag&)>& wanted) {
  for (;;) {
    const XmlTag tag = FindChild(text, from, wanted);
    if (tag.kind == XmlTag::Kind::kEnd) return;
    TextSpan child = tag.span;
    if (tag.kind == XmlTag::Kind::kStart) {
      child.end = FindChild(text, child.end, [](const XmlTag&) { return false; }).span.end;
    }
    text.erase(child.begin, child.end - child.begin);
    from = child.begin;
  }
}

TextSpan FindAttribute(std::string_view text, const XmlTag& tag, std::string_view name) {
  std::string_view rest = tag.attributes;
  while (const auto attribute = TakeAttribute(rest)) {
    const auto begin = static_cast<std::size_t>(attribute->all.data() - text.data());
    if (attribute->name == name) return {begin, begin + attribute->all.size()};
  }
  return {};
}

std::string TextBetween(std::string_view content) {
  if (content.find('<') == std::string_view::npos) return xml::Decode(content);
  // XmlStream handles comments and character data
  const std::string element = "<t>" + std::string(content) + "</t>";
  MemoryStream source(element);
  XmlStream stream(source);
  stream.Next();
  std::string text;
  stream.ReadText(text);
  return text;
}

}  // namespace plotsmith::xlsx
