#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "xlsx/numberformat/DateSystem.h"

namespace plotsmith::xlsx {

/// What of a day and a time a format shows.
enum class DateFields {
  kNone,      ///< the number is shown as a number
  kDate,      ///< a day, a month or a year
  kTime,      ///< a time of the day
  kDateTime,  ///< both
  kDuration   ///< hours, minutes or seconds that don't begin again, "[h]:mm"
};

/// A number format code (`formatCode` of SpreadsheetML, en-US), parsed once and used for many cells.
///
/// Displayed text is what a cell of sufficient width shows: `_x` gives one blank, `?` pads with blanks, `*x`
/// fills nothing. Colours are read and dropped. Names of months and days are English in every locale.
class NumberFormat {
 public:
  /// Null if Excel refuses the code, or if it is longer than any sensible one. An empty code is General.
  static std::shared_ptr<const NumberFormat> Parse(std::string_view code);
  ~NumberFormat();

  /// True if the format shows a day, a month or a year, so that a cell's value reads as a date. A time or a
  /// duration alone stays a number, as Excel's Range.Value has it.
  bool IsDate() const;
  /// What the format shows of the number, which picks its section.
  DateFields FieldsOf(double value) const;
  /// Returns true if the code is General.
  bool IsGeneral() const;

  /// Append the displayed text to `out`. Where Excel fills the cell with "#" this gives "########": for a
  /// date before the first or behind the last day of the system (the system of 1904 shows a negative date
  /// with a minus sign instead), and for a number that none of two conditions wants. A value that isn't
  /// finite, which no cell holds, gives "#NUM!".
  void AppendNumber(std::string& out, double value, DateSystem dates) const;
  /// Appends a text as the format displays it.
  void AppendText(std::string& out, std::string_view text) const;
  /// TRUE or FALSE, shown as a text is.
  void AppendBoolean(std::string& out, bool value) const;

  struct Program;  // the parsed code

 private:
  explicit NumberFormat(std::unique_ptr<const Program> program);
  std::unique_ptr<const Program> program_;
};

/// The code of a built-in format id as Excel shows it in en-US; empty if the id isn't built in, or stands for
/// formats of other languages only.
std::string_view BuiltinNumberFormat(int id);

/// A number in the General format: up to 11 digits, scientific outside 1E-9..1E11 as Excel switches over.
void AppendGeneral(std::string& out, double value);

}  // namespace plotsmith::xlsx
