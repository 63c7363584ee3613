#pragma once

#include <cstdint>
#include <string_view>

#include "dom/Dom.h"
#include "runtime/Dictionary.h"

/// Module PSChartBuilder: the rules that carry a table into the rectangle of categories and series. The map
/// holds no data; it is made once a build and run for each row of the table.
namespace plotsmith {

/// Fills the map's variables from the definition and the table; False, after a message, if nothing can come
/// of it.
bool BuildPivotMap(const dom::IXMLDOMElement& oChartElement);

/// The rows of the source table that hold data, by sheet row.
struct DataRows {
  std::int32_t lFirst;
  std::int32_t lCount;

  explicit DataRows(const dom::IXMLDOMElement& oChartElement);
  std::int32_t Last() const { return lFirst + lCount - 1; }
};

/// A position as the dictionaries hold it: Empty, which a read of an unknown key leaves behind, counts as 0.
std::int32_t PositionOf(const runtime::Variant& vPosition);

}  // namespace plotsmith
