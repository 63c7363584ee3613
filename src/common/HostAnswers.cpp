#include "common/HostAnswers.h"

#include <string_view>

#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "host/excel/Excel.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Ref;

std::string FormatSampleNumber(const std::string& sNumberFormat) {
  return ValueOr(std::string(kInvalidFormat), [&] {
    // The cell next to the sheet's mark is otherwise unused.
    const auto oCell = oWorkbook->Worksheets()->Item(kDefinitionsSheet)->Cells(1, 2);
    oCell->SetValue(12345.6789);
    oCell->SetNumberFormat(sNumberFormat);
    std::string sText = oCell->Text();
    oCell->Clear();
    oCell->SetNumberFormat("General");
    return sText;
  });
}

double HostVersion(const Ref<excel::Application>& oHost) {
  return runtime::Val(std::string_view(oHost->Version()));
}

}  // namespace plotsmith
