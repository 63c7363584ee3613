#include <filesystem>

#include "runtime/Utf8Path.h"
#include "tests/windows/contract/BookDescription.h"
#include "tests/windows/contract/PortContract.h"
#include "windows/excel/WrapApplication.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::contract {
namespace {

namespace fs = std::filesystem;

/// Returns the first line in which two texts differ, from both texts.
std::string FirstDifference(const std::string& a, const std::string& b) {
  std::istringstream as(a), bs(b);
  std::string lineOfA, lineOfB;
  while (true) {
    const bool more = static_cast<bool>(std::getline(as, lineOfA));
    if (!std::getline(bs, lineOfB) && !more) return {};
    if (lineOfA != lineOfB || !as || !bs) return lineOfA + "\n" + lineOfB;
  }
}

/// Returns the workbooks in a folder of the repository or beside it.
std::vector<fs::path> BooksIn(const std::string& folder) {
  std::vector<fs::path> books;
  const fs::path path = fs::path(PLOTSMITH_SOURCE_DIR) / folder;
  if (!fs::exists(path)) return books;
  for (const auto& entry : fs::directory_iterator(path)) {
    const std::string extension = entry.path().extension().string();
    if (extension == ".xlsx" || extension == ".xlsm") books.push_back(entry.path());
  }
  return books;
}

TEST(CorpusContractTest, TheHostsResultsAreTheSameThroughCom) {
  int described = 0;
  for (const char* folder :
       {"examples", "examples/data", "../shared/corpus/charts", "../shared/corpus/real"}) {
    for (const fs::path& book : BooksIn(folder)) {
      const auto host = std::make_shared<automation::Host>();
      try {
        host->application->Open(runtime::Utf8Of(book));
      } catch (const xlsx::PackageError&) {
        continue;  // The host refuses it and reports an error.
      }
      const auto dispatch = com::ComPtr<IDispatch>::Attach(automation::NewApplication(host));
      const auto proxy = excel::WrapApplication(dispatch.Get());
      EXPECT_EQ(FirstDifference(Describe(*host->application), Describe(*proxy)), "") << book;
      ++described;
    }
  }
  EXPECT_GE(described, 5);
}

TEST(CorpusContractTest, SheetsWithoutCellsAreSheetsThroughCom) {
  const fs::path book = fs::path(PLOTSMITH_SOURCE_DIR) / "../shared/corpus/charts/chartsheet04.xlsx";
  if (!fs::exists(book)) GTEST_SKIP() << "the corpus is missing";
  const auto host = std::make_shared<automation::Host>();
  host->application->Open(runtime::Utf8Of(book));
  const auto dispatch = com::ComPtr<IDispatch>::Attach(automation::NewApplication(host));
  const auto book1 = excel::WrapApplication(dispatch.Get())->ActiveWorkbook();
  const auto sheet = book1->Sheets()->Item("Chart1");
  EXPECT_EQ(dynamic_cast<excel::Worksheet*>(sheet.shared().get()), nullptr);
  EXPECT_NE(dynamic_cast<excel::Worksheet*>(book1->Sheets()->Item("Sheet1").shared().get()), nullptr);
  SAYS(sheet->SetName("Only a chart"), "error 1004: The sheets of users can't be renamed.");
  SAYS(sheet->Name(), R"("Chart1")");
  SAYS(sheet->SetVisible(excel::xlSheetVisible), "done");
  SAYS(sheet->Activate(), "done");
  SAYS(book1->Worksheets()->Item("Chart1"), "error 9: Subscript out of range");
  SAYS(book1->Sheets()->Add(sheet, nullptr)->Name(), R"("Sheet2")");
  SAYS(sheet->Delete(), "error 1004: The sheets of users can't be deleted.");
}

}  // namespace
}  // namespace plotsmith::contract
