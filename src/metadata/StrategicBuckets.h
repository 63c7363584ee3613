#pragma once

#include "common/RunVariables.h"
#include "dom/Dom.h"
#include "runtime/Dictionary.h"
#include "runtime/Ref.h"

/// Module PSFunctions: the bucket table of a strategic bucket chart.
namespace plotsmith {

/// Returns the tables that can be the bucket table of a source table: the first heading is one of its label
/// columns, and the second heading is one of its number columns, ignoring case.
runtime::Ref<DocumentCollection> GetBucketCandidates(const dom::IXMLDOMElement& oTableElement);

/// Returns the sums of a bucket table's values by bucket name in upper case, or Nothing after an error.
runtime::Ref<runtime::Dictionary> GetStrategicBuckets(const dom::IXMLDOMDocument2& oTableDoc);

}  // namespace plotsmith
