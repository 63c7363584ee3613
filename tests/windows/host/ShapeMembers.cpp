#include "tests/windows/host/Automation.h"

namespace plotsmith::automation {
namespace {

std::int32_t NumberOr(const VARIANT& value, std::int32_t otherwise) {
  return com::IsMissing(value) ? otherwise : Given<std::int32_t>(value);
}

void AddWays(Table<excel::Shapes>& table) {
  table.Add({L"Range", DISPATCH_PROPERTYGET, 1, 1, nullptr,
             [](excel::Shapes& shapes, const Arguments& arguments, const HostPtr& host) {
               const bool several = com::IsArray(arguments[0]);
               return Answer(shapes.Range(several ? com::TextsOf(arguments[0])
                                                  : std::vector{Given<std::string>(arguments[0])}),
                             host);
             }});
}

void AddWays(Table<excel::TextFrame>& table) {
  table.Add({L"Characters", DISPATCH_METHOD, 0, 2, nullptr,
             [](excel::TextFrame& frame, const Arguments& arguments, const HostPtr& host) {
               return Answer(frame.Characters(NumberOr(arguments[0], 1), NumberOr(arguments[1], -1)), host);
             }});
}

}  // namespace

#include "tests/windows/host/MemberLines.h"
#include "windows/excel/members/Shapes.inc"

}  // namespace plotsmith::automation
