#include "xlsx/book/BookPart.h"

#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/WorkbookKind.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

void BookPart::Load(const Package& package) {
  const auto main = package.FindRelationshipOfType("", "officeDocument");
  if (!main || !package.Has(main->target)) throw PackageError("it is not a workbook: it has no main part");
  name_ = main->target;
  const std::string type = package.ContentType(name_);
  if (type.find("sheet.binary") != std::string::npos) {
    throw OtherFormat("a binary workbook (.xlsb)");
  }
  InPart(name_, [&] { xml::Parse(document_, package.Read(name_)); });
  if (!xml::Is(Root(), "workbook")) throw PackageError("it is not a workbook");
  strict_ = xml::NamespaceOf(Root()) == kStrict.main;
}

pugi::xml_node BookPart::Root() const { return xml::Root(document_); }

DateSystem BookPart::Dates() const {
  return xml::BooleanAttribute(xml::Child(Root(), "workbookPr"), "date1904", false) ? DateSystem::k1904
                                                                                    : DateSystem::k1900;
}

void BookPart::Write(Package& package) {
  if (changed_) package.Replace(name_, xml::Serialize(document_));
  changed_ = false;
}

}  // namespace plotsmith::xlsx
