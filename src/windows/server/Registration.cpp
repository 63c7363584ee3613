#include "windows/server/Registration.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "PlotsmithInterface.h"
#include "windows/server/Module.h"

namespace plotsmith::windows {
namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes";
constexpr const wchar_t* kName = L"Plotsmith.CPlotsmithController";
constexpr const wchar_t* kVersionedName = L"Plotsmith.CPlotsmithController.1";
constexpr const wchar_t* kTitle = L"Plotsmith's controller";
constexpr const wchar_t* kVersion = L"1.0";
/// The class of OLE Automation that marshals the calls of all dual interfaces between apartments.
constexpr const wchar_t* kAutomationProxy = L"{00020424-0000-0000-C000-000000000046}";
#ifdef _WIN64
constexpr const wchar_t* kPlatform = L"win64";
constexpr const wchar_t* kOtherPlatform = L"win32";
constexpr REGSAM kOtherView = KEY_WOW64_32KEY;
#else
constexpr const wchar_t* kPlatform = L"win32";
constexpr const wchar_t* kOtherPlatform = L"win64";
constexpr REGSAM kOtherView = KEY_WOW64_64KEY;
#endif

/// A text value and the key that holds it, below Software\Classes. An empty name is the key's default value.
struct Entry {
  std::wstring key;
  std::wstring name;
  std::wstring text;
};

std::wstring TextOf(REFGUID id) {
  wchar_t text[40];
  const int length = StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  return {text, static_cast<std::size_t>(length - 1)};
}

std::wstring ClassKey() { return L"CLSID\\" + TextOf(CLSID_CPlotsmithController); }
std::wstring InterfaceKey() { return L"Interface\\" + TextOf(IID_IPlotsmithController); }
std::wstring LibraryKey() { return L"TypeLib\\" + TextOf(LIBID_Plotsmith); }
/// Returns the key of the type library's path for a kind of DLL; 0 is the neutral language.
std::wstring PlatformKey(const wchar_t* platform) {
  return LibraryKey() + L"\\" + kVersion + L"\\0\\" + platform;
}

std::vector<Entry> Entries() {
  const std::wstring path = ModulePath();
  const std::wstring folder = path.substr(0, path.find_last_of(L'\\'));
  const std::wstring classId = TextOf(CLSID_CPlotsmithController);
  const std::wstring libraryId = TextOf(LIBID_Plotsmith);
  const std::wstring version = LibraryKey() + L"\\" + kVersion;
  return {
      {ClassKey(), L"", kTitle},
      {ClassKey() + L"\\InprocServer32", L"", path},
      {ClassKey() + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {ClassKey() + L"\\ProgID", L"", kVersionedName},
      {ClassKey() + L"\\VersionIndependentProgID", L"", kName},
      {ClassKey() + L"\\TypeLib", L"", libraryId},
      {ClassKey() + L"\\Version", L"", kVersion},
      {ClassKey() + L"\\Programmable", L"", L""},
      {kVersionedName, L"", kTitle},
      {std::wstring(kVersionedName) + L"\\CLSID", L"", classId},
      {kName, L"", kTitle},
      {std::wstring(kName) + L"\\CLSID", L"", classId},
      {std::wstring(kName) + L"\\CurVer", L"", kVersionedName},
      {version, L"", L"Brindle Plotsmith"},
      {version + L"\\FLAGS", L"", L"0"},
      {version + L"\\HELPDIR", L"", folder},
      {PlatformKey(kPlatform), L"", path},
      {InterfaceKey(), L"", L"IPlotsmithController"},
      {InterfaceKey() + L"\\ProxyStubClsid32", L"", kAutomationProxy},
      {InterfaceKey() + L"\\TypeLib", L"", libraryId},
      {InterfaceKey() + L"\\TypeLib", L"Version", kVersion},
  };
}

/// The registered classes of all users or of one user.
class Classes {
 public:
  explicit Classes(RegistrationScope scope)
      : root_(scope == RegistrationScope::kUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE) {}

  LSTATUS Write(const Entry& entry) const {
    HKEY key = nullptr;
    LSTATUS status = RegCreateKeyExW(root_, PathOf(entry.key).c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                                     &key, nullptr);
    if (status != ERROR_SUCCESS) return status;
    const auto bytes = static_cast<DWORD>((entry.text.size() + 1) * sizeof(wchar_t));
    status = RegSetValueExW(key, entry.name.c_str(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(entry.text.c_str()), bytes);
    RegCloseKey(key);
    return status;
  }

  /// Returns the text of a value; absent if there is none, or if the value isn't a text.
  std::optional<std::wstring> Read(const Entry& entry) const {
    DWORD bytes = 0;
    const std::wstring path = PathOf(entry.key);
    if (RegGetValueW(root_, path.c_str(), entry.name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &bytes) !=
        ERROR_SUCCESS) {
      return std::nullopt;
    }
    std::wstring text(bytes / sizeof(wchar_t), L'\0');
    if (RegGetValueW(root_, path.c_str(), entry.name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &bytes) !=
        ERROR_SUCCESS) {
      return std::nullopt;
    }
    text.resize(bytes / sizeof(wchar_t) - 1);  // the terminating zero
    return text;
  }

  void RemoveValue(const Entry& entry) const {
    RegDeleteKeyValueW(root_, PathOf(entry.key).c_str(), entry.name.c_str());
  }

  /// Returns true if the key exists. `view` is KEY_WOW64_32KEY or KEY_WOW64_64KEY for the keys that 32-bit or
  /// 64-bit programs see, and 0 for the keys of this DLL.
  bool Has(const std::wstring& key, REGSAM view = 0) const {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root_, PathOf(key).c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS) return false;
    RegCloseKey(opened);
    return true;
  }

  /// Removes a key and its subkeys. It also succeeds if the key doesn't exist.
  LSTATUS Remove(const std::wstring& key) const {
    const LSTATUS status = RegDeleteTreeW(root_, PathOf(key).c_str());
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
  }

  /// Removes a key if it is empty, for example the list of classes of a user who had none.
  void RemoveIfEmpty(const std::wstring& key) const {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root_, PathOf(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
    DWORD keys = 1;
    DWORD values = 1;
    RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                     nullptr, nullptr);
    RegCloseKey(opened);
    if (keys == 0 && values == 0) RegDeleteKeyW(root_, PathOf(key).c_str());
  }

 private:
  static std::wstring PathOf(const std::wstring& key) {
    return key.empty() ? kClasses : kClasses + (L"\\" + key);
  }

  HKEY root_;
};

/// The values of the classes before a change, to restore them.
class Remembered {
 public:
  explicit Remembered(const Classes& classes) : classes_(classes) {
    if (!classes_.Has(L"")) newKeys_.push_back(L"");
  }

  /// Keeps the entry's value. Call it before the entry is written.
  void Remember(const Entry& entry) {
    for (std::size_t end = 0; end != std::wstring::npos;) {
      end = entry.key.find(L'\\', end + 1);
      const std::wstring key = entry.key.substr(0, end);
      if (!classes_.Has(key)) newKeys_.push_back(key);
    }
    values_.push_back({entry, classes_.Read(entry)});
  }

  /// Restores the values that existed and removes the others.
  void PutBack() const {
    for (const auto& [entry, text] : values_) {
      if (text) {
        classes_.Write({entry.key, entry.name, *text});
      } else {
        classes_.RemoveValue(entry);
      }
    }
    for (auto key = newKeys_.rbegin(); key != newKeys_.rend(); ++key) classes_.RemoveIfEmpty(*key);
  }

 private:
  const Classes& classes_;
  std::vector<std::wstring> newKeys_;  ///< parent keys before their subkeys
  std::vector<std::pair<Entry, std::optional<std::wstring>>> values_;
};

}  // namespace

HRESULT RegisterServer(RegistrationScope scope) {
  const Classes classes(scope);
  Remembered before(classes);
  for (const Entry& entry : Entries()) {
    before.Remember(entry);
    const LSTATUS status = classes.Write(entry);
    if (status != ERROR_SUCCESS) {
      before.PutBack();
      return HRESULT_FROM_WIN32(status);
    }
  }
  return S_OK;
}

HRESULT UnregisterServer(RegistrationScope scope) {
  const Classes classes(scope);
  LSTATUS first = ERROR_SUCCESS;
  const auto remove = [&](const std::wstring& key) {
    const LSTATUS status = classes.Remove(key);
    if (first == ERROR_SUCCESS) first = status;
  };
  // The key of this DLL's kind is removed first: if both kinds of programs see the same keys, the key of the
  // other kind is then gone as well.
  remove(ClassKey());
  remove(InterfaceKey());
  remove(PlatformKey(kPlatform));
  // The 32-bit and the 64-bit DLL share the names and the rest of the type library.
  if (!classes.Has(ClassKey(), kOtherView)) {
    remove(kVersionedName);
    remove(kName);
  }
  if (!classes.Has(PlatformKey(kOtherPlatform))) remove(LibraryKey());
  for (const wchar_t* list : {L"CLSID", L"Interface", L"TypeLib", L""}) classes.RemoveIfEmpty(list);
  return HRESULT_FROM_WIN32(first);
}

}  // namespace plotsmith::windows
