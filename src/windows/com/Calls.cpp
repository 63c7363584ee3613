#include "windows/com/Calls.h"

#include <algorithm>
#include <array>
#include <dispex.h>

#include "runtime/RuntimeError.h"
#include "windows/com/Failures.h"

namespace plotsmith::com {

using runtime::RuntimeError;

namespace {

std::uint64_t calls = 0;
std::uint64_t changes = 0;

/// The locale of every call is English (United States): names, texts and formulas are in English for every
/// user.
constexpr LCID kEnglish = 0x0409;

/// Returns the address of the object's table of virtual functions, which is its first field. All objects of a
/// class share one table.
const void* ClassOf(IDispatch& object) { return *reinterpret_cast<const void* const*>(&object); }

/// Returns true for objects of scripts, each of which numbers its members in its own order.
bool NumbersItsOwnMembers(IDispatch& object) {
  return static_cast<bool>(ComPtr<IDispatch>(&object).As<IDispatchEx>());
}

/// The invoke flags of Automation for a kind of call.
WORD FlagsOf(Kind kind) {
  switch (kind) {
    case Kind::kGet:
      return DISPATCH_PROPERTYGET;
    case Kind::kPut:
      return DISPATCH_PROPERTYPUT;
    default:
      return DISPATCH_METHOD;
  }
}

/// Returns true if a server has refused a call because it is busy. The server has done nothing then.
bool IsBusy(HRESULT result) {
  constexpr auto kSuspended = static_cast<HRESULT>(0x800AC472);  // Excel with an open dialog or cell
  return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER || result == kSuspended;
}

/// Waits between attempts at a call, for two seconds in all. After that, calls to a busy server fail at once
/// until the server accepts one. Otherwise a run of a thousand calls could wait for half an hour.
class Waiting {
 public:
  /// Returns false if no time is left.
  bool WaitOnce() {
    constexpr DWORD kStep = 100, kMost = 2000;  // milliseconds
    if (waited_ >= kMost) return false;
    waited_ += kStep;
    // No code sets the event. The wait serves incoming calls, which the server may depend on.
    HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    if (event == nullptr) return false;
    DWORD index = 0;
    if (CoWaitForMultipleHandles(0, kStep, 1, &event, &index) != RPC_S_CALLPENDING) Sleep(kStep);
    CloseHandle(event);
    return true;
  }
  void Taken() { waited_ = 0; }

 private:
  DWORD waited_ = 0;
} waiting;

/// Asks an object for the number of a member. Repeats the question while the server is busy. An answer
/// doesn't show that the server accepts calls, because the client's side of COM may know the number.
HRESULT LookUp(IDispatch& object, const wchar_t* name, WhenBusy whenBusy, DISPID& id) {
  auto* text = const_cast<wchar_t*>(name);
  while (true) {
    const HRESULT result = object.GetIDsOfNames(IID_NULL, &text, 1, kEnglish, &id);
    if (!IsBusy(result) || whenBusy == WhenBusy::kFail || !waiting.WaitOnce()) return result;
    ++changes;  // Incoming calls may have changed anything meanwhile.
  }
}

/// Application.Run takes the most arguments: the macro's name and thirty arguments of the macro.
constexpr std::size_t kMostArguments = 31;

/// The arguments of one call in Automation's order, the last one first. The VARIANTs still belong to the
/// caller.
struct Parameters {
  explicit Parameters(std::span<const OwnedVariant> arguments, Kind kind) {
    if (arguments.size() > kMostArguments) throw RuntimeError(runtime::error::kArgumentCount);
    std::transform(arguments.rbegin(), arguments.rend(), values.begin(),
                   [](const OwnedVariant& argument) { return argument.Get(); });
    passed.rgvarg = values.data();
    passed.cArgs = static_cast<UINT>(arguments.size());
    if (kind != Kind::kPut) return;
    passed.rgdispidNamedArgs = &valueName;
    passed.cNamedArgs = 1;
  }

  std::array<VARIANT, kMostArguments> values;
  DISPID valueName = DISPID_PROPERTYPUT;
  DISPPARAMS passed{};
};

}  // namespace

DISPID Member::IdOn(IDispatch& object, WhenBusy whenBusy) {
  if (class_ == ClassOf(object)) return id_;
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = LookUp(object, name_, whenBusy, id);
  if (FAILED(result)) throw ErrorOf(result);
  if (!NumbersItsOwnMembers(object)) {
    class_ = ClassOf(object);
    id_ = id;
  }
  return id;
}

namespace {

/// Calls a member by its number.
OwnedVariant CallById(IDispatch& object, DISPID id, Kind kind, std::span<const OwnedVariant> arguments,
                      WhenBusy whenBusy) {
  Parameters parameters(arguments, kind);
  if (kind == Kind::kPut || kind == Kind::kMethod) ++changes;
  OwnedVariant answer;
  while (true) {
    ++calls;
    EXCEPINFO exception{};
    const HRESULT result = object.Invoke(id, IID_NULL, kEnglish, FlagsOf(kind), &parameters.passed,
                                         kind == Kind::kPut ? nullptr : answer.Put(), &exception, nullptr);
    const bool thrown = result == DISP_E_EXCEPTION;
    // A method that fails with such a code may have done part of its work, for example a macro that passes
    // the code on. It isn't repeated.
    const bool busy = thrown ? kind != Kind::kMethod && IsBusy(exception.scode) : IsBusy(result);
    if (!busy) waiting.Taken();
    if (SUCCEEDED(result)) return answer;
    const RuntimeError failure = thrown ? ErrorOf(exception) : ErrorOf(result);
    if (!busy || whenBusy == WhenBusy::kFail || !waiting.WaitOnce()) throw failure;
    ++changes;  // Incoming calls may have changed anything meanwhile.
  }
}

}  // namespace

OwnedVariant Call(IDispatch* object, Member& member, Kind kind, std::span<const OwnedVariant> arguments,
                  WhenBusy whenBusy) {
  if (object == nullptr) throw RuntimeError(runtime::error::kObjectNotSet);
  return CallById(*object, member.IdOn(*object, whenBusy), kind, arguments, whenBusy);
}

OwnedVariant CallDefault(IDispatch* object) {
  if (object == nullptr) throw RuntimeError(runtime::error::kObjectNotSet);
  return CallById(*object, DISPID_VALUE, Kind::kGet, {}, WhenBusy::kWait);
}

bool HasMember(IDispatch* object, const wchar_t* name) {
  if (object == nullptr) return false;
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = LookUp(*object, name, WhenBusy::kWait, id);
  if (IsBusy(result)) throw ErrorOf(result);
  return SUCCEEDED(result);
}

std::uint64_t CallCount() { return calls; }
std::uint64_t ChangeCount() { return changes; }
void NoteChange() { ++changes; }

}  // namespace plotsmith::com
