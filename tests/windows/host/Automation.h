#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/excel/Excel.h"
#include "windows/com/ComPtr.h"
#include "windows/com/Values.h"
#include "xlsx/Application.h"

/// Presents the embedded host as Excel: its objects have IDispatch. The tables of src/windows/excel/members
/// define both these COM objects and the proxies.
namespace plotsmith::automation {

using excel::Ref;

/// An embedded host, with additional members for scripts.
struct Host {
  std::shared_ptr<xlsx::Application> application = xlsx::Application::Create();
  std::string path;      ///< The path of the open workbook.
  std::string journal;   ///< The journal since it was opened. Each line ends with a line feed.
  bool editing = false;  ///< Whether a cell is being edited, so that Interactive can't be set.
  std::map<std::string, com::ComPtr<IDispatch>> macros;
  /// The formulas of cells, which the embedded host doesn't have, by row and column of any sheet.
  std::map<std::pair<std::int32_t, std::int32_t>, std::string> formulas;
  /// The COM object of the open workbook while it exists: as in Excel, a workbook is always the same object.
  IDispatch* workbook = nullptr;
  bool displayFormulas = false;  ///< cells show their formulas

  /// The way to call a member that is faulty, such as "Series.Values read", and its fault; see FaultyResult.
  /// The way is empty if there is none.
  std::string faultyWay, fault;
  com::ComPtr<IDispatch> callback;  ///< called by a member with the fault "calls back"
};
using HostPtr = std::shared_ptr<Host>;

/// The number of calls to all objects, and the number of objects.
struct Counts {
  std::atomic<std::int32_t> calls = 0;
  std::atomic<std::int32_t> unsure =
      0;  ///< Calls that don't specify whether they read a property or call a method.
  std::atomic<std::int32_t> objects = 0;
};
extern Counts counts;

/// The arguments of a call, in order. The caller owns them.
class Arguments {
 public:
  explicit Arguments(const DISPPARAMS& sent);

  /// The number of arguments, without omitted ones at the end.
  std::size_t Count() const { return count_; }
  /// Returns an argument. Arguments after the last one count as omitted.
  const VARIANT& operator[](std::size_t i) const;

 private:
  const DISPPARAMS& sent_;
  std::size_t count_;
};

/// A way to call a member of a T: reading or writing a property, or calling a method.
template <class T>
struct Way {
  std::wstring name;
  WORD kind;          ///< An invoke kind of Automation.
  std::size_t least;  ///< The number of arguments, including the value of a property that is written.
  std::size_t most;
  std::function<bool(const Arguments&)>
      accepts;  ///< Distinguishes ways with the same name; null accepts all.
  std::function<com::OwnedVariant(T&, const Arguments&, const HostPtr&)> call;
  mutable bool called = false;
};

/// The name of a way, such as "Series.Values read".
std::string NameOf(const std::string& className, const std::wstring& member, WORD kind);

/// The members of a T.
template <class T>
class Table {
 public:
  /// `className` is Excel's name of T.
  explicit Table(std::string className) : className_(std::move(className)) {}

  void Add(Way<T> way) {
    if (IdOf(way.name) == DISPID_UNKNOWN) names_.push_back(way.name);
    ways_.push_back(std::move(way));
  }
  /// Returns the id of a member by name, ignoring case, or DISPID_UNKNOWN. The member Item is the default
  /// member.
  DISPID IdOf(const std::wstring& name) const;
  /// Returns the way to call a member, or null if it can't be called in this way.
  const Way<T>* Find(DISPID id, WORD kinds, const Arguments& arguments) const;
  const std::vector<Way<T>>& Ways() const { return ways_; }
  std::string NameOf(const Way<T>& way) const { return automation::NameOf(className_, way.name, way.kind); }

 private:
  std::string className_;
  std::vector<std::wstring> names_;
  std::vector<Way<T>> ways_;
};

/// Returns the table of a class, which is made at the first call.
template <class T>
const Table<T>& TableOf();

/// A COM object that isn't thread-safe, like all objects of an apartment.
class Dispatch : public IDispatch {
 public:
  Dispatch() { ++counts.objects; }
  virtual ~Dispatch() { --counts.objects; }
  Dispatch(const Dispatch&) = delete;
  Dispatch& operator=(const Dispatch&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* sent, VARIANT* answer,
                                   EXCEPINFO* exception, UINT* wrong) noexcept override;

 private:
  virtual DISPID IdOf(const std::wstring& name) const = 0;
  /// Performs a call. Throws RuntimeError, or an HRESULT for a call that the object doesn't support.
  virtual com::OwnedVariant Called(DISPID id, WORD kinds, const Arguments& arguments) = 0;

  ULONG references_ = 1;
};

/// An object of the host as IDispatch.
template <class T>
class ComObject final : public Dispatch {
 public:
  ComObject(Ref<T> object, HostPtr host) : host_(std::move(host)), object_(std::move(object)) {}
  ~ComObject() override {
    if (host_->workbook == this) host_->workbook = nullptr;
  }

  const Ref<T>& Object() const { return object_; }

 private:
  DISPID IdOf(const std::wstring& name) const override { return TableOf<T>().IdOf(name); }
  com::OwnedVariant Called(DISPID id, WORD kinds, const Arguments& arguments) override;

  HostPtr host_;  // The host outlives the object, because the object is destroyed first.
  Ref<T> object_;
};

/// Returns the result of a faulty member by its fault: an error, "Null", "Empty", "Nothing", a number, a
/// text, an object of another class, or an array; absent if it calls back first and then returns the usual
/// result.
std::optional<com::OwnedVariant> FaultyResult(const HostPtr& host);

/// Calls the default member of an object with arguments that a property itself doesn't have: Sheets("A").
com::OwnedVariant ItemOf(const com::OwnedVariant& collection, const Arguments& arguments);

/// Returns an object as IDispatch; Nothing for null.
template <class T>
com::OwnedVariant Answer(const Ref<T>& object, const HostPtr& host) {
  if (!object) return com::ToVariant(static_cast<IDispatch*>(nullptr));
  if constexpr (std::is_same_v<T, excel::Workbook>) {
    const auto* known = dynamic_cast<ComObject<T>*>(host->workbook);
    if (known != nullptr && known->Object().shared() == object.shared())
      return com::ToVariant(host->workbook);
  }
  const auto comObject = com::ComPtr<IDispatch>::Attach(new ComObject<T>(object, host));
  if constexpr (std::is_same_v<T, excel::Workbook>) host->workbook = comObject.Get();
  return com::ToVariant(comObject.Get());
}
/// Returns a sheet as IDispatch, as a worksheet if it is one.
com::OwnedVariant Answer(const Ref<excel::Sheet>& sheet, const HostPtr& host);
inline com::OwnedVariant Answer(const excel::Variant& value, const HostPtr&) { return com::ToVariant(value); }
inline com::OwnedVariant Answer(const std::vector<excel::Variant>& values, const HostPtr&) {
  return com::ToArray(values);
}

/// Returns the host's object behind an IDispatch; Nothing for Nothing. Raises error 13 for other objects.
template <class T>
Ref<T> ObjectBehind(const VARIANT& value) {
  const auto object = com::ObjectOf(value);
  if (!object) return nullptr;
  const auto* comObject = dynamic_cast<ComObject<T>*>(object.Get());
  if (comObject == nullptr) throw runtime::RuntimeError(runtime::error::kTypeMismatch);
  return comObject->Object();
}

/// Converts a result of the port to the type in the tables.
template <class T>
using ThePortsType = std::conditional_t<std::is_same_v<T, std::string>, excel::Variant, T>;

/// Returns the result of a member as a COM value.
template <class T, class Member>
com::OwnedVariant Answered(const Member& member, const HostPtr& host) {
  if constexpr (std::is_void_v<T>) {
    member();
    return {};
  } else {
    return Answer(ThePortsType<T>(member()), host);
  }
}

/// Converts an argument to the type of the port.
template <class T>
auto Given(const VARIANT& value) {
  if constexpr (std::is_same_v<T, bool>) {
    return runtime::CBool(com::FromVariant(value));
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return runtime::CLng(com::FromVariant(value));
  } else if constexpr (std::is_same_v<T, double>) {
    return runtime::CDbl(com::FromVariant(value));
  } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, std::string_view>) {
    return runtime::CStr(com::FromVariant(value));
  } else {
    static_assert(std::is_same_v<T, excel::Variant>);
    return com::FromVariant(value);
  }
}

/// Returns true if an argument is a T, in contrast to another way with another type: an index, or a name.
template <class T>
bool IsMeantAs(const VARIANT& value) {
  const bool text = com::FromVariant(value).template Is<std::string>();
  return text == (std::is_same_v<T, std::string> || std::is_same_v<T, std::string_view>);
}

template <class T>
DISPID Table<T>::IdOf(const std::wstring& name) const {
  if (_wcsicmp(name.c_str(), L"Item") == 0) {
    for (const Way<T>& way : ways_) {
      if (way.name == L"Item") return DISPID_VALUE;
    }
  }
  for (std::size_t i = 0; i < names_.size(); ++i) {
    if (_wcsicmp(names_[i].c_str(), name.c_str()) == 0) return static_cast<DISPID>(i) + 1;
  }
  return DISPID_UNKNOWN;
}

template <class T>
const Way<T>* Table<T>::Find(DISPID id, WORD kinds, const Arguments& arguments) const {
  const Way<T>* found = nullptr;
  for (const Way<T>& way : ways_) {
    if ((way.kind & kinds) == 0 || IdOf(way.name) != id) continue;
    const bool fits = arguments.Count() >= way.least && arguments.Count() <= way.most;
    if (fits && (!way.accepts || way.accepts(arguments))) return &way;
    if (found == nullptr) found = &way;
  }
  return found;
}

template <class T>
com::OwnedVariant ComObject<T>::Called(DISPID id, WORD kinds, const Arguments& arguments) {
  const Way<T>* way = TableOf<T>().Find(id, kinds, arguments);
  if (way == nullptr) throw HRESULT{DISP_E_MEMBERNOTFOUND};
  way->called = true;
  if (!host_->faultyWay.empty() && TableOf<T>().NameOf(*way) == host_->faultyWay) {
    if (auto faulty = FaultyResult(host_)) return std::move(*faulty);
  }
  if (arguments.Count() < way->least) throw HRESULT{DISP_E_PARAMNOTOPTIONAL};
  if (arguments.Count() <= way->most) return way->call(*object_, arguments, host_);
  if (way->most > 0 || way->kind == DISPATCH_PROPERTYPUT) throw HRESULT{DISP_E_BADPARAMCOUNT};
  return ItemOf(way->call(*object_, arguments, host_), arguments);
}

}  // namespace plotsmith::automation
