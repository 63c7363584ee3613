#pragma once

#include <utility>

/// What scripts/mutate.py writes into copies of the sources: each place computes what the source says, or,
/// while its fault is on, something else. One program so has all faults, and a run of it has one of them at
/// most.
namespace plotsmith_fault {

/// Returns true if the fault of this number is on. Notes the test that came here when the run records.
bool On(int fault);

template <class T>
T Pick(int fault, T right, T wrong) {
  return On(fault) ? wrong : right;
}

/// `a && b`, or `a || b` while the fault is on.
template <class Second>
bool And(int fault, bool first, const Second& second) {
  return On(fault) ? first || second() : first && second();
}

/// `a || b`, or `a && b` while the fault is on.
template <class Second>
bool Or(int fault, bool first, const Second& second) {
  return On(fault) ? first && second() : first || second();
}

/// Stands between two operators: `a < At<5>() < b` is `a < b`, or `a <= b` while fault 5 is on.
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

/// `a + b`, or `a - b` while the fault is on; of texts, which can't be subtracted, `a`.
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
