#include "xlsx/DocumentProperties.h"

#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Workbook.h"
#include "xlsx/base/Errors.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr const char* kExcel = "Microsoft Excel";
constexpr double kFirstOoxmlVersion = 12;  // Excel 2007

/// The program that saved the file last; nothing if the file doesn't name it.
std::optional<std::string> SavingProgram(const Package& package) {
  auto link = package.FindRelationshipOfType("", "extended-properties");
  if (!link) link = package.FindRelationshipOfType("", "extendedProperties");  // in the strict vocabulary
  if (!link) return std::nullopt;
  pugi::xml_document document;
  xml::Parse(document, package.Read(link->target));
  const std::string program = xml::Text(xml::Child(xml::Root(document), "Application"));
  if (program.empty()) return std::nullopt;
  const std::string version = xml::Text(xml::Child(xml::Root(document), "AppVersion"));
  // openpyxl up to 3.1.2 claims to be Microsoft Excel, but gives its own version number, such as "3.0".
  if (program == kExcel && xml::ParseDouble(version).value_or(kFirstOoxmlVersion) < kFirstOoxmlVersion) {
    return "openpyxl " + version;
  }
  return program;
}

class ApplicationName final : public excel::DocumentProperty {
 public:
  explicit ApplicationName(std::shared_ptr<Workbook> book) : book_(std::move(book)) {}

  runtime::Variant Value() override {
    std::optional<std::string> program;
    try {
      program = SavingProgram(book_->Package());
    } catch (const PackageError&) {
      // A workbook whose properties can't be read can still be used.
    }
    if (!program) throw CantGet("Value", "DocumentProperty");
    return *program;
  }

 private:
  std::shared_ptr<Workbook> book_;
};

}  // namespace

excel::Ref<excel::DocumentProperty> MakeDocumentProperty(Workbook& book, std::string_view name) {
  if (!runtime::EqualsIgnoreCase(name, "Application name")) {
    throw runtime::RuntimeError(runtime::error::kInvalidCall);
  }
  return std::make_shared<ApplicationName>(book.shared_from_this());
}

}  // namespace plotsmith::xlsx
