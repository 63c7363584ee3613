#pragma once

#include <memory>
#include <utility>

#include "runtime/RuntimeError.h"

namespace plotsmith::runtime {

/// A shared reference to an object. A null reference is Nothing: using a member of it raises error 91.
template <class T>
class Ref {
 public:
  /// Makes Nothing.
  ///@{
  Ref() = default;
  Ref(std::nullptr_t) {}
  ///@}

  /// Makes a reference to the same object, which is of type T or derived from T. Null becomes Nothing.
  ///@{
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(std::shared_ptr<U> object) : object_(std::move(object)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other) : object_(other.shared()) {}
  ///@}

  /// Returns the object. Raises error 91 for Nothing.
  ///@{
  T* operator->() const { return &Checked(); }
  T& operator*() const { return Checked(); }
  ///@}

  /// Returns false for Nothing.
  explicit operator bool() const { return object_ != nullptr; }

  /// Returns true if both refer to the same object, or if both are Nothing.
  ///@{
  bool operator==(std::nullptr_t) const { return object_ == nullptr; }
  bool operator==(const Ref& other) const { return object_ == other.object_; }
  ///@}

  /// Returns the pointer to keep or compare: null for Nothing, without an error.
  const std::shared_ptr<T>& shared() const { return object_; }

 private:
  T& Checked() const {
    if (!object_) throw RuntimeError(error::kObjectNotSet);
    return *object_;
  }

  std::shared_ptr<T> object_;
};

/// Makes a new object.
template <class T, class... Args>
Ref<T> MakeRef(Args&&... args) {
  return Ref<T>(std::make_shared<T>(std::forward<Args>(args)...));
}

}  // namespace plotsmith::runtime
