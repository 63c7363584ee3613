#include <algorithm>
#include <cmath>
#include <set>

#include "render/model/ChartReader.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

std::optional<TimeUnit> UnitOf(pugi::xml_node axis, const char* name) {
  const std::string unit = schema::Val(axis, name);
  if (unit == "days") return TimeUnit::kDays;
  if (unit == "months") return TimeUnit::kMonths;
  if (unit == "years") return TimeUnit::kYears;
  return std::nullopt;
}

/// Returns the longest unit in which no two dates share a slot.
TimeUnit BaseOf(const std::vector<double>& serials, xlsx::DateSystem dates) {
  for (const TimeUnit unit : {TimeUnit::kYears, TimeUnit::kMonths}) {
    std::set<long long> taken;
    bool apart = serials.size() > 1;
    for (const double serial : serials) apart &= taken.insert(SlotOf(serial, unit, dates)).second;
    if (apart) return unit;
  }
  return TimeUnit::kDays;
}

bool IsDate(double serial) { return serial >= 0 && serial <= xlsx::kLastSerial; }

/// Takes the first and the last date that the file sets. Without them, the axis shows all dates.
void ReadBounds(const AxisModel& axis, xlsx::DateSystem dates, DateSlots& slots) {
  const auto bound = [&](const char* name) -> std::optional<long long> {
    const auto serial = schema::NumberVal(xml::Child(axis.node, "scaling"), name);
    if (!serial || !IsDate(*serial)) return std::nullopt;
    return SlotOf(*serial, slots.base, dates);
  };
  const auto first = bound("min"), last = bound("max");
  if (first && last && *first > *last) return;
  long long begin = slots.first, end = begin + static_cast<long long>(slots.count) - 1;
  if (first) begin = *first, end = std::max(end, begin);
  if (last) end = *last, begin = std::min(begin, end);
  slots.hasFirst = first.has_value();
  slots.hasLast = last.has_value();
  slots.first = begin;
  slots.count = static_cast<double>(end - begin + 1);
}

}  // namespace

void ReadDates(ReadingContext& context, const GroupModel& group, AxisModel& axis) {
  const auto categories = xml::Child(group.series.front().node, "cat");
  const std::vector<double> serials = ReadNumbers(context, categories);
  if (serials.empty() || !std::all_of(serials.begin(), serials.end(), IsDate)) return;
  const xlsx::DateSystem dates = context.part.Book().Dates();
  DateSlots slots;
  slots.base = UnitOf(axis.node, "baseTimeUnit").value_or(BaseOf(serials, dates));
  slots.majorBase = std::max(UnitOf(axis.node, "majorTimeUnit").value_or(TimeUnit::kDays), slots.base);
  const double unit = schema::NumberVal(axis.node, "majorUnit").value_or(0);
  slots.majorUnit = unit >= 1 && unit <= xlsx::kLastSerial ? std::floor(unit) : 0;
  const auto [least, greatest] = std::minmax_element(serials.begin(), serials.end());
  slots.first = SlotOf(*least, slots.base, dates);
  slots.count = static_cast<double>(SlotOf(*greatest, slots.base, dates) - slots.first + 1);
  if (!group.is3D) {
    ReadBounds(axis, dates, slots);
  } else if (xml::Child(axis.node, "scaling", "min") || xml::Child(axis.node, "scaling", "max")) {
    context.notes.emplace_back(
        "A date axis in 3-D shows all dates; its minimum and its maximum aren't used.");
  }
  for (const double serial : serials) {
    slots.positions.push_back(static_cast<double>(SlotOf(serial, slots.base, dates) - slots.first));
  }
  if (!axis.format) {
    axis.format = context.Format(xml::Text(xml::Child(categories, "numRef", "numCache", "formatCode")));
  }
  axis.dates = std::move(slots);
}

}  // namespace plotsmith::render
