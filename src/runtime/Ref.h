#pragma once

#include <memory>
#include <utility>

#include "runtime/RuntimeError.h"

namespace plotsmith::runtime {

/// A shared object reference in which null is Nothing: to use a member of Nothing is error 91, not a crash.
template <class T>
class Ref {
 public:
  Ref() = default;
  Ref(std::nullptr_t) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(std::shared_ptr<U> object) : object_(std::move(object)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other) : object_(other.shared()) {}

  T* operator->() const { return &Checked(); }
  T& operator*() const { return Checked(); }
  explicit operator bool() const { return object_ != nullptr; }
  bool operator==(std::nullptr_t) const { return object_ == nullptr; }
  bool operator==(const Ref& other) const { return object_ == other.object_; }

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
