#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "windows/com/ComPtr.h"
#include "windows/com/OwnedVariant.h"
#include "windows/com/Windows.h"

/// @file
/// Calls to members of Automation objects, which are bound by name at their first call.
namespace plotsmith::com {

/// A member of a class, by name. It keeps the number (DISPID) that the class gives to the member, for all
/// objects of the class. Make one for each member of each class, and keep it.
class Member {
 public:
  /// `name` must outlive the member.
  explicit constexpr Member(const wchar_t* name) : name_(name) {}
  Member(const Member&) = delete;
  Member& operator=(const Member&) = delete;

  /// Returns the member's number on an object. Raises error 438 if the object has no such member.
  DISPID IdOn(IDispatch& object);

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

/// Says whether a call that the server refuses because it is busy is repeated.
enum class WhenBusy { kWait, kFail };

/// Calls a member. The last argument of kPut is the new value. A failure is raised as a RuntimeError with the
/// server's number and text; a null object is error 91.
OwnedVariant Call(IDispatch* object, Member& member, Kind kind, std::span<const OwnedVariant> arguments,
                  WhenBusy whenBusy = WhenBusy::kWait);

/// Reads the default member of an object, as Visual Basic does where it needs a value. It raises the errors
/// of Call.
OwnedVariant CallDefault(IDispatch* object);

/// Returns true if an object has a member of this name. The member isn't called.
bool HasMember(IDispatch* object, const wchar_t* name);

/// Number of calls so far, including repeated ones.
std::uint64_t CallCount();

/// A number that grows with each call that may have changed something: a property that was put, or a method.
std::uint64_t ChangeCount();
/// Increases ChangeCount. Call it after other code had the chance to change something.
void NoteChange();

}  // namespace plotsmith::com
