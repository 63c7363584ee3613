#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// Charts and comment boxes belong to a definition by its id in their alternative text. Some programs drop
/// that text when they save a workbook (SavingPrograms.h). A drawn chart still shows the data block of its
/// definition, and by that it is known again. In the file of any other program, a chart without the text is
/// one that a person has detached.
namespace plotsmith {

/// The charts of `oWorkbook` without an alternative text, in a file whose last program drops these texts; in
/// any other file none. Each is read once, when the search first comes to it.
class UnmarkedCharts {
 public:
  /// Looks for a chart that shows a data block of the id, and gives it its marker back. The sheet's name, or
  /// "" if there is none.
  std::string RestoreMarker(const std::string& sID);
  /// The sheet of the chart that RestoreMarker would take; "" if there is none. Changes nothing.
  std::string SheetOf(const std::string& sID);

 private:
  struct Unmarked {
    runtime::Ref<excel::Worksheet> oSheet;
    runtime::Ref<excel::Shape> oShape;
    std::string sShownID;
  };

  /// Where in aRead_ a chart is that shows a data block of the id; its size if there is none.
  std::size_t Find(const std::string& sID);
  /// Goes on to the next one that shows a data block; False behind the last.
  bool ReadNext();

  std::optional<bool> bTextsLost_;  ///< whether the last program drops the texts, once that was asked
  std::vector<Unmarked> aRead_;
  std::int32_t lSheet_ = 1, lShape_ = 1;  ///< where to go on
};

/// Looks on the sheet for a text box without an alternative text that has the text of the chart's comment,
/// and gives it its marker back. If the last program has made rectangles of the text boxes, such a rectangle
/// is replaced by a text box of its place and text, in the font of a new one.
void RestoreCommentMarker(const std::string& sID, const std::string& sSheetName, const std::string& sComment);

}  // namespace plotsmith
