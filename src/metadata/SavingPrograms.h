#pragma once

/// Charts and comment boxes belong to a definition by its id in their alternative text. Some programs lose
/// such things when they save a workbook. What is missing in a file of theirs was not taken away by a person;
/// in any other file it was.
namespace plotsmith {

/// What a program does to a workbook when it saves it.
struct SavingLosses {
  bool bAlternativeTexts = false;  ///< No shape has an alternative text afterwards.
  bool bTextBoxes = false;         ///< All text boxes on the sheets are gone.
  bool bTextBoxKind = false;       ///< Text boxes have become rectangles with a text.
  bool bShapesOnCharts = false;    ///< All shapes on charts are gone.
};

/// What the program loses that saved `oWorkbook` last; nothing for a program that isn't known to lose any.
SavingLosses LossesOfLastSave();

}  // namespace plotsmith
