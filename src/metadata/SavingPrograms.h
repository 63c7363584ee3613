#pragma once

/// A chart or comment box is connected to its definition by the id in its alternative text. Some programs
/// lose such information when they save a workbook. If it is missing in a file of such a program, no person
/// has removed it; in any other file, a person has.
namespace plotsmith {

/// The information that a program loses when it saves a workbook.
struct SavingLosses {
  bool bAlternativeTexts = false;  ///< All alternative texts of shapes.
  bool bTextBoxes = false;         ///< All text boxes on sheets.
  bool bTextBoxKind = false;       ///< The type of text boxes, which become rectangles with text.
  bool bShapesOnCharts = false;    ///< All shapes on charts.
};

/// Returns the losses of the program that saved `oWorkbook` last. Unknown programs lose nothing.
SavingLosses LossesOfLastSave();

}  // namespace plotsmith
