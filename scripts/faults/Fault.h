#pragma once

#include <utility>

/// The functions that scripts/mutate.py writes into copies of the sources. Each place computes what the
/// source says, unless its fault is active. Thus one program contains all faults, and at most one of them is
/// active in a run.
namespace plotsmith_fault {

/// Returns true if the fault with this number is active. If the run is recorded, this also notes which test
/// has reached the fault.
bool On(int fault);

template <class T>
T Pick(int fault, T right, T wrong) {
  return On(fault) ? wrong : right;
}

/// Computes `a && b`, or `a || b` if the fault is active.
template <class Second>
bool And(int fault, bool first, const Second& second) {
  return On(fault) ? first || second() : first && second();
}

/// Computes `a || b`, or `a && b` if the fault is active.
template <class Second>
bool Or(int fault, bool first, const Second& second) {
  return On(fault) ? first && second() : first || second();
}

/// Is placed between two operators: `a < At<5>() < b` is `a < b`, or `a <= b` if fault 5 is active.
template <int fault>
struct At {};

template <int fault, class T>
struct Left {
  T&& value;
};

#define PLOTSMITH_FAULT_OPERATOR(OPERATOR, WRONG)                                             \
  template <class T, int fault>                                                               \
  Left<fault, T> operator OPERATOR(T&& left, At<fault>) {                                     \
    return {std::forward<T>(left)};                                                           \
  }                                                                                           \
  template <int fault, class T, class U>                                                      \
  auto operator OPERATOR(Left<fault, T>&& left, U&& right) {                                  \
    using Result = decltype(std::forward<T>(left.value) OPERATOR std::forward<U>(right));     \
    if (On(fault)) return std::decay_t<Result>(WRONG);                                        \
    return std::decay_t<Result>(std::forward<T>(left.value) OPERATOR std::forward<U>(right)); \
  }

PLOTSMITH_FAULT_OPERATOR(==, !(left.value == right))
PLOTSMITH_FAULT_OPERATOR(!=, !(left.value != right))
PLOTSMITH_FAULT_OPERATOR(<, left.value <= right)
PLOTSMITH_FAULT_OPERATOR(<=, left.value < right)
PLOTSMITH_FAULT_OPERATOR(>, left.value >= right)
PLOTSMITH_FAULT_OPERATOR(>=, left.value > right)
PLOTSMITH_FAULT_OPERATOR(-, left.value + right)
#undef PLOTSMITH_FAULT_OPERATOR

template <class T, int fault>
Left<fault, T> operator+(T&& left, At<fault>) {
  return {std::forward<T>(left)};
}

/// Computes `a + b`, or `a - b` if the fault is active. For texts, which can't be subtracted, the fault gives
/// `a`.
template <int fault, class T, class U>
auto operator+(Left<fault, T>&& left, U&& right) {
  using Result = std::decay_t<decltype(std::forward<T>(left.value) + std::forward<U>(right))>;
  if (On(fault)) {
    if constexpr (requires { Result(left.value - right); }) {
      return Result(left.value - right);
    } else {
      return Result(std::forward<T>(left.value));
    }
  }
  return Result(std::forward<T>(left.value) + std::forward<U>(right));
}

}  // namespace plotsmith_fault
