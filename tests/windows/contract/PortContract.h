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

/// The access to the embedded host: direct, like the system of the command, or through proxies of its COM
/// objects, like the system inside Excel.
enum class Way { kDirect, kThroughCom };

/// Returns the result of a member in the journal's format: a value; "Nothing" or "an object"; "done" for no
/// result; the number and text of an error.
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

/// Checks the result of a call.
#define SAYS(call, words) EXPECT_EQ(Answer([&] { return call; }), words)

/// A test of the results that every host must return, on a new workbook with some cells and a chart. Both
/// ways must also make the same changes: their journals are compared.
class PortContract : public testing::TestWithParam<Way> {
 protected:
  void SetUp() override;
  void TearDown() override;

  excel::Application& Excel() { return *application_; }
  Ref<excel::Workbook> Book() { return Excel().ActiveWorkbook(); }
  Ref<excel::Worksheet> Sheet() { return Book()->Worksheets()->Item(1); }
  Ref<excel::Chart> Chart() { return Sheet()->ChartObjects()->Item("Chart 1")->Chart(); }
  Ref<excel::Series> Series() { return Chart()->SeriesCollection()->Item(1); }
  automation::Host& Host() { return *host_; }

 private:
  automation::HostPtr host_;
  Ref<excel::Application> application_;
  std::string journal_;
};

}  // namespace plotsmith::contract
