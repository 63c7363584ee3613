#pragma once

#include <utility>

namespace plotsmith::windows {

/// Sets a variable to true as long as this object lives.
class Flag {
 public:
  /// Sets `flag` to true. The destructor restores its old value.
  explicit Flag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Flag() { flag_ = before_; }
  Flag(const Flag&) = delete;
  Flag& operator=(const Flag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace plotsmith::windows
