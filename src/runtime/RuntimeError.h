#pragma once

#include <exception>
#include <string>

namespace plotsmith::runtime {

/// The exception of the system and of every host: a numbered run-time error, with the description that Excel
/// or its macro language gives it.
class RuntimeError : public std::exception {
 public:
  /// Makes an error with the language's description of `number`.
  explicit RuntimeError(int number);
  /// Makes an error with another description and source.
  RuntimeError(int number, std::string description, std::string source = "Plotsmith");

  /// The error number: a constant of namespace error, or another number of the language or of Excel.
  int Number() const { return number_; }
  /// The description for the user.
  const std::string& Description() const { return description_; }
  /// The name of the component that raised the error.
  const std::string& Source() const { return source_; }
  /// Returns the description.
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string description_;
  std::string source_;
};

/// Error numbers of the language and of Excel that the system and the hosts raise.
namespace error {
inline constexpr int kInvalidCall = 5;             ///< Invalid procedure call or argument
inline constexpr int kOverflow = 6;                ///< Overflow
inline constexpr int kOutOfMemory = 7;             ///< Out of memory
inline constexpr int kSubscript = 9;               ///< Subscript out of range
inline constexpr int kArrayLocked = 10;            ///< This array is fixed or temporarily locked
inline constexpr int kDivisionByZero = 11;         ///< Division by zero
inline constexpr int kTypeMismatch = 13;           ///< Type mismatch
inline constexpr int kOutOfStackSpace = 28;        ///< Out of stack space
inline constexpr int kPermission = 70;             ///< Permission denied
inline constexpr int kObjectNotSet = 91;           ///< Object variable or With block variable not set
inline constexpr int kInvalidNull = 94;            ///< Invalid use of Null
inline constexpr int kInvalidPropertyValue = 380;  ///< Invalid property value
inline constexpr int kInvalidArrayIndex = 381;     ///< Invalid property array index
inline constexpr int kReadOnlyProperty = 383;      ///< Property is read-only
inline constexpr int kObjectRequired = 424;        ///< Object required
inline constexpr int kNoSuchInterface = 430;       ///< Class does not support Automation
inline constexpr int kNoSuchMember = 438;          ///< Object doesn't support this property or method
inline constexpr int kAutomation = 440;            ///< Automation error
inline constexpr int kNoSuchAction = 445;          ///< Object doesn't support this action
inline constexpr int kNoNamedArguments = 446;      ///< Object doesn't support named arguments
inline constexpr int kNoSuchLocale = 447;          ///< Object doesn't support current locale setting
inline constexpr int kNoSuchNamedArgument = 448;   ///< Named argument not found
inline constexpr int kArgumentNotOptional = 449;   ///< Argument not optional
inline constexpr int kArgumentCount = 450;         ///< Wrong number of arguments
inline constexpr int kNotACollection = 451;        ///< Object not a collection
inline constexpr int kKeyExists = 457;  ///< This key is already associated with an element of this collection
inline constexpr int kNoSuchVariantType = 458;  ///< Variable uses an Automation type that isn't supported
inline constexpr int kServerUnavailable = 462;  ///< The remote server machine is unavailable
inline constexpr int kApplication = 1004;       ///< Application-defined or object-defined error
}  // namespace error

/// Returns the exception that is being handled as a run-time error. Call it only inside a catch block.
RuntimeError CurrentError();

/// True if the process ran out of memory and the error was handled like any other. The results since then may
/// be incomplete, so they must not be saved.
inline bool memoryRanOut = false;

}  // namespace plotsmith::runtime
