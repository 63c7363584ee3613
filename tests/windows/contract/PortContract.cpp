#include "tests/windows/contract/PortContract.h"

#include <map>

#include "windows/com/Proxies.h"
#include "windows/excel/WrapApplication.h"
#include "xlsx/Workbook.h"

namespace plotsmith::contract {

std::string Words(const excel::Variant& value) { return xlsx::Journal::Literal(value); }

std::string Words(const std::vector<excel::Variant>& values) {
  std::string words;
  for (const auto& value : values) words += (words.empty() ? "" : ", ") + Words(value);
  return words;
}

void PortContract::SetUp() {
  host_ = std::make_shared<automation::Host>();
  host_->application->NewWorkbook();
  if (GetParam() == Way::kDirect) {
    application_ = host_->application;
  } else {
    const auto dispatch = com::ComPtr<IDispatch>::Attach(automation::NewApplication(host_));
    application_ = excel::WrapApplication(dispatch.Get());
  }
  host_->application->Journal().SetSink([this](std::string_view line) { journal_.append(line) += '\n'; });

  const excel::Variant cells[][3] = {
      {"Fruit", "Kilos", "Euros"}, {"apples", 3, 4.5}, {"pears", 5, 8.25}, {"plums", 2, 1.0}};
  const auto sheet = Sheet();
  for (std::int32_t row = 0; row < 4; ++row) {
    for (std::int32_t column = 0; column < 3; ++column) {
      sheet->SetCellValueAt(row + 1, column + 1, cells[row][column]);
    }
  }
  const auto chart = sheet->ChartObjects()->Add(200, 50, 400, 300)->Chart();
  chart->SetChartType(excel::xlColumnClustered);
  const auto series = chart->SeriesCollection()->NewSeries();
  series->SetName("=Sheet1!$B$1");
  series->SetXValues("=Sheet1!$A$2:$A$4");
  series->SetValues("=Sheet1!$B$2:$B$4");
}

void PortContract::TearDown() {
  application_ = nullptr;
  EXPECT_EQ(com::LiveProxies(), 0);
  static std::map<std::string, std::string> journals;
  const std::string full = testing::UnitTest::GetInstance()->current_test_info()->name();
  const std::string name = full.substr(0, full.find('/'));
  if (GetParam() == Way::kDirect) {
    journals[name] = journal_;
  } else if (const auto direct = journals.find(name); direct != journals.end()) {
    EXPECT_EQ(journal_, direct->second);
  }
  host_->application->Journal().SetSink({});
}

INSTANTIATE_TEST_SUITE_P(, PortContract, testing::Values(Way::kDirect, Way::kThroughCom),
                         [](const auto& way) {
                           return std::string(way.param == Way::kDirect ? "direct" : "throughCom");
                         });

}  // namespace plotsmith::contract
