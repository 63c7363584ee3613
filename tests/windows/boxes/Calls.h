#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Calls a controller late bound as the script says, with arguments of types that no script language has.
/// `call` is the name of the operation and its arguments, separated by bars. An argument is a kind, a colon
/// and a text: "s" a text, "i" a number, "e" an error, "o" the object `application`, "u" the same as
/// IUnknown, "n" Nothing, "d" an object whose default member is the text (itself for an empty one), "null",
/// "empty", "missing", "as" an array of texts that are separated by commas, "av" an array of Variants, "as0"
/// an array of texts that isn't allocated, "as2" one of two dimensions, "ai" one of numbers. With "&" before
/// it the argument is a reference, with "&v" a reference to a Variant; NAME= before all of it makes it a
/// named argument, and #7= one whose name has the number 7; these come last. The answer is the result,
/// "0x80020005", with the position of the argument that is at fault behind "at", and "ok" for success.
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
