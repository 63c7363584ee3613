#pragma once

#include <exception>
#include <string>

namespace plotsmith::runtime {

/// The one exception of the system and of every host: a numbered run-time error with the wording that a user
/// of Excel and of its macro language knows.
class RuntimeError : public std::exception {
 public:
  /// An error with the language's own description of `number`.
  explicit RuntimeError(int number);
  /// An error with a wording of its own.
  RuntimeError(int number, std::string description, std::string source = "Plotsmith");

  /// Of namespace error, or any other that the language or Excel has.
  int Number() const { return number_; }
  /// What the user reads.
  const std::string& Description() const { return description_; }
  /// The component that raised it.
  const std::string& Source() const { return source_; }
  /// The description.
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
inline constexpr int kTypeMismatch = 13;           ///< Type mismatch
inline constexpr int kOutOfStackSpace = 28;        ///< Out of stack space
inline constexpr int kObjectNotSet = 91;           ///< Object variable or With block variable not set
inline constexpr int kInvalidNull = 94;            ///< Invalid use of Null
inline constexpr int kInvalidPropertyValue = 380;  ///< Invalid property value
inline constexpr int kInvalidArrayIndex = 381;     ///< Invalid property array index
inline constexpr int kReadOnlyProperty = 383;      ///< Property is read-only
inline constexpr int kNoSuchMember = 438;          ///< Object doesn't support this property or method
inline constexpr int kAutomation = 440;            ///< Automation error
inline constexpr int kKeyExists = 457;  ///< This key is already associated with an element of this collection
inline constexpr int kApplication = 1004;  ///< Application-defined or object-defined error
}  // namespace error

/// The exception being handled, as a run-time error. Call it inside a catch block only.
RuntimeError CurrentError();

/// Whether memory ran out and the error was dealt with like any other. What was done since then is incomplete
/// in ways that nobody knows, and must not be saved.
inline bool memoryRanOut = false;

}  // namespace plotsmith::runtime
