#include "metadata/SavingPrograms.h"

#include <string_view>

#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "host/excel/Excel.h"
#include "runtime/Variant.h"

namespace plotsmith {
namespace {

/// A program, identified by the beginning of its name in the file. A version follows the name.
struct Program {
  std::string_view sName;
  double dLastVersion;  ///< The last version that is known to have these losses.
  SavingLosses oLosses;
};

constexpr double kAllVersions = 1e9;

constexpr Program kPrograms[] = {
    // LibreOffice 7.4 writes neither the alternative text of a shape nor the mark of a text box (txBox). It
    // keeps the shapes on charts.
    {"LibreOffice/", 7.4, {.bAlternativeTexts = true, .bTextBoxKind = true}},
    // openpyxl creates the frames of charts again and doesn't read shapes.
    {"openpyxl ", kAllVersions, {.bAlternativeTexts = true, .bTextBoxes = true, .bShapesOnCharts = true}},
    {"Microsoft Excel Compatible / Openpyxl ",
     kAllVersions,
     {.bAlternativeTexts = true, .bTextBoxes = true, .bShapesOnCharts = true}},
};

}  // namespace

SavingLosses LossesOfLastSave() {
  return ValueOr(SavingLosses{}, [] {
    const std::string sProgram =
        runtime::CStr(oWorkbook->BuiltinDocumentProperties("Application name")->Value());
    for (const Program& oProgram : kPrograms) {
      if (!sProgram.starts_with(oProgram.sName)) continue;
      const double dVersion = runtime::Val(std::string_view(sProgram).substr(oProgram.sName.size()));
      if (dVersion <= oProgram.dLastVersion) return oProgram.oLosses;
    }
    return SavingLosses{};
  });
}

}  // namespace plotsmith
