#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "host/excel/Excel.h"
#include "windows/com/Calls.h"
#include "windows/com/ComPtr.h"
#include "windows/com/Proxies.h"
#include "windows/com/Values.h"

/// Implementations of the port's classes that call Excel's own objects by late binding.
namespace plotsmith::proxies {

using excel::Ref;

/// Returns a new proxy of an object; Nothing for null. The proxy holds one reference to the object until its
/// last Ref is gone. An object that is returned twice gets two proxies: for many kinds, Excel itself creates
/// a new object for each call, so comparing objects would mean nothing.
template <class T>
Ref<T> Wrap(com::ComPtr<IDispatch> object);
#define CLASS_NAME(Class) \
  template <>             \
  Ref<excel::Class> Wrap(com::ComPtr<IDispatch> object);
#include "windows/excel/members/Classes.inc"
#undef CLASS_NAME

/// The base of every proxy: one reference to an Excel object.
class ProxyObject {
 public:
  /// Takes over a reference to an Excel object.
  explicit ProxyObject(com::ComPtr<IDispatch> object) : object_(std::move(object)) {}
  virtual ~ProxyObject() = default;

  /// Returns the object. The proxy keeps its reference.
  IDispatch* Object() const { return object_.Get(); }

 private:
  com::ComPtr<IDispatch> object_;
  com::CountedProxy counted_;
};

/// Converts a value to a VARIANT for Excel.
/// @{
inline com::OwnedVariant Passed(const excel::Variant& value) { return com::ToVariant(value); }
inline com::OwnedVariant Passed(com::OwnedVariant value) { return value; }
/// Raises error 13 for an object of another host.
template <class T>
com::OwnedVariant Passed(const Ref<T>& object) {
  if (!object) return com::ToVariant(static_cast<IDispatch*>(nullptr));
  const auto* proxy = dynamic_cast<const ProxyObject*>(object.shared().get());
  if (proxy == nullptr) throw runtime::RuntimeError(runtime::error::kTypeMismatch);
  return com::ToVariant(proxy->Object());
}
///@}

template <class T>
struct IsRef : std::false_type {};
/// True if the type is a Ref.
template <class T>
struct IsRef<Ref<T>> : std::true_type {
  /// The class of the object that it refers to.
  using Class = T;
};

/// Converts a result of Excel to the port's type by the rules of Visual Basic.
template <class T>
T Answer([[maybe_unused]] const com::OwnedVariant& answer) {
  if constexpr (std::is_void_v<T>) {
    return;
  } else if constexpr (IsRef<T>::value) {
    return Wrap<typename IsRef<T>::Class>(com::ObjectOf(answer.Get()));
  } else if constexpr (std::is_same_v<T, std::vector<excel::Variant>>) {
    return com::ListOf(answer.Get());
  } else if constexpr (std::is_same_v<T, bool>) {
    return runtime::CBool(com::FromVariant(answer.Get()));
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return runtime::CLng(com::FromVariant(answer.Get()));
  } else if constexpr (std::is_same_v<T, double>) {
    return runtime::CDbl(com::FromVariant(answer.Get()));
  } else if constexpr (std::is_same_v<T, std::string>) {
    return runtime::CStr(com::FromVariant(answer.Get()));
  } else {
    static_assert(std::is_same_v<T, excel::Variant>);
    return com::FromVariant(answer.Get());
  }
}

/// Calls a member of an object and returns its result as a T.
template <class T, class... Arguments>
T Ask(IDispatch* object, com::Member& member, com::Kind kind, Arguments&&... arguments) {
  const std::array<com::OwnedVariant, sizeof...(Arguments)> passed{
      Passed(std::forward<Arguments>(arguments))...};
  return Answer<T>(com::Call(object, member, kind, passed));
}

/// A proxy of the port's class Base.
template <class Base>
class Proxy : public Base, public ProxyObject {
 public:
  using ProxyObject::ProxyObject;

 protected:
  /// Reads a property and returns it as a T.
  template <class T, class... Arguments>
  T Get(com::Member& member, Arguments&&... arguments) const {
    return Ask<T>(Object(), member, com::Kind::kGet, std::forward<Arguments>(arguments)...);
  }
  /// Sets a property. The new value is the last argument.
  template <class... Arguments>
  void Put(com::Member& member, Arguments&&... arguments) const {
    Ask<void>(Object(), member, com::Kind::kPut, std::forward<Arguments>(arguments)...);
  }
  /// Calls a method without side effects and returns its result as a T.
  template <class T, class... Arguments>
  T Find(com::Member& member, Arguments&&... arguments) const {
    return Ask<T>(Object(), member, com::Kind::kFind, std::forward<Arguments>(arguments)...);
  }
  /// Calls a method and returns its result as a T.
  template <class T, class... Arguments>
  T Method(com::Member& member, Arguments&&... arguments) const {
    return Ask<T>(Object(), member, com::Kind::kMethod, std::forward<Arguments>(arguments)...);
  }
};

/// The parameter type by which the port takes a value that it returns as a T.
template <class T>
struct TakenAs {
  /// The type itself.
  using Type = T;
};
/// A text is passed as a view.
template <>
struct TakenAs<std::string> {
  /// A view, which isn't kept.
  using Type = std::string_view;
};
/// A Variant is passed by reference.
template <>
struct TakenAs<excel::Variant> {
  /// A reference, which isn't kept.
  using Type = const excel::Variant&;
};
template <class T>
/// The parameter type for a T.
using Taken = typename TakenAs<T>::Type;

/// Values of MsoTriState.
inline constexpr std::int32_t kTrue = -1, kFalse = 0;

/// A function that makes a proxy of class P, for Wrap.
template <class P>
std::shared_ptr<P> MakeProxy(com::ComPtr<IDispatch> object) {
  return object ? std::make_shared<P>(std::move(object)) : nullptr;
}

}  // namespace plotsmith::proxies
