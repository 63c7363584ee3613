#include <gtest/gtest.h>

#include "tests/windows/contract/PortContract.h"
#include "windows/com/Calls.h"
#include "windows/excel/CellReader.h"
#include "windows/excel/WrapApplication.h"
#include "xlsx/Workbook.h"

namespace plotsmith::contract {
namespace {

/// Tests a sheet with a column of texts, one of dates and one of numbers, and its proxy.
class CellReaderTest : public testing::Test {
 protected:
  static constexpr std::int32_t kRows = 1000;

  void SetUp() override {
    host_->application->NewWorkbook();
    const auto sheet = host_->application->ActiveWorkbook()->Worksheets()->Item(1);
    for (std::int32_t row = 1; row <= kRows; ++row) {
      sheet->SetCellValueAt(row, 1, "text " + std::to_string(row));
      sheet->SetCellValueAt(row, 2, 40000 + row);
      if (row % 5 != 0) sheet->SetCellValueAt(row, 3, row / 8.0);
    }
    sheet->Range("$B$2", "$B$1000")->SetNumberFormat("yyyy-mm-dd");
    dispatch_ = com::ComPtr<IDispatch>::Attach(automation::NewApplication(host_));
    application_ = excel::WrapApplication(dispatch_.Get());
    direct_ = sheet;
    proxy_ = application_->ActiveWorkbook()->Worksheets()->Item(1);
  }

  /// Returns the number of calls that a function makes.
  template <class Work>
  std::uint64_t Calls(const Work& work) {
    const std::uint64_t before = com::CallCount();
    work();
    return com::CallCount() - before;
  }

  automation::HostPtr host_ = std::make_shared<automation::Host>();
  com::ComPtr<IDispatch> dispatch_;
  Ref<excel::Application> application_;
  Ref<excel::Worksheet> direct_, proxy_;
};

TEST_F(CellReaderTest, ReadingAColumnTakesFewCalls) {
  for (std::int32_t column = 1; column <= 3; ++column) {
    const auto calls = Calls([&] {
      for (std::int32_t row = 1; row <= kRows; ++row) {
        EXPECT_EQ(proxy_->CellValueAt(row, column).ToVariant(),
                  direct_->CellValueAt(row, column).ToVariant());
      }
    });
    EXPECT_LE(calls, 22U) << column;
  }
}

TEST_F(CellReaderTest, ReadingRowByRowTakesFewCalls) {
  const auto calls = Calls([&] {
    for (std::int32_t row = 1; row <= kRows; ++row) {
      proxy_->CellValueAt(row, 2);
      proxy_->CellValueAt(row, 3);
    }
  });
  EXPECT_LE(calls, 40U);
}

TEST_F(CellReaderTest, TextsInThePlainFormatNeedNoCallEach) {
  std::string scratch, scratchOfDirect;
  const auto read = [&](std::int32_t column) {
    return Calls([&] {
      for (std::int32_t row = 1; row <= kRows; ++row) {
        EXPECT_EQ(proxy_->CellTextAt(row, column, scratch),
                  direct_->CellTextAt(row, column, scratchOfDirect));
      }
    });
  };
  EXPECT_LE(read(1), 45U);
  EXPECT_GE(read(2), 2U * kRows) << "only the host knows how a date is displayed";
}

TEST_F(CellReaderTest, FormulasAreReadAsTheSheetShowsThem) {
  for (const std::int32_t row : {40, 41, 700}) host_->formulas[{row, 1}] = "=\"text \"&ROW()";
  for (const bool displayFormulas : {false, true}) {
    host_->displayFormulas = displayFormulas;
    com::NoteChange();
    std::string scratch;
    const auto calls = Calls([&] {
      for (std::int32_t row = 1; row <= kRows; ++row) {
        const bool shown = displayFormulas && host_->formulas.contains({row, 1});
        EXPECT_EQ(proxy_->CellTextAt(row, 1, scratch),
                  shown ? host_->formulas.at({row, 1}) : "text " + std::to_string(row));
      }
    });
    if (!displayFormulas) {
      EXPECT_LE(calls, 55U);
    }
  }
}

TEST_F(CellReaderTest, AWriteIsSeenByTheNextRead) {
  for (std::int32_t row = 1; row <= 40; ++row) proxy_->CellValueAt(row, 3);
  application_->ActiveWorkbook()->Worksheets()->Item(1)->Cells(41, 3)->SetValue("new");
  SAYS(proxy_->CellValueAt(41, 3).ToVariant(), R"("new")");
  proxy_->SetCellValueAt(41, 3, 7);
  SAYS(proxy_->CellValueAt(41, 3).ToVariant(), "7");
  proxy_->CellValueAt(42, 3);
  direct_->SetCellValueAt(43, 3, "by another program");
  com::NoteChange();
  SAYS(proxy_->CellValueAt(43, 3).ToVariant(), R"("by another program")");
}

TEST_F(CellReaderTest, TextsStayValidWhileOtherCellsAreRead) {
  const std::string_view first = proxy_->CellValueAt(1, 1).text;
  for (std::int32_t row = 2; row <= kRows; ++row) proxy_->CellValueAt(row, 1);
  com::NoteChange();
  proxy_->CellValueAt(1, 1);
  EXPECT_EQ(first, "text 1");
}

TEST_F(CellReaderTest, BlankStretchesAreSkipped) {
  direct_->SetCellValueAt(900, 5, "far below");
  std::vector<std::int32_t> rows;
  const auto calls = Calls([&] {
    for (std::int32_t row = 1; row != 0; row = proxy_->NextRowAt(row, 5)) {
      if (proxy_->CellValueAt(row, 5).kind != excel::CellValue::Kind::kEmpty) rows.push_back(row);
    }
  });
  EXPECT_EQ(rows, std::vector<std::int32_t>{900});
  EXPECT_LE(calls, 30U);
}

}  // namespace
}  // namespace plotsmith::contract
