#pragma once

#include <new>
#include <optional>
#include <string>

#include "runtime/RuntimeError.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {

/// The damage that was found in a workbook while it was in use.
class BookDamage {
 public:
  /// The first damage as a sentence; absent if there is none. A damaged workbook must not be saved, because
  /// changes that are based on it are incomplete.
  const std::optional<std::string>& Damage() const { return damage_; }

  /// Calls `read`, which reads the file for a member of the port. A PackageError or a lack of memory is
  /// stored as damage and raised as error 1004.
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

  /// Calls `read`, which reads the workbook only to show it. Damage raises the usual error, but the workbook
  /// may still be saved, because no change is based on the data.
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
