#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// The error for a workbook file that can't be read or written. The text is one sentence for the user. It is
/// thrown while a workbook is opened or saved. Functions of the port raise only run-time errors; see
/// BookDamage.
class PackageError : public std::runtime_error {
 public:
  /// Makes an error whose text is a sentence.
  explicit PackageError(const std::string& sentence) : std::runtime_error(sentence) {}
};

/// A PackageError that names the damaged part.
class PartError : public PackageError {
 public:
  /// Makes the error for a part that can't be read. `reason` is the end of a sentence.
  PartError(std::string_view part, const std::string& reason)
      : PackageError("its part " + std::string(part) + " can't be read: " + reason) {}
};

/// Calls `read`, and adds the name of the part to its PackageErrors.
template <class Read>
decltype(auto) InPart(std::string_view part, Read&& read) {
  try {
    return read();
  } catch (const PartError&) {
    throw;
  } catch (const PackageError& e) {
    throw PartError(part, e.what());
  }
}

}  // namespace plotsmith::xlsx
