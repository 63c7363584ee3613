#include "tests/windows/boxes/Boxes.h"

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "runtime/Variant.h"
#include "tests/windows/boxes/Calls.h"
#include "tests/windows/boxes/MessageBoxes.h"
#include "tests/windows/boxes/MonkeyHands.h"
#include "tests/windows/boxes/PressingHand.h"
#include "tests/windows/boxes/ScriptedHands.h"
#include "tests/windows/support/Exceptions.h"
#include "windows/com/Failures.h"
#include "windows/com/Texts.h"
#include "windows/com/Values.h"

namespace plotsmith::test {
namespace {

using com::OwnedVariant;
using runtime::Variant;

HWND NewWindow() {
  const HWND window = CreateWindowExW(0, L"STATIC", L"A window of the host", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                      0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
  if (window == nullptr) throw runtime::RuntimeError(runtime::error::kAutomation, "There are no windows.");
  return window;
}

/// Returns the number of kernel handles of the process. Wine's GetProcessHandleCount doesn't count them.
int KernelHandles() {
  int count = 0;
  for (std::uintptr_t handle = 4; handle < 0x10000; handle += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
  }
  return count;
}

/// Returns the number of GDI objects of the process. Wine's GetGuiResources doesn't count them, but Wine
/// finds an object by the lower half of its handle.
int GdiObjects() {
  int count = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
  if (count != 0) return count;
  for (std::uintptr_t handle = 1; handle < 0x10000; ++handle) {
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
  }
  return count;
}

/// Returns the number of windows and menus of the process, in the same way.
int UserObjects() {
  int count = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
  if (count != 0) return count;
  for (std::uintptr_t handle = 2; handle < 0x10000; handle += 2) {
    DWORD process = 0;
    GetWindowThreadProcessId(reinterpret_cast<HWND>(handle), &process);
    if (process == GetCurrentProcessId() || IsMenu(reinterpret_cast<HMENU>(handle))) ++count;
  }
  return count;
}

std::string ResourceCounts() {
  return std::to_string(KernelHandles()) + " handles, " + std::to_string(GdiObjects()) + " GDI objects, " +
         std::to_string(UserObjects()) + " USER objects";
}

/// Makes a registry key for all users that exists only during the session. It can't contain keys that
/// persist.
void MakeVolatileKey(const std::string& path) {
  HKEY key = nullptr;
  const LSTATUS status = RegCreateKeyExW(HKEY_LOCAL_MACHINE, com::Wide(path).c_str(), 0, nullptr,
                                         REG_OPTION_VOLATILE, KEY_READ, nullptr, &key, nullptr);
  if (status != ERROR_SUCCESS) throw com::ErrorOf(HRESULT_FROM_WIN32(status));
  RegCloseKey(key);
}

com::ComPtr<IDispatch> NewObject(const std::string& progId) {
  CLSID classId;
  com::ComPtr<IDispatch> object;
  HRESULT result = CLSIDFromProgID(com::Wide(progId).c_str(), &classId);
  if (SUCCEEDED(result)) {
    result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                              reinterpret_cast<void**>(object.Put()));
  }
  if (FAILED(result)) throw com::ErrorOf(result);
  return object;
}

/// The object that scripts see. Its members are in the table `kMembers`.
class Boxes final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* sent, VARIANT* result,
                      EXCEPINFO* exception, UINT*) override;

 private:
  struct Member {
    const char* name;
    OwnedVariant (*call)(Boxes& boxes, const DISPPARAMS& sent);
  };
  static const Member kMembers[];

  /// Returns an argument by its position from the end, from 0, because arguments are passed in reverse order.
  static const VARIANT& Last(const DISPPARAMS& sent, UINT position) {
    if (position >= sent.cArgs) throw runtime::RuntimeError(450, "Wrong number of arguments");
    return sent.rgvarg[position];
  }
  static std::string Text(const DISPPARAMS& sent, UINT position) {
    return CStr(com::FromVariant(Last(sent, position)));
  }
  /// JScript's null also means no object.
  static com::ComPtr<IDispatch> Object(const DISPPARAMS& sent, UINT position) {
    const VARIANT& object = Last(sent, position);
    return object.vt == VT_NULL ? nullptr : com::ObjectOf(object);
  }

  std::atomic<ULONG> references_ = 1;
  MessageBoxes boxes_;
  std::unique_ptr<ScriptedHands> hands_;
  std::unique_ptr<MonkeyHands> monkey_;
  std::unique_ptr<PressingHand> pressingHand_;
  HWND window_ = nullptr;
  com::ComPtr<IDispatch> controller_;
};

const Boxes::Member Boxes::kMembers[] = {
    // Cancel(): answers the next box with Cancel.
    {"Cancel",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       boxes.boxes_.AnswerNext(IDCANCEL);
       return {};
     }},
    // Take(): returns the boxes since the last call (see MessageBoxes).
    {"Take",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       return com::ToVariant(Variant(boxes.boxes_.Take()));
     }},
    // PlayScript(script): lets a script of the wizard operate dialogs and boxes from now on (see
    // ScriptedHands).
    {"PlayScript",
     [](Boxes& boxes, const DISPPARAMS& sent) -> OwnedVariant {
       boxes.hands_ = std::make_unique<ScriptedHands>(Text(sent, 0));
       boxes.boxes_.AnswerBy([&boxes](const std::string& text, bool isQuestion) {
         return boxes.hands_->AnswerBox(text, isQuestion);
       });
       return {};
     }},
    // FinishScript(): returns the failure, a line feed, and the output of the script.
    {"FinishScript",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       boxes.boxes_.AnswerBy({});
       const auto hands = std::exchange(boxes.hands_, nullptr);
       const std::string failure = hands->Finish();
       return com::ToVariant(Variant(failure + "\n" + hands->Shown()));
     }},
    // PlayMonkey(seed, events): sends random input to dialogs and boxes from now on (see MonkeyHands).
    {"PlayMonkey",
     [](Boxes& boxes, const DISPPARAMS& sent) -> OwnedVariant {
       const auto number = [&](UINT position) { return CDbl(com::FromVariant(Last(sent, position))); };
       boxes.monkey_ =
           std::make_unique<MonkeyHands>(static_cast<unsigned>(number(1)), static_cast<int>(number(0)));
       boxes.boxes_.AnswerBy([&boxes](const std::string&, bool isQuestion) {
         return boxes.monkey_->AnswerBox(isQuestion);
       });
       return {};
     }},
    // FinishMonkey(): returns the number of events that were sent.
    {"FinishMonkey",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       boxes.boxes_.AnswerBy({});
       const auto monkey = std::exchange(boxes.monkey_, nullptr);
       return com::ToVariant(Variant(static_cast<std::int32_t>(monkey->Made())));
     }},
    // PressEachPage("PAGE BUTTON PAGE BUTTON ..."): presses a button on each page that opens. StopPressing():
    // returns the number of presses.
    {"PressEachPage",
     [](Boxes& boxes, const DISPPARAMS& sent) -> OwnedVariant {
       std::istringstream words(Text(sent, 0));
       std::map<std::string, std::string> buttons;
       for (std::string page, button; words >> page >> button;) buttons[page] = button;
       boxes.pressingHand_ = std::make_unique<PressingHand>(std::move(buttons));
       return {};
     }},
    {"StopPressing",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       const auto hand = std::exchange(boxes.pressingHand_, nullptr);
       return com::ToVariant(Variant(hand->Presses()));
     }},
    // LateBound(controller, call, application) and EarlyBound: see Calls.h.
    {"LateBound",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       return com::ToVariant(
           Variant(CallLateBound(Object(sent, 2).Get(), Text(sent, 1), Object(sent, 0).Get())));
     }},
    {"EarlyBound",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       return com::ToVariant(
           Variant(CallEarlyBound(Object(sent, 2).Get(), Text(sent, 1), Object(sent, 0).Get())));
     }},
    {"Describe",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       return com::ToVariant(Variant(Describe(Object(sent, 0).Get())));
     }},
    // WithStackOf(kilobytes, function)
    {"WithStackOf",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       CallWithStackOf(static_cast<unsigned>(CDbl(com::FromVariant(Last(sent, 1)))), Object(sent, 0).Get());
       return {};
     }},
    {"RefreshOnOtherThread",
     [](Boxes&, const DISPPARAMS&) -> OwnedVariant {
       return com::ToVariant(Variant(RefreshOnOtherThread()));
     }},
    // Create(progID): like CreateObject. Wine's own function never releases the class object.
    {"Create",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       return com::ToVariant(NewObject(Text(sent, 0)).Get());
     }},
    // Refresh(application): refreshes with a controller of this object, which has the only reference to it.
    // Release() releases that reference, also during the call.
    {"Refresh",
     [](Boxes& boxes, const DISPPARAMS& sent) -> OwnedVariant {
       boxes.controller_ = NewObject("Plotsmith.CPlotsmithController");
       return com::ToVariant(Variant(
           CallLateBound(boxes.controller_.Get(), "RefreshPlotsmithData|o|s:|s:", Object(sent, 0).Get())));
     }},
    {"Release",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       boxes.controller_.Reset();
       return {};
     }},
    // Nothing(): returns an unset object reference, which JScript doesn't have.
    {"Nothing",
     [](Boxes&, const DISPPARAMS&) -> OwnedVariant {
       return com::ToVariant(static_cast<IDispatch*>(nullptr));
     }},
    // Resources(): returns the numbers of handles and system objects of the process.
    {"Resources",
     [](Boxes&, const DISPPARAMS&) -> OwnedVariant { return com::ToVariant(Variant(ResourceCounts())); }},
    // MakeVolatileKey(path)
    {"MakeVolatileKey",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       MakeVolatileKey(Text(sent, 0));
       return {};
     }},
    // FreeUnusedLibraries(), and IsLoaded(library)
    {"FreeUnusedLibraries",
     [](Boxes&, const DISPPARAMS&) -> OwnedVariant {
       CoFreeUnusedLibrariesEx(0, 0);
       return {};
     }},
    {"IsLoaded",
     [](Boxes&, const DISPPARAMS& sent) -> OwnedVariant {
       return com::ToVariant(Variant(GetModuleHandleW(com::Wide(Text(sent, 0)).c_str()) != nullptr));
     }},
    // Window(): returns the handle of a window of this thread, which is made at the first call;
    // WindowIsEnabled().
    {"Window",
     [](Boxes& boxes, const DISPPARAMS&) -> OwnedVariant {
       if (boxes.window_ == nullptr) boxes.window_ = NewWindow();
       return com::ToVariant(
           Variant(static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(boxes.window_))));
     }},
    {"WindowIsEnabled",
     [](Boxes& boxes, const DISPPARAMS&)
         -> OwnedVariant { return com::ToVariant(Variant(IsWindowEnabled(boxes.window_) != 0)); }},
};

HRESULT Boxes::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
  const std::string name = com::Utf8(names[0], wcslen(names[0]));
  for (const Member& member : kMembers) {
    if (!runtime::EqualsIgnoreCase(member.name, name)) continue;
    ids[0] = static_cast<DISPID>(&member - kMembers) + 1;
    return S_OK;
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT Boxes::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* sent, VARIANT* result,
                      EXCEPINFO* exception, UINT*) {
  if (member < 1 || member > static_cast<DISPID>(std::size(kMembers))) return DISP_E_MEMBERNOTFOUND;
  try {
    OwnedVariant answer = kMembers[member - 1].call(*this, *sent);
    if (result != nullptr) *result = answer.Detach();
    return S_OK;
  } catch (...) {
    return FillException(runtime::CurrentError(), exception);
  }
}

}  // namespace

IDispatch* NewBoxes() { return new Boxes; }

}  // namespace plotsmith::test
