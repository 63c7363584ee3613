#pragma once

#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "forms/Control.h"

namespace plotsmith {

/// Runs an event procedure of a page. An error ends the procedure and is shown in a message box.
template <class Body>
void RunEventProcedure(const Body& body) {
  HandleErrors(body, [](const runtime::RuntimeError& oErr) { ShowEventError(oErr); });
}

/// Makes an event handler that runs a procedure in this way.
template <class Body>
forms::Event EventProcedure(Body body) {
  return [body] { RunEventProcedure(body); };
}

}  // namespace plotsmith
