#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The run-time of Visual Basic, Excel's macro language ("the language" in these pages): values, conversions,
/// errors, object references, collections and texts, as the system counts on them.
namespace plotsmith::runtime {

/// A value of any type, and the language's conversions between them. What can't be converted is error 13,
/// Null is error 94 wherever a definite value is wanted, and what doesn't fit is error 6.
class Variant {
 public:
  /// What a variable holds that nothing was put into, and a blank cell.
  struct Empty {
    bool operator==(const Empty&) const = default;  ///< always True
  };
  /// No definite value, such as the font of a text in several fonts.
  struct Null {
    bool operator==(const Null&) const = default;  ///< always True, other than in the language
  };
  /// A day serial, counted as the language counts: 2 is 1 January 1900, and a negative one has its time of
  /// day in the fraction without the sign.
  struct Date {
    double serial;                                 ///< days, with the time of day as a fraction
    bool operator==(const Date&) const = default;  ///< by the serial
  };
  /// An error value of a cell, by Excel's number for it (2007 is #DIV/0!).
  struct Error {
    int number;                                     ///< from 2000 on
    bool operator==(const Error&) const = default;  ///< by the number
  };

  /// Empty.
  Variant() = default;

  /// A value of that very type; texts are copied.
  ///@{
  Variant(Null value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(Error value) : value_(value) {}
  Variant(bool value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(std::string_view value) : value_(std::string(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  ///@}

  /// Empty, Null and an empty text are three different things.
  ///@{
  bool IsEmpty() const { return Is<Empty>(); }
  bool IsNull() const { return Is<Null>(); }
  ///@}

  /// Whether the value is of a type: Empty, Null, bool, std::int32_t, double, Date, Error or std::string.
  template <class T>
  bool Is() const {
    return std::holds_alternative<T>(value_);
  }
  /// The value if it is of that type, else a null pointer; good until another value is assigned.
  template <class T>
  const T* If() const {
    return std::get_if<T>(&value_);
  }

  /// Of the same type and the same: 1 as a std::int32_t isn't 1 as a double.
  bool operator==(const Variant&) const = default;

 private:
  std::variant<Empty, Null, bool, std::int32_t, double, Date, Error, std::string> value_;
};

/// Null, ready made.
inline const Variant kNull = Variant::Null{};

/// Empty is "", a Boolean "True" or "False", a number as NumberText writes it. Error 13 for an error value.
std::string CStr(const Variant& value);
/// Empty is 0, True is -1; a text goes by ParseNumber.
double CDbl(const Variant& value);
/// Rounds halves to the even neighbour.
std::int32_t CLng(const Variant& value);
/// A number is True unless it is 0; a text says True or False, or is a number.
bool CBool(const Variant& value);

/// The number that a whole text stands for, in the forms that CDbl accepts: blanks around, a sign on either
/// side, parentheses for minus, a currency sign, thousands commas, an exponent, &H and &O. Locale-free.
std::optional<double> ParseNumber(std::string_view text);

/// True for what CDbl converts, but for dates, which count as not numeric.
///@{
bool IsNumeric(const Variant& value);
bool IsNumeric(std::string_view text);
///@}

/// The number at the beginning of a text, 0 if there is none; of another value, that of its CStr. Blanks,
/// tabs and line ends anywhere are passed over, and the point is the decimal sign in every locale. Error 6
/// for a number that is too large.
///@{
double Val(std::string_view text);
double Val(const Variant& value);
///@}

/// The language's addition; error 6 for a sum beyond all numbers.
double Sum(double a, double b);

/// A number as the language writes it: 15 digits, a point, "1E+50" where it would be longer than that.
std::string NumberText(double value);

}  // namespace plotsmith::runtime
