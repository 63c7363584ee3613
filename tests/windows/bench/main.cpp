// Measures a refresh of all charts through COM: the number of calls of Excel's members, and the time. A call
// is faster here than in Excel, so the number is more meaningful. Usage: plotsmith_windows_bench BOOK...

#include <chrono>
#include <cstdio>
#include <string>

#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/UnattendedView.h"
#include "tests/windows/host/HostMembers.h"
#include "windows/com/Calls.h"
#include "windows/excel/CellReader.h"
#include "windows/excel/WrapApplication.h"
#include "xlsx/Application.h"

namespace plotsmith {
namespace {

/// A desktop that shows nothing.
class SilentDesktop final : public desktop::Desktop {
 public:
  std::int32_t MsgBox(std::string_view text, desktop::Buttons, desktop::Icon, std::string_view) override {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    return desktop::kOk;
  }
  void ShowHelp(std::intptr_t, const std::string&, std::int32_t) override {}
  double Timer() override { return 0; }
  void SetMousePointer(std::int32_t) override {}
  std::int32_t UserDefaultLCID() override { return 1033; }
};

struct Cost {
  std::uint64_t calls;
  double milliseconds;
};

Cost Refresh(const std::string& book, bool throughCom) {
  StartSystem(std::make_shared<SilentDesktop>(), std::make_shared<forms::UnattendedView>());
  const auto host = std::make_shared<automation::Host>();
  host->application->Open(book);
  excel::Ref<excel::Application> application(host->application);
  if (throughCom) {
    const auto dispatch = com::ComPtr<IDispatch>::Attach(automation::NewApplication(host));
    application = excel::WrapApplication(dispatch.Get());
  }
  const std::uint64_t calls = com::CallCount();
  const auto began = std::chrono::steady_clock::now();
  CPlotsmithController().RefreshPlotsmithData(application, "bench", "");
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - began;
  application = nullptr;
  StopSystem();
  return {com::CallCount() - calls, time.count()};
}

}  // namespace
}  // namespace plotsmith

int main(int argc, char** argv) {
  using namespace plotsmith;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  std::printf("%-24s %12s %8s %12s %8s %10s\n", "book", "calls", "ms", "one by one", "ms", "direct ms");
  for (int i = 1; i < argc; ++i) {
    const Cost usual = Refresh(argv[i], true);
    proxies::CellReader::SetLongestStretch(1);
    const Cost oneByOne = Refresh(argv[i], true);
    proxies::CellReader::SetLongestStretch(16384);
    const Cost direct = Refresh(argv[i], false);
    std::printf("%-24s %12llu %8.0f %12llu %8.0f %10.0f\n", argv[i],
                static_cast<unsigned long long>(usual.calls), usual.milliseconds,
                static_cast<unsigned long long>(oneByOne.calls), oneByOne.milliseconds, direct.milliseconds);
  }
  CoUninitialize();
}
