#include "tests/support/SchemaFaults.h"

#include <filesystem>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <stdexcept>

#include "runtime/Strings.h"
#include "tests/support/Paths.h"

namespace plotsmith::test {
namespace {

using S = std::string;

constexpr const char* kCompatibility = "http://schemas.openxmlformats.org/markup-compatibility/2006";

/// The schema for parts of a content type, given by the end of the type.
struct Judge {
  const char *contentType, *schema;
};
constexpr Judge kJudges[] = {
    {"relationships+xml", "opc-xsd/opc-relationships.xsd"},
    {"drawingml.chart+xml", "dml-chart.xsd"},
    {"drawingml.chartshapes+xml", "dml-chart.xsd"},
    {"officedocument.drawing+xml", "dml-spreadsheetDrawing.xsd"},
    {"officedocument.theme+xml", "dml-main.xsd"},
    {"spreadsheetml.styles+xml", "sml.xsd"},
    {"spreadsheetml.worksheet+xml", "sml.xsd"},
    {"main+xml", "sml.xsd"},
};
constexpr const char* kTypesSchema = "opc-xsd/opc-contentTypes.xsd";

/// The namespaces of the strict vocabulary and their transitional equivalents, which the schemas contain.
constexpr std::pair<const char*, const char*> kStrictAddresses[] = {
    {"http://purl.oclc.org/ooxml/spreadsheetml/main",
     "http://schemas.openxmlformats.org/spreadsheetml/2006/main"},
    {"http://purl.oclc.org/ooxml/officeDocument/relationships",
     "http://schemas.openxmlformats.org/officeDocument/2006/relationships"},
    {"http://purl.oclc.org/ooxml/drawingml/main", "http://schemas.openxmlformats.org/drawingml/2006/main"},
    {"http://purl.oclc.org/ooxml/drawingml/spreadsheetDrawing",
     "http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing"},
    {"http://purl.oclc.org/ooxml/drawingml/chartDrawing",
     "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing"},
    {"http://purl.oclc.org/ooxml/drawingml/chart", "http://schemas.openxmlformats.org/drawingml/2006/chart"},
};

S Text(const xmlChar* text) { return text == nullptr ? S() : reinterpret_cast<const char*>(text); }
bool IsOf(const xmlNs* ns, const char* address) { return ns != nullptr && Text(ns->href) == address; }

void Drop(xmlNodePtr node) {
  xmlUnlinkNode(node);
  xmlFreeNode(node);
}

/// Collects the namespaces that an element declares as ignorable, and removes all compatibility attributes.
void ReadMarks(xmlNodePtr node, std::set<S>& ignorable) {
  for (xmlAttrPtr attribute = node->properties; attribute != nullptr;) {
    const xmlAttrPtr next = attribute->next;
    if (IsOf(attribute->ns, kCompatibility)) {
      xmlChar* value = xmlNodeListGetString(node->doc, attribute->children, 1);
      const S prefixes = Text(attribute->name) == "Ignorable" ? Text(value) : "";
      xmlFree(value);
      for (std::size_t at = 0; at < prefixes.size();) {
        const std::size_t end = std::min(prefixes.find(' ', at), prefixes.size());
        const S prefix = prefixes.substr(at, end - at);
        const xmlNsPtr ns = xmlSearchNs(node->doc, node, reinterpret_cast<const xmlChar*>(prefix.c_str()));
        if (ns != nullptr) ignorable.insert(Text(ns->href));
        at = end + 1;
      }
      xmlRemoveProp(attribute);
    }
    attribute = next;
  }
}

void DropIgnorableAttributes(xmlNodePtr node, const std::set<S>& ignorable) {
  for (xmlAttrPtr attribute = node->properties; attribute != nullptr;) {
    const xmlAttrPtr next = attribute->next;
    const S ns = attribute->ns == nullptr ? S() : Text(attribute->ns->href);
    // Excel writes xml:space on texts, where the schema doesn't have it.
    if (ignorable.contains(ns) || ns == reinterpret_cast<const char*>(XML_XML_NAMESPACE)) {
      xmlRemoveProp(attribute);
    }
    attribute = next;
  }
}

/// Replaces alternatives by the content of their fallback, if there is one. Returns the node to continue
/// with.
xmlNodePtr ResolveAlternatives(xmlNodePtr alternatives) {
  xmlNodePtr first = nullptr;
  for (xmlNodePtr child = alternatives->children; child != nullptr; child = child->next) {
    if (!IsOf(child->ns, kCompatibility) || Text(child->name) != "Fallback") continue;
    while (child->children != nullptr) {
      const xmlNodePtr moved = child->children;
      xmlUnlinkNode(moved);
      xmlAddPrevSibling(alternatives, moved);
      if (first == nullptr) first = moved;
    }
    break;
  }
  const xmlNodePtr next = first != nullptr ? first : alternatives->next;
  xmlReconciliateNs(alternatives->doc, alternatives->parent);
  Drop(alternatives);
  return next;
}

void Prepare(xmlNodePtr node, std::set<S> ignorable) {
  ReadMarks(node, ignorable);
  DropIgnorableAttributes(node, ignorable);
  for (xmlNodePtr child = node->children; child != nullptr;) {
    const xmlNodePtr next = child->next;
    if (child->type == XML_ELEMENT_NODE) {
      const S ns = child->ns == nullptr ? S() : Text(child->ns->href);
      if (ns == kCompatibility && Text(child->name) == "AlternateContent") {
        child = ResolveAlternatives(child);
        continue;
      }
      if (ignorable.contains(ns) || Text(child->name) == "extLst") {
        Drop(child);
      } else {
        Prepare(child, ignorable);
      }
    }
    child = next;
  }
}

/// Returns the path of a node as element names, which doesn't change when elements move.
S PathOf(const xmlNode* node) {
  S path;
  for (; node != nullptr && node->type == XML_ELEMENT_NODE; node = node->parent) {
    path = "/" + Text(node->name) + path;
  }
  return path;
}

extern "C" void TakeFault(void* faults, xmlErrorPtr error) {
  S sentence = error->message == nullptr ? S() : error->message;
  while (!sentence.empty() && sentence.back() == '\n') sentence.pop_back();
  static_cast<std::set<S>*>(faults)->insert(PathOf(static_cast<xmlNode*>(error->node)) + ": " + sentence);
}
extern "C" void KeepQuiet(void*, xmlErrorPtr) {}

/// Returns an error without the list of expected elements, which depends on the elements around it.
S Key(const S& fault) { return fault.substr(0, fault.find(" Expected is")); }

}  // namespace

struct Schemas::Schema {
  explicit Schema(const S& file) : name(file) {
    const S path = std::filesystem::path(test::kSchemasFolder) / file;
    const xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(path.c_str());
    // The library warns about schemas that import each other.
    xmlSchemaSetParserStructuredErrors(parser, KeepQuiet, nullptr);
    schema = xmlSchemaParse(parser);
    xmlSchemaFreeParserCtxt(parser);
    if (schema == nullptr) throw std::runtime_error(path + " is no schema");
  }
  ~Schema() { xmlSchemaFree(schema); }

  S name;
  xmlSchemaPtr schema = nullptr;
};

bool Schemas::Present() {
  return std::filesystem::exists(std::filesystem::path(test::kSchemasFolder) / "dml-chart.xsd");
}

Schemas::Schemas() {
  std::set<S> names = {kTypesSchema};
  for (const Judge& judge : kJudges) names.insert(judge.schema);
  for (const S& name : names) schemas_.push_back(std::make_unique<Schema>(name));
}

Schemas::~Schemas() = default;

std::set<S> Schemas::Faults(const xlsx::Package& package, const S& part) {
  S wanted = part == "/[Content_Types].xml" ? kTypesSchema : "";
  const S type = wanted.empty() ? package.ContentType(part) : S();
  for (const Judge& judge : kJudges) {
    if (wanted.empty() && type.ends_with(judge.contentType)) wanted = judge.schema;
  }
  std::set<S> faults;
  if (wanted.empty()) return faults;
  ++judged_;
  S bytes = package.Read(part);
  for (const auto& [strict, transitional] : kStrictAddresses) {
    bytes = runtime::Replace(bytes, strict, transitional);
  }
  const xmlDocPtr document =
      xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                    XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
  if (document == nullptr) return {"it isn't well-formed"};
  Prepare(xmlDocGetRootElement(document), {});
  for (const auto& schema : schemas_) {
    if (schema->name != wanted) continue;
    const xmlSchemaValidCtxtPtr context = xmlSchemaNewValidCtxt(schema->schema);
    xmlSchemaSetValidStructuredErrors(context, TakeFault, &faults);
    xmlSchemaValidateDoc(context, document);
    xmlSchemaFreeValidCtxt(context);
  }
  xmlFreeDoc(document);
  return faults;
}

S Schemas::NewFaults(const xlsx::Package& before, const xlsx::Package& after) {
  S text;
  for (const S& part : after.Parts()) {
    try {
      if (before.Has(part)) {
        if (before.Read(part) == after.Read(part)) continue;
      }
    } catch (const std::exception&) {
      continue;  // A part that can't be read wasn't written by us.
    }
    std::set<S> known;
    if (before.Has(part)) {
      for (const S& fault : Faults(before, part)) known.insert(Key(fault));
    }
    for (const S& fault : Faults(after, part)) {
      if (!known.contains(Key(fault))) text += part + fault + "\n";
    }
  }
  return text;
}

void MakeStrict(const S& from, const S& to) {
  const auto package = xlsx::Package::Open(from);
  std::vector<std::pair<S, S>> parts;  // The writer reads them at the end.
  for (const S& part : package.Parts()) {
    S bytes = package.Read(part);
    for (const auto& [strict, transitional] : kStrictAddresses) {
      bytes = runtime::Replace(bytes, transitional, strict);
    }
    parts.emplace_back(part.substr(1), std::move(bytes));
  }
  xlsx::ArchiveWriter writer(to);
  for (const auto& [name, bytes] : parts) writer.Add(name, bytes);
  writer.Finish();
}

}  // namespace plotsmith::test
