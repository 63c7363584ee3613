#include "qt/wizard/PreviewRun.h"

#include <vector>

#include "cli/ConsoleDesktop.h"
#include "common/App.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "forms/Buttons.h"
#include "forms/UnattendedView.h"
#include "qt/wizard/ChartPicture.h"
#include "runtime/Ref.h"
#include "runtime/Variant.h"

namespace plotsmith::qt {
namespace {

constexpr const char* kFinishButton = "cmdFinish";

/// Returns a message without the title of its box.
std::string TextOfMessage(const std::string& line) {
  const std::string title = std::string(kProductTitle) + ": ";
  return line.starts_with(title) ? line.substr(title.size()) : line;
}

}  // namespace

Preview RunPreview(LayoutPage& page, const std::shared_ptr<xlsx::Application>& host, const QSize& room) {
  const auto desktop = runtime::MakeRef<cli::ConsoleDesktop>();
  App.Desktop = desktop;
  App.Forms = runtime::MakeRef<forms::ModalLoop>(std::make_shared<forms::UnattendedView>());
  host->Journal().SetSink({});
  excel::Ref<excel::Chart> chart;
  host->DefineMacro(kRefreshStartedMacro, [&](const std::vector<runtime::Variant>& arguments) {
    if (!arguments.empty() && colChartObjects) chart = colChartObjects->Item(runtime::CStr(arguments[0]));
  });

  auto* const finish = dynamic_cast<forms::CommandButton*>(page.FindControl(kFinishButton));
  if (finish != nullptr) finish->UserPressByKey();

  Preview preview;
  if (chart) preview.picture = PictureOf(chart, FittingSize(chart, room)).value_or(QImage());
  if (!desktop->Messages().empty()) preview.message = TextOfMessage(desktop->Messages().front());
  return preview;
}

}  // namespace plotsmith::qt
