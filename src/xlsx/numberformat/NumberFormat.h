#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "xlsx/numberformat/DateSystem.h"

namespace plotsmith::xlsx {

/// The parts of a date and time that a format shows.
enum class DateFields {
  kNone,      ///< the number is shown as a number
  kDate,      ///< a day, a month or a year
  kTime,      ///< a time of the day
  kDateTime,  ///< a day and a time
  kDuration   ///< hours, minutes or seconds that count on beyond a day or an hour, "[h]:mm"
};

/// A number format code (`formatCode` of SpreadsheetML, en-US), which is parsed once and used for many cells.
///
/// The displayed text is that of a sufficiently wide cell: `_x` gives a space, `?` pads with spaces, and `*x`
/// fills nothing. Colours are ignored. Names of months and days are English in every locale.
class NumberFormat {
 public:
  /// Parses a code. Returns null if Excel refuses the code, or if it is too long. An empty code is General.
  static std::shared_ptr<const NumberFormat> Parse(std::string_view code);
  ~NumberFormat();

  /// Returns true if the format shows a day, a month or a year, so that a cell's value counts as a date. A
  /// value with only a time or a duration counts as a number, as in Excel's Range.Value.
  bool IsDate() const;
  /// The date fields that the number's section shows.
  DateFields FieldsOf(double value) const;
  /// Returns true if the code is General.
  bool IsGeneral() const;

  /// Appends the displayed text to `out`. The text is "########" where Excel fills the cell with "#": for a
  /// date outside of the date system, and for a number that meets neither of two conditions. The 1904 system
  /// shows a negative date with a minus sign. A value that isn't finite, which no cell contains, gives
  /// "#NUM!".
  void AppendNumber(std::string& out, double value, DateSystem dates) const;
  /// Appends a text as the format displays it.
  void AppendText(std::string& out, std::string_view text) const;
  /// Appends TRUE or FALSE as the format displays a text.
  void AppendBoolean(std::string& out, bool value) const;

  struct Program;  // the parsed code

 private:
  explicit NumberFormat(std::unique_ptr<const Program> program);
  std::unique_ptr<const Program> program_;
};

/// The code of a built-in format in Excel's en-US version; empty if there is no such format. The dates
/// and times of East Asian languages have the codes of the date 14 and the time 21. Thai formats have none.
std::string_view BuiltinNumberFormat(int id);
/// The id of the built-in format with this code. An id whose code depends on an East Asian language is never
/// returned, because Excel in such a language would show another format.
std::optional<int> BuiltinNumberFormatId(std::string_view code);

/// Appends a number in General format: up to 11 digits, and scientific notation outside of 1E-9 to 1E11, as
/// in Excel.
void AppendGeneral(std::string& out, double value);

}  // namespace plotsmith::xlsx
