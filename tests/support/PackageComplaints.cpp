#include "tests/support/PackageComplaints.h"

#include <pugixml.hpp>
#include <set>
#include <sstream>

#include "runtime/Strings.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::test {

std::string PackageComplaints(const std::string& path) {
  const auto package = xlsx::Package::Open(path);
  std::ostringstream text;
  std::set<std::string> targets;
  const auto check = [&](const std::string& source) {
    for (const xlsx::Relationship& link : package.Relationships(source)) {
      if (link.external) continue;
      targets.insert(link.target);
      if (!package.Has(link.target)) text << source << " refers to " << link.target << "\n";
    }
  };
  check("");
  const std::string types = "/[Content_Types].xml";
  for (const std::string& part : package.Parts()) {
    check(part);
    if (part != types && package.ContentType(part).empty()) text << part << " has no content type\n";
    if (!part.ends_with(".rels")) continue;
    const std::string source = runtime::Replace(runtime::Replace(part, "/_rels/", "/"), ".rels", "");
    if (source != "/" && !package.Has(source)) text << part << " belongs to no part\n";
  }
  for (const std::string& part : package.Parts()) {
    const bool reached = part == types || part.ends_with(".rels") || targets.contains(part);
    if (!reached) text << "nothing refers to " << part << "\n";
  }
  pugi::xml_document document;
  xlsx::xml::Parse(document, package.Read(types));
  for (const auto& node : xlsx::xml::Children(xlsx::xml::Root(document), "Override")) {
    const std::string part = xlsx::xml::Attribute(node, "PartName");
    if (!package.Has(part)) text << "a content type for " << part << "\n";
  }
  return text.str();
}

}  // namespace plotsmith::test
