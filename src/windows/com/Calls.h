#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "windows/com/ComPtr.h"
#include "windows/com/OwnedVariant.h"
#include "windows/com/Windows.h"

/// @file
/// Calls of members of Automation objects, bound by name when they are first called.
namespace plotsmith::com {

/// A member of a class, by its name. Remembers the number (DISPID) by which the class knows the member, for
/// all its objects. Make one for each member of each class, and keep it.
class Member {
 public:
  /// `name` must outlive the member.
  explicit constexpr Member(const wchar_t* name) : name_(name) {}
  Member(const Member&) = delete;
  Member& operator=(const Member&) = delete;

  /// The number on an object. Error 438 if the object has no such member.
  DISPID IdOn(IDispatch& object);

 private:
  const wchar_t* name_;
  const void* class_ = nullptr;  ///< whose number is remembered; null for none
  DISPID id_ = DISPID_UNKNOWN;
};

/// What a call is (one of Automation's invoke kinds, never two of them).
enum class Kind {
  kGet,
  kPut,
  kMethod,
  kFind,  ///< a method that changes nothing
};

/// Whether a call waits where the server says that it is busy, and is made again.
enum class WhenBusy { kWait, kFail };

/// Calls a member. Of a property that is put, the value is the last of the arguments. What fails is a
/// RuntimeError with the server's number and text; without an object it is error 91.
OwnedVariant Call(IDispatch* object, Member& member, Kind kind, std::span<const OwnedVariant> arguments,
                  WhenBusy whenBusy = WhenBusy::kWait);

/// Reads the default member of an object, as the language does where it needs a value. The errors are those
/// of Call.
OwnedVariant CallDefault(IDispatch* object);

/// Whether an object has a member of the name. This is no call of the member.
bool HasMember(IDispatch* object, const wchar_t* name);

/// How many calls were made, those that were made again among them.
std::uint64_t CallCount();

/// A number that grows with each call that may have changed something: a property that was put, a method.
std::uint64_t ChangeCount();
/// Lets ChangeCount grow, after others had the chance to change something.
void NoteChange();

}  // namespace plotsmith::com
