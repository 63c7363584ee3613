#pragma once

#include <initializer_list>
#include <string>

#include "dom/Dom.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// A test of the road from a definition to its block on the data sheet, without a chart.
class BlockTest : public HostTest {
 protected:
  /// Validates, maps and writes the block of a definition; what came out, or the step that refused.
  std::string Block(const Definition& definition);
  /// The block as it stands now, without the column of ids.
  std::string BlockNow();

  dom::IXMLDOMElement chart_;  ///< the definition that was last written, with what the steps added to it
};

/// A group of columns of a definition.
std::string Columns(const std::string& group, std::initializer_list<std::string> names,
                    const std::string& headingsIn = "columns");

/// What a map builder says when it drops something from the chart VEX_Chart1.
inline const std::string kLimitMessage =
    "Brindle Plotsmith: This chart type is limited to 254 series.\nSome data will be dropped from chart "
    "'Name of VEX_Chart1'.";

}  // namespace plotsmith::test
