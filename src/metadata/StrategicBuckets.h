#pragma once

#include "common/RunVariables.h"
#include "dom/Dom.h"
#include "runtime/Dictionary.h"
#include "runtime/Ref.h"

/// Module PSFunctions: the second table of a strategic bucket chart.
namespace plotsmith {

/// The tables that can be the bucket table of a source table: those whose first heading is one of its label
/// columns and whose second is one of its number columns, ignoring case.
runtime::Ref<DocumentCollection> GetBucketCandidates(const dom::IXMLDOMElement& oTableElement);

/// The sum of a bucket table's values by upper-cased bucket name; Nothing after an error.
runtime::Ref<runtime::Dictionary> GetStrategicBuckets(const dom::IXMLDOMDocument2& oTableDoc);

}  // namespace plotsmith
