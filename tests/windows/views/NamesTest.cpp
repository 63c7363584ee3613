#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "runtime/Strings.h"
#include "tests/support/Paths.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/WindowState.h"
#include "windows/com/Texts.h"

// Define the GUIDs of the annotations, which must be variables in one file of the program.
#include <oleacc.h>

namespace plotsmith {
namespace {

using S = std::string;

constexpr CLSID kAccPropServices = {
    0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};

/// The annotations of a window.
struct Told {
  S name, description;
  LONG role = 0;
};

/// An annotation service that records the annotations. Wine's service does nothing.
class Service final : public IAccPropServices {
 public:
  std::map<HWND, Told> told;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IAccPropServices ? this : nullptr;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE SetHwndPropStr(HWND window, DWORD, DWORD, MSAAPROPID property,
                                           LPCWSTR text) override {
    Told& of = told[window];
    (property == PROPID_ACC_NAME ? of.name : of.description) = com::Utf8(text, wcslen(text));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetHwndProp(HWND window, DWORD, DWORD, MSAAPROPID, VARIANT value) override {
    told[window].role = value.lVal;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID*, int) override {
    told.erase(window);
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                          AnnoScope) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                              AnnoScope) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                               AnnoScope) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
    return E_NOTIMPL;
  }
};

/// Replaces the system's service while it exists.
class Factory final : public IClassFactory {
 public:
  explicit Factory(Service& service) : service_(service) {
    CoRegisterClassObject(kAccPropServices, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_);
  }
  ~Factory() { CoRevokeClassObject(cookie_); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
    return service_.QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Service& service_;
  DWORD cookie_ = 0;
};

/// Returns the role of a kind of control in the desktop's list.
S RoleOf(const S& kind) {
  const std::map<S, S> roles = {{"Frame", "Grouping"},           {"TextBox", "EditableText"},
                                {"OptionButton", "RadioButton"}, {"ListBox", "List"},
                                {"Label", "StaticText"},         {"Image", "Client"},
                                {"CommandButton", "Button"},     {"VSFlexGrid", "Table"}};
  const auto found = roles.find(kind);
  return found == roles.end() ? kind : found->second;  // ComboBox, CheckBox
}

/// Returns the lines for the controls of a page in the desktop's list, each as role, name and description. A
/// combo box has its current entry as the name there, and its own name as the description.
std::multiset<S> DesktopNames(const S& page) {
  std::ifstream file(S(test::kSourceFolder) + "/tests/qt/wizard/golden/" + page + ".txt");
  std::multiset<S> lines;
  for (S line; std::getline(file, line);) {
    std::istringstream words(line);
    S role;
    words >> role;
    const auto from = line.find('"'), to = line.find("\" (", from + 1);
    const S name = line.substr(from + 1, line.find('"', from + 1) - from - 1);
    if (name.empty() || role == "ScrollBar" || line[0] != ' ') continue;
    const S description = to == S::npos ? "" : line.substr(to + 3, line.rfind(')') - to - 3);
    if (role == "ComboBox") {
      lines.insert(role + ": " + (description.empty() ? name : description));
    } else {
      lines.insert(role + ": " + name + " / " + description);
    }
  }
  return lines;
}

class NamesTest : public test::DialogTest {};

TEST_F(NamesTest, ScreenReadersGetTheSameTextsAsOnTheDesktop) {
  Service service;
  const Factory factory(service);
  for (const test::Way& way : test::kWays) {
    SCOPED_TRACE(way.page);
    const auto look = [&] {
      std::multiset<S> lines;
      for (const auto& control : test::StateOfWindow(test::FrontWindow()).controls) {
        const Told& told = service.told.at(test::ControlWindow(test::FrontWindow(), control.name));
        const S role = RoleOf(control.kind);
        const HWND edit = GetWindow(test::ControlWindow(test::FrontWindow(), control.name), GW_CHILD);
        if (control.kind == "ComboBox" && edit != nullptr) {
          EXPECT_EQ(service.told[edit].name, told.name) << "the focus is in the box inside";
        }
        EXPECT_EQ(told.role, control.kind == "Image" ? ROLE_SYSTEM_GRAPHIC : 0) << control.name;
        lines.insert(role == "ComboBox" ? role + ": " + told.name
                                        : role + ": " + told.name + " / " + told.description);
      }
      EXPECT_EQ(lines, DesktopNames(way.page));
      test::EndAction();
    };
    EXPECT_EQ(PlayOnOrders(way.lines + "do look", {{"look", look}}), "");
    EXPECT_EQ(service.told.size(), 0u) << "destroyed windows are removed";
  }
}

/// Returns the name of a window as a screen reader requests it.
S NameOf(HWND window) {
  IAccessible* object = nullptr;
  const DWORD client = static_cast<DWORD>(OBJID_CLIENT);
  if (FAILED(AccessibleObjectFromWindow(window, client, __uuidof(IAccessible),
                                        reinterpret_cast<void**>(&object)))) {
    return "no object";
  }
  VARIANT self = {};
  self.vt = VT_I4;
  com::OwnedBstr name;
  object->get_accName(self, name.Put());
  object->Release();
  return com::Utf8(name);
}

// If the system has no annotations, a screen reader knows only the windows' own texts.
TEST_F(NamesTest, WindowsHaveTheirCaptions) {
  for (const test::Way& way : test::kWays) {
    const auto look = [&] {
      for (const auto& control : test::StateOfWindow(test::FrontWindow()).controls) {
        if (!control.caption) continue;
        EXPECT_EQ(NameOf(test::ControlWindow(test::FrontWindow(), control.name)),
                  runtime::Replace(*control.caption, "&", ""))
            << way.page << " " << control.name;
      }
      test::EndAction();
    };
    EXPECT_EQ(PlayOnOrders(way.lines + "do look", {{"look", look}}), "");
  }
}

}  // namespace
}  // namespace plotsmith
