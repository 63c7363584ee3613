#pragma once

#include <memory>
#include <utility>

#include "runtime/RuntimeError.h"

namespace plotsmith::runtime {

/// A shared object reference in which null is Nothing: to use a member of Nothing is error 91, not a crash.
template <class T>
class Ref {
 public:
  /// Nothing.
  ///@{
  Ref() = default;
  Ref(std::nullptr_t) {}
  ///@}

  /// To the same object, of T or of a class that is derived from it; null becomes Nothing.
  ///@{
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(std::shared_ptr<U> object) : object_(std::move(object)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other) : object_(other.shared()) {}
  ///@}

  /// The object; error 91 for Nothing.
  ///@{
  T* operator->() const { return &Checked(); }
  T& operator*() const { return Checked(); }
  ///@}

  /// False for Nothing.
  explicit operator bool() const { return object_ != nullptr; }

  /// Whether both are the same object, or both Nothing.
  ///@{
  bool operator==(std::nullptr_t) const { return object_ == nullptr; }
  bool operator==(const Ref& other) const { return object_ == other.object_; }
  ///@}

  /// For who only keeps or compares the object: null for Nothing, without an error.
  const std::shared_ptr<T>& shared() const { return object_; }

 private:
  T& Checked() const {
    if (!object_) throw RuntimeError(error::kObjectNotSet);
    return *object_;
  }

  std::shared_ptr<T> object_;
};

/// A new object.
template <class T, class... Args>
Ref<T> MakeRef(Args&&... args) {
  return Ref<T>(std::make_shared<T>(std::forward<Args>(args)...));
}

}  // namespace plotsmith::runtime
