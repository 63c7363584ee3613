#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// A workbook file that can't be read or written, in one sentence for the user. It is raised while a workbook
/// is opened or saved; behind the port, where only run-time errors may pass, see Workbook::Damage.
class PackageError : public std::runtime_error {
 public:
  explicit PackageError(const std::string& sentence) : std::runtime_error(sentence) {}
};

/// The same with the name of the part that is at fault.
class PartError : public PackageError {
 public:
  PartError(std::string_view part, const std::string& reason)
      : PackageError("its part " + std::string(part) + " can't be read: " + reason) {}
};

/// Names the part in what goes wrong while it is read.
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
