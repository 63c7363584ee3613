#pragma once

#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "forms/Control.h"

namespace plotsmith {

/// Runs an event procedure of a page with its error block: an error ends it and is shown in a plain box.
template <class Body>
void RunEventProcedure(const Body& body) {
  HandleErrors(body, [](const runtime::RuntimeError& oErr) { ShowEventError(oErr); });
}

/// The same as what a control can raise.
template <class Body>
forms::Event EventProcedure(Body body) {
  return [body] { RunEventProcedure(body); };
}

}  // namespace plotsmith
