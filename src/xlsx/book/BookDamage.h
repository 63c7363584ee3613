#pragma once

#include <new>
#include <optional>
#include <string>

#include "runtime/RuntimeError.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {

/// What was found damaged in a workbook while it was in use.
class BookDamage {
 public:
  /// The first damage as a sentence. A workbook that has one must not be saved, because what was built on it
  /// is incomplete.
  const std::optional<std::string>& Damage() const { return damage_; }

  /// Runs what reads the file behind the port. A PackageError, or a lack of memory, is kept as the damage and
  /// continues as error 1004.
  template <class Read>
  auto Guarded(Read&& read) -> decltype(read()) {
    try {
      return read();
    } catch (const PackageError& e) {
      Raise(e);
    } catch (const std::bad_alloc&) {
      Raise(PackageError("there is not enough memory for it"));
    }
  }

  /// Runs what reads the workbook only to show it. Damage that it meets raises its error as usual, but the
  /// workbook may still be saved, because nothing is built on what was read.
  template <class Read>
  auto Viewed(Read&& read) -> decltype(read()) {
    const auto before = damage_;
    try {
      return read();
    } catch (const runtime::RuntimeError&) {
      damage_ = before;
      throw;
    }
  }

 private:
  [[noreturn]] void Raise(const PackageError& error);

  std::optional<std::string> damage_;
};

}  // namespace plotsmith::xlsx
