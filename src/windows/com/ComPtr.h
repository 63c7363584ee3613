#pragma once

#include <cstddef>
#include <utility>

#include "windows/com/Abandon.h"
#include "windows/com/Windows.h"

namespace plotsmith::com {

/// Owns one reference to a COM object, or none. T is the object's interface.
template <class T>
class ComPtr {
 public:
  /// Makes an empty pointer.
  /// @{
  ComPtr() = default;
  ComPtr(std::nullptr_t) {}
  ///@}

  /// Adds a reference to the object. Null gives an empty pointer.
  explicit ComPtr(T* object) : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  /// Adds a reference to the object of the other pointer.
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  /// Takes over the reference of the other pointer.
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  /// Takes over the reference of `other`, and releases its own.
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() { Reset(); }

  /// Takes over a reference that the caller owns.
  static ComPtr Attach(T* object) {
    ComPtr pointer;
    pointer.object_ = object;
    return pointer;
  }
  /// Gives the reference to the caller, who must release it.
  T* Detach() { return std::exchange(object_, nullptr); }
  /// Releases the reference.
  void Reset() {
    T* object = Detach();
    if (object != nullptr && !IsAbandoned()) object->Release();
  }

  /// Returns the object, or null. This pointer keeps its reference.
  T* Get() const { return object_; }
  /// Gives access to the members of the object, which must not be null.
  T* operator->() const { return object_; }
  /// Returns the address where a function stores the reference that it returns. Releases the current
  /// reference first.
  T** Put() {
    Reset();
    return &object_;
  }
  /// Returns false if no object is held.
  explicit operator bool() const { return object_ != nullptr; }

  /// Returns another interface of the object, or an empty pointer if the object doesn't implement it.
  template <class U>
  ComPtr<U> As(REFIID id = __uuidof(U)) const {
    ComPtr<U> other;
    if (object_ == nullptr) return other;
    void* found = nullptr;
    if (SUCCEEDED(object_->QueryInterface(id, &found))) other = ComPtr<U>::Attach(static_cast<U*>(found));
    return other;
  }

 private:
  T* object_ = nullptr;
};

}  // namespace plotsmith::com
