#include "cli/commands/Render.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <utility>

#include "cli/Failures.h"
#include "cli/Session.h"
#include "cli/check/Words.h"
#include "cli/render/ChartsToDraw.h"
#include "cli/render/DrawnCharts.h"
#include "cli/render/DrawnSheet.h"
#include "runtime/Utf8Path.h"
#include "xlsx/Sheet.h"

namespace plotsmith::cli {

void RenderCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_option(
      "CHART", charts_,
      "The id or the name of a chart; or any chart by its sheet and shape, such as "
      "'Sheet1!Chart 2', or by its chart sheet. Without this argument, all charts of Plotsmith are drawn");
  verb.add_option("--sheet", sheet_, "Draw this sheet with its cells and charts, as it is printed")
      ->type_name("SHEET");
  verb.add_flag("--one-page", onePage_, "Draw the sheet on one page that is as large as its contents");
  DeclarePictureOptions(verb, pictures_, "the extension of -o, else svg");
  verb.add_option("-o,--output", output_,
                  "Write to this file or into this folder (default: the current folder); \"-\" is the "
                  "standard output")
      ->type_name("FILE");
}

int RenderCommand::Run(const GlobalOptions& options, const Streams& streams) {
  if (sheet_ && !charts_.empty())
    throw CommandError(exit_code::kUsage, "--sheet draws a whole sheet and can't be combined with charts.");
  if (onePage_ && !sheet_) throw CommandError(exit_code::kUsage, "--one-page can only be used with --sheet.");
  const PicturePlan plan = PlanPictures(pictures_, output_);
  std::error_code ignored;
  if (plan.target == PicturePlan::Target::kFile &&
      std::filesystem::equivalent(runtime::PathOf(book_), runtime::PathOf(plan.path), ignored)) {
    throw CommandError(exit_code::kUsage,
                       "\"" + plan.path + "\" is the workbook itself; a picture would replace it.");
  }
  const bool list = plan.target == PicturePlan::Target::kFolder;
  auto writer = std::make_unique<PictureWriter>(plan, streams, list);
  writer->LoadAhead();
  Session session(book_, options, streams);
  return sheet_ ? RenderSheet(session, std::move(writer), streams)
                : RenderCharts(session, std::move(writer), streams);
}

int RenderCommand::RenderCharts(Session& session, std::unique_ptr<PictureWriter> writer,
                                const Streams& streams) const {
  session.UseBook();
  const auto defined = DefinedCharts(session.Book());
  const int code = session.Finish();
  const auto charts =
      charts_.empty() ? AllToDraw(defined) : NamedChartsToDraw(session.Book(), defined, book_, charts_);
  if (charts.empty()) {
    const auto others = OtherCharts(session.Book(), defined);
    streams.err << "plotsmith: \"" << book_ << "\" has no charts of Plotsmith, so nothing was drawn";
    if (!others.empty()) streams.err << "; other charts are drawn if you name them: " << Listed(others);
    streams.err << ".\n";
    return exit_code::kDoneWithMessages;
  }
  CheckPictureCount(writer->Plan(), charts.size(), "chart", streams);
  const DrawnCounts counts = WriteCharts(session.Book(), book_, charts, std::move(writer), streams);
  if (counts.drawn == 0) throw CommandError(exit_code::kFile, "nothing was drawn.");
  return counts.hasMessages ? exit_code::kDoneWithMessages : code;
}

int RenderCommand::RenderSheet(Session& session, std::unique_ptr<PictureWriter> writer,
                               const Streams& streams) const {
  const auto sheet = session.Book().Tabs().Find(*sheet_);
  if (!sheet) {
    std::vector<std::string> names;
    for (const auto& one : session.Book().Tabs().All()) names.push_back(one->name);
    throw NotInBook(book_, "sheet", *sheet_, names);
  }
  const auto paper = onePage_ ? render::Paper::kOne : render::Paper::kPrinted;
  const bool hasMessages = WriteSheet(session.Book(), book_, *sheet, paper, std::move(writer), streams);
  return hasMessages ? exit_code::kDoneWithMessages : session.Finish();
}

}  // namespace plotsmith::cli
