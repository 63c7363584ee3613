#include "xlsx/drawing/TextBody.h"

#include <algorithm>
#include <utility>

#include "runtime/Strings.h"
#include "xlsx/base/Errors.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

// The default size of a shape's text in points, which is that of the workbook's default font. Charts have a
// different one.
constexpr double kUsualSize = 11;

bool IsRun(pugi::xml_node node) { return xml::Is(node, "r") || xml::Is(node, "fld"); }

/// Splits a run after its first units. The rest becomes a run with the same format. A field isn't split.
void Cut(pugi::xml_node run, std::size_t units) {
  const std::u16string text = runtime::ToUtf16(xml::Text(xml::Child(run, "t")));
  if (!xml::Is(run, "r") || units == 0 || units >= text.size()) return;
  pugi::xml_node rest = run.parent().insert_copy_after(run, run);
  xml::SetText(xml::Child(run, "t"), runtime::ToUtf8(text.substr(0, units)));
  xml::SetText(xml::Child(rest, "t"), runtime::ToUtf8(text.substr(units)));
}

/// Returns the position after a piece of text, which may extend to the end of any text.
std::size_t EndOf(std::size_t start, std::size_t length) {
  constexpr std::size_t kEnd = std::u16string::npos;
  return length > kEnd - start ? kEnd : start + length;
}

/// Calls `visit` with each run and the positions of its beginning and end. `visit` may split the run. Returns
/// the length of the text.
template <class Visit>
std::size_t ForEachRun(const std::vector<pugi::xml_node>& paragraphs, const Visit& visit) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    if (i > 0) ++at;
    for (pugi::xml_node run = paragraphs[i].first_child(); run; run = run.next_sibling()) {
      if (xml::Is(run, "br")) ++at;
      if (!IsRun(run)) continue;
      const std::size_t length = runtime::Len(xml::Text(xml::Child(run, "t")));
      visit(run, at, at + length);
      at += runtime::Len(xml::Text(xml::Child(run, "t")));
    }
  }
  return at;
}

}  // namespace

std::string BodyText(pugi::xml_node body) {
  std::string text;
  bool first = true;
  for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
    if (!std::exchange(first, false)) text += '\n';
    for (const pugi::xml_node& run : paragraph.children()) {
      if (IsRun(run)) text += xml::Text(xml::Child(run, "t"));
      if (xml::Is(run, "br")) text += '\n';
    }
  }
  return text;
}

void SetBodyText(pugi::xml_node body, std::string_view text) {
  pugi::xml_document kept;  // copies, because the originals are removed
  const auto keep = [&](pugi::xml_node node) { return node ? kept.append_copy(node) : pugi::xml_node(); };
  const auto keepAs = [&](pugi::xml_node node, const char* name) {
    pugi::xml_node copy = keep(node);
    copy.set_name((std::string(xml::Prefix(node.name())) + name).c_str());
    return copy;
  };
  const pugi::xml_node first = xml::Child(body, "p");
  const pugi::xml_node paragraphProperties = keep(xml::Child(first, "pPr"));
  pugi::xml_node runProperties = keep(xml::Child(first, "r", "rPr"));
  pugi::xml_node ending = keep(xml::Child(first, "endParaRPr"));
  if (!runProperties) runProperties = keepAs(ending, "rPr");
  if (!ending) ending = keepAs(runProperties, "endParaRPr");
  schema::Remove(body, "p");

  std::string lines = runtime::Replace(text, "\r\n", "\n");
  lines = runtime::Replace(lines, "\r", "\n");
  pugi::xml_node paragraph;
  for (std::string_view rest = lines;;) {
    const auto end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    paragraph = paragraph ? body.insert_child_after(paragraph.name(), paragraph) : schema::Insert(body, "p");
    if (paragraphProperties) paragraph.append_copy(paragraphProperties);
    if (!line.empty()) {
      pugi::xml_node run = schema::Ensure(paragraph, "r");
      if (runProperties) run.append_copy(runProperties);
      xml::SetText(schema::Ensure(run, "t"), line);
    } else if (ending) {
      paragraph.append_copy(ending);
    }
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
}

pugi::xml_node EnsureParagraph(pugi::xml_node body) {
  schema::Ensure(body, "bodyPr");
  schema::Ensure(body, "lstStyle");
  return schema::Ensure(body, "p");
}

pugi::xml_node TextBody::Body() const { return xml::Child(object_, "txBody"); }

pugi::xml_node TextBody::EnsureBody() {
  if (const auto body = Body()) return body;
  if (!xml::Is(object_, "sp")) throw OutOfRange();
  // The body is the last child, in the drawing's namespace.
  const pugi::xml_node body = xml::AppendChild(object_, "txBody");
  EnsureParagraph(body);
  return body;
}

pugi::xml_node TextBody::BodyProperties() { return schema::Ensure(EnsureBody(), "bodyPr"); }

std::vector<pugi::xml_node> TextBody::Paragraphs() const { return xml::Children(Body(), "p"); }

std::vector<pugi::xml_node> TextBody::EnsureRunProperties(std::size_t start, std::size_t length) {
  EnsureBody();
  const auto paragraphs = Paragraphs();
  const std::size_t end = EndOf(start, length);
  std::vector<pugi::xml_node> properties;
  const std::size_t size = ForEachRun(paragraphs, [&](pugi::xml_node run, std::size_t from, std::size_t to) {
    if (to <= start || from >= end) return;
    if (from < start) {
      Cut(run, start - from);  // The next run is inside the part.
      if (xml::Is(run, "r")) return;
    }
    if (to > end) Cut(run, end - from);
    properties.push_back(schema::Ensure(run, "rPr"));
  });
  if (start == 0 && end >= size) {
    for (const pugi::xml_node& paragraph : paragraphs)
      properties.push_back(schema::Ensure(paragraph, "endParaRPr"));
  }
  return properties;
}

std::vector<pugi::xml_node> TextBody::RunProperties(std::size_t start, std::size_t length) const {
  const auto paragraphs = Paragraphs();
  const std::size_t end = EndOf(start, length);
  std::vector<pugi::xml_node> properties;
  const std::size_t size = ForEachRun(paragraphs, [&](pugi::xml_node run, std::size_t from, std::size_t to) {
    if (to > start && from < end) properties.push_back(xml::Child(run, "rPr"));
  });
  if (size == 0 && !paragraphs.empty()) properties.push_back(xml::Child(paragraphs[0], "endParaRPr"));
  return properties;
}

TextBody::Extent TextBody::Measure(const Theme& theme, std::optional<double> width) const {
  Extent extent;
  for (const pugi::xml_node& paragraph : Paragraphs()) {
    double x = 0, height = 0;
    const auto endLine = [&] {
      extent.width = std::max(extent.width, x);
      extent.height += height;
      x = 0;
    };
    for (const pugi::xml_node& run : paragraph.children()) {
      if (!IsRun(run) && !xml::Is(run, "br")) continue;
      const TextFace face = FaceOf(xml::Child(run, "rPr"), theme);
      height = std::max(height, LineHeight(face));
      if (xml::Is(run, "br")) {
        endLine();
        continue;
      }
      const std::string text = xml::Text(xml::Child(run, "t"));
      for (std::string_view rest = text; !rest.empty();) {
        // The space after a word may extend beyond the edge.
        const std::size_t blank = rest.find(' ');
        const std::string_view word = rest.substr(0, blank);
        if (width && x > 0 && x + TextWidth(word, face) > *width) endLine();
        const std::size_t taken = blank == std::string_view::npos ? rest.size() : blank + 1;
        x += TextWidth(rest.substr(0, taken), face);
        rest.remove_prefix(taken);
      }
    }
    if (height == 0) height = LineHeight(FaceOf(xml::Child(paragraph, "endParaRPr"), theme));
    endLine();
  }
  return extent;
}

TextFace FaceOf(pugi::xml_node runProperties, const Theme& theme) {
  return {theme.Typeface(xml::Attribute(xml::Child(runProperties, "latin"), "typeface", "+mn-lt")),
          xml::NumberAttribute(runProperties, "sz", kUsualSize * 100) / 100,
          xml::BooleanAttribute(runProperties, "b", false)};
}

}  // namespace plotsmith::xlsx
