#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "tests/windows/host/HostMembers.h"
#include "xlsx/Application.h"
#include "xlsx/base/Journal.h"

namespace plotsmith::contract {

using excel::Ref;

/// How a test reaches the embedded host: as the system of the command does, or through proxies of its objects
/// in their dress, as the system inside Excel does.
enum class Way { kDirect, kThroughCom };

/// What a member answered, as the journal writes it: a value; "Nothing" or "an object"; "done" for what
/// answers nothing; of a failure its number and text.
///@{
template <class T>
std::string Words(const Ref<T>& object) {
  return object ? "an object" : "Nothing";
}
std::string Words(const excel::Variant& value);
std::string Words(const std::vector<excel::Variant>& values);
template <class Member>
std::string Answer(const Member& member) {
  try {
    if constexpr (std::is_void_v<decltype(member())>) {
      member();
      return "done";
    } else {
      return Words(member());
    }
  } catch (const runtime::RuntimeError& e) {
    return "error " + std::to_string(e.Number()) + ": " + e.Description();
  }
}
///@}

/// A call of a member and what it answers.
#define SAYS(call, words) EXPECT_EQ(Answer([&] { return call; }), words)

/// What every host behind the port answers, on a new workbook with some cells and a chart. Both ways must
/// also change the same: their journals are compared.
class PortContract : public testing::TestWithParam<Way> {
 protected:
  void SetUp() override;
  void TearDown() override;

  excel::Application& Excel() { return *application_; }
  Ref<excel::Workbook> Book() { return Excel().ActiveWorkbook(); }
  Ref<excel::Worksheet> Sheet() { return Book()->Worksheets()->Item(1); }
  Ref<excel::Chart> Chart() { return Sheet()->ChartObjects()->Item("Chart 1")->Chart(); }
  Ref<excel::Series> Series() { return Chart()->SeriesCollection()->Item(1); }
  dress::Host& Host() { return *host_; }

 private:
  dress::HostPtr host_;
  Ref<excel::Application> application_;
  std::string journal_;
};

}  // namespace plotsmith::contract
