#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "runtime/Ref.h"

/// A chart or comment box is connected to its definition by the id in its alternative text. Some programs
/// drop this text when they save a workbook (see SavingPrograms.h). A drawn chart still shows the data block
/// of its definition, which identifies it. In the file of any other program, a chart without the text was
/// detached by a person.
namespace plotsmith {

/// The charts of `oWorkbook` without an alternative text. There are none unless the program that saved the
/// file last drops these texts. Each chart is read once, when the search reaches it.
class UnmarkedCharts {
 public:
  /// Finds a chart that shows a data block of the id and restores its alternative text. Returns the name of
  /// its sheet, or "" if there is none.
  std::string RestoreMarker(const std::string& sID);
  /// Returns the sheet of the chart that RestoreMarker would find, or "" if there is none. Changes nothing.
  std::string SheetOf(const std::string& sID);

 private:
  struct Unmarked {
    runtime::Ref<excel::Worksheet> oSheet;
    runtime::Ref<excel::Shape> oShape;
    std::string sShownID;
  };

  /// Returns the index in aRead_ of a chart that shows a data block of the id, or the size of aRead_ if there
  /// is none.
  std::size_t Find(const std::string& sID);
  /// Reads the next chart that shows a data block. Returns false if there is none.
  bool ReadNext();

  std::optional<bool> bTextsLost_;  ///< Whether the last program drops the texts; empty until it is needed.
  std::vector<Unmarked> aRead_;
  std::int32_t lSheet_ = 1, lShape_ = 1;  ///< The next position of the search.
};

/// Finds a text box without alternative text on the sheet whose text is the chart's comment, and restores its
/// alternative text. If the last program has converted text boxes to rectangles, the rectangle is replaced by
/// a text box with the same position and text, in the font of a new text box.
void RestoreCommentMarker(const std::string& sID, const std::string& sSheetName, const std::string& sComment);

}  // namespace plotsmith
