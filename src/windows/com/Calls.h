#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "windows/com/ComPtr.h"
#include "windows/com/OwnedVariant.h"
#include "windows/com/Windows.h"

/// @file
/// Late-bound calls to members of Automation objects. The number of a member is looked up by its name at the
/// first call.
namespace plotsmith::com {

/// Whether a call is repeated if the server refuses it because it is busy.
enum class WhenBusy { kWait, kFail };

/// A member of a class, given by its name. The object stores the member's number (DISPID), which all objects
/// of the class share. Make one Member for each member of each class, and reuse it.
class Member {
 public:
  /// Makes a member with this name. `name` must outlive the member.
  explicit constexpr Member(const wchar_t* name) : name_(name) {}
  Member(const Member&) = delete;
  Member& operator=(const Member&) = delete;

  /// Returns the member's number on an object. Raises error 438 if the object has no such member, and the
  /// server's error if it is busy.
  DISPID IdOn(IDispatch& object, WhenBusy whenBusy);

 private:
  const wchar_t* name_;
  const void* class_ = nullptr;  ///< the class whose number is kept; null for none
  DISPID id_ = DISPID_UNKNOWN;
};

/// The kind of a call: exactly one of Automation's invoke kinds.
enum class Kind {
  kGet,
  kPut,
  kMethod,
  kFind,  ///< a method that has no side effect
};

/// Calls a member. The last argument of kPut is the new value. If the call fails, raises a RuntimeError with
/// the server's number and text. Raises error 91 for a null object.
OwnedVariant Call(IDispatch* object, Member& member, Kind kind, std::span<const OwnedVariant> arguments,
                  WhenBusy whenBusy = WhenBusy::kWait);

/// Reads the default member of an object, as Visual Basic does where it needs a value. Raises the same errors
/// as Call.
OwnedVariant CallDefault(IDispatch* object);

/// Returns true if an object has a member with this name. Doesn't call the member. Raises the server's error
/// if it stays busy.
bool HasMember(IDispatch* object, const wchar_t* name);

/// The number of calls so far, including repeated ones.
std::uint64_t CallCount();

/// A counter that increases with each call that may have changed something: setting a property, or calling a
/// method.
std::uint64_t ChangeCount();
/// Increases ChangeCount. Call it after other code has had the chance to change something.
void NoteChange();

}  // namespace plotsmith::com
