#include "tests/support/ChartCallsTest.h"

#include <algorithm>

namespace plotsmith::test {

Lines ChartCallsTest::ChartCalls(const PlainBook& book, const std::string& version) {
  Open(book, version);
  return ChartCalls();
}

Lines ChartCallsTest::ChartCalls() {
  journal_.clear();
  Refresh();
  Lines calls;
  std::copy_if(journal_.begin(), journal_.end(), std::back_inserter(calls),
               [](const std::string& line) { return line.starts_with("Chart."); });
  return calls;
}

excel::Ref<excel::Chart> ChartCallsTest::Chart() {
  // The run has released its workbook.
  return host_->ActiveWorkbook()->Worksheets()->Item("Charts")->ChartObjects()->Item("Chart 1")->Chart();
}

Lines With(const Lines& lines, const std::string& text) {
  Lines found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
               [&](const std::string& line) { return line.find(text) != std::string::npos; });
  return found;
}

Lines WithoutValues(Lines lines, std::initializer_list<std::string> texts) {
  for (std::string& line : lines) {
    const bool strip = std::any_of(texts.begin(), texts.end(), [&](const std::string& text) {
      return line.find(text) != std::string::npos;
    });
    if (strip) line.erase(std::min(line.find(" = "), line.size()));
  }
  return lines;
}

}  // namespace plotsmith::test
