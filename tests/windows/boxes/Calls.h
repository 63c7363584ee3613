#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Calls a controller late bound for a script, with arguments of types that script languages don't have.
///
/// `call` is the name of the operation and its arguments, separated by bars. An argument is a kind, a colon
/// and a text. The kinds are "s" for a text, "i" for a number, "e" for an error, "o" for the object
/// `application`, "u" for the same as IUnknown, "n" for Nothing, "d" for an
/// object whose default member is the text (the object itself for an empty one), "null", "empty", "missing",
/// "as" for an array of texts that are separated by commas, "av" for an array of Variants, "as0" for an array
/// of texts that isn't allocated, "as2" for one of two dimensions, and "ai" for one of numbers.
///
/// With "&" before it the argument is a reference, and with "&v" a reference to a Variant. NAME= before all
/// of it makes it a named argument, and #7= makes it one whose name has the number 7; these come last.
///
/// Returns "ok" for success, or the result code such as "0x80020005", followed by "at" and the position of
/// the wrong argument.
std::string CallLateBound(IDispatch* controller, const std::string& call, IDispatch* application);
/// Makes the same call early bound, for texts and arrays of texts.
std::string CallEarlyBound(IDispatch* controller, const std::string& call, IDispatch* application);

/// Returns the description of an object in its type library: a line for its class, and one for each member of
/// its interface.
std::string Describe(IDispatch* object);

/// Calls a function of a script with only `kilobytes` of the stack left.
void CallWithStackOf(unsigned kilobytes, IDispatch* function);
/// Makes a controller on another thread and calls RefreshPlotsmithData there without an Application. Returns
/// the texts of the message boxes.
std::string RefreshOnOtherThread();

}  // namespace plotsmith::test
