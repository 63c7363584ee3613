#pragma once

#include <initializer_list>
#include <string>

#include "dom/Dom.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// A test of the steps from a definition to its block on the data sheet, without a chart.
class BlockTest : public HostTest {
 protected:
  /// Validates, maps and writes the block of a definition. Returns the block, or the step that failed.
  std::string Block(const Definition& definition);
  /// Returns the current block without the column of ids.
  std::string BlockNow();

  dom::IXMLDOMElement chart_;  ///< The definition that was last written, with the additions of the steps.
};

/// Returns a group of columns of a definition.
std::string Columns(const std::string& group, std::initializer_list<std::string> names,
                    const std::string& headingsIn = "columns");

/// The message of a map builder that drops data of the chart VEX_Chart1.
inline const std::string kLimitMessage =
    "Brindle Plotsmith: This chart type is limited to 254 series.\nSome data will be dropped from chart "
    "'Name of VEX_Chart1'.";

}  // namespace plotsmith::test
