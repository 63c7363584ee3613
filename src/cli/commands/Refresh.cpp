#include "cli/commands/Refresh.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "cli/NumberOptions.h"
#include "cli/Session.h"
#include "cli/batch/Workers.h"
#include "cli/render/DrawnCharts.h"
#include "cli/render/PictureNames.h"
#include "common/PSConstants.h"
#include "controller/CPlotsmithController.h"

namespace plotsmith::cli {

void RefreshCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", books_, "The workbooks (.xlsx, .xlsm, .xltx or .xltm)")->required();
  verb.add_option("--table", table_, "Rebuild only the charts of the table with this id")->type_name("ID");
  verb.add_option("-o,--output", output_,
                  "Write to this file, or into this folder, and leave BOOK as it is; \"-\" is the standard "
                  "output")
      ->type_name("FILE");
  DeclareNumber(
      verb, "--jobs", [this](double jobs) { jobs_ = jobs; },
      "Work on this many workbooks at a time (default: two for each processor). "
      "On Windows, workbooks are processed one after the other");
  verb.add_flag("--verbose", verbose_, "Print a summary at the end");
  verb.add_option("--render", pictureFolder_, "Also draw the refreshed charts into this folder")
      ->type_name("FOLDER");
  DeclarePictureOptions(verb, pictures_, "svg");
}

int RefreshCommand::Run(const GlobalOptions& options, const Streams& streams) {
  if (table_) RequireTableId(*table_);
  if (jobs_ && *jobs_ < 1) throw CommandError(exit_code::kUsage, "--jobs needs a number of at least 1.");
  const std::vector<BookRun> runs = PlanRuns(books_, output_);
  CheckPictures(runs);
  const auto refresh = [&](const BookRun& run, const Streams& to) { return RefreshBook(run, options, to); };
  if (runs.size() > 1) {
    const auto most = static_cast<double>(runs.size());
    const auto processes = jobs_ ? static_cast<std::size_t>(std::min(*jobs_, most)) : UsualProcesses();
    return RunBatch(runs, refresh, processes, verbose_, streams);
  }
  const BookResult result = refresh(runs.front(), streams);
  if (verbose_ || streams.terminal) streams.err << CountsText(result.counts) << '\n';
  return result.code;
}

PicturePlan RefreshCommand::PlanOfPictures() const {
  return PlanPictures(pictures_, pictureFolder_->ends_with('/') ? *pictureFolder_ : *pictureFolder_ + "/");
}

void RefreshCommand::CheckPictures(const std::vector<BookRun>& runs) const {
  if (!pictureFolder_) {
    if (pictures_.AreGiven())
      throw CommandError(exit_code::kUsage, "--format, --dpi and --scale are for the pictures of --render.");
    return;
  }
  if (pictureFolder_->empty()) throw CommandError(exit_code::kUsage, "--render needs the name of a folder.");
  if (LooksLikePicture(*pictureFolder_)) {
    throw CommandError(exit_code::kUsage,
                       "--render needs a folder, and \"" + *pictureFolder_ +
                           "\" looks like a picture. Add \"/\" if the folder has this name; "
                           "to write a single file, use plotsmith render -o.");
  }
  PlanOfPictures();
  std::map<std::string, std::string> books;  // The workbooks by the beginning of their pictures' names.
  for (const BookRun& run : runs) {
    const auto [other, isNew] = books.emplace(PictureNames(run.book).NameFor(""), run.book);
    if (!isNew) {
      throw CommandError(exit_code::kUsage, "the charts of \"" + other->second + "\" and \"" + run.book +
                                                "\" would have the same names in \"" + *pictureFolder_ +
                                                "\".");
    }
  }
}

BookResult RefreshCommand::RefreshBook(const BookRun& run, const GlobalOptions& options,
                                       const Streams& streams) const {
  Session session(run.book, options, streams);
  session.CheckWritable(run.output);
  session.CheckBeforeRun(DefinitionsAre::kUsed);
  const bool hasDefinitions = session.Book().FindWorksheet(kDefinitionsSheet) != nullptr;
  CPlotsmithController controller;
  if (table_) {
    std::string table = *table_;
    controller.RefreshChartsForTable(session.Host(), table);
    session.CheckTable(table);
  } else {
    controller.RefreshPlotsmithData(session.Host(), kHostName, "");
  }
  const RefreshCounts counts = session.Counts();
  // A run adds the sheet of the definitions. Without definitions, only that would be saved.
  int code = hasDefinitions || run.output ? session.Save(run.output) : session.Discard();
  if (pictureFolder_) {
    const bool list = !IsStandardOutput(run.output);
    auto writer = std::make_unique<PictureWriter>(PlanOfPictures(), streams, list);
    const auto drawn =
        WriteCharts(session.Book(), run.book, AllToDraw(session.StartedCharts()), std::move(writer), streams);
    if (drawn.hasMessages && code == exit_code::kDone) code = exit_code::kDoneWithMessages;
  }
  if (session.ChartsStarted() > 0 || session.HasMessages()) return {code, counts};
  streams.err << "plotsmith: "
              << (table_ ? "no chart of \"" + run.book + "\" uses the table \"" + *table_ + "\""
                         : "\"" + run.book + "\" has no charts of Plotsmith")
              << ", so nothing was refreshed.\n";
  return {exit_code::kDoneWithMessages, counts};
}

}  // namespace plotsmith::cli
