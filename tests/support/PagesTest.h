#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/script/LineSource.h"
#include "forms/script/ScriptPlayer.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// What a test does in the middle of a script, by names.
using Deeds = std::map<std::string, std::function<void()>>;

/// The lines of a script, between which "; " stands, with verbs for what a script of the command can't see:
///
/// | line | what happens |
/// |---|---|
/// | `look focus CONTROL` | the control that has the focus |
/// | `look default BUTTON` | the button that Enter presses |
/// | `look off CONTROL...` | all controls that are off; a box whose colour doesn't fit has "!" behind it |
/// | `look pictures IMAGE...` | all images that show |
/// | `look marked CONTROL...` | all controls in the colour of the mark; a frame that isn't bold and flat as
/// well, or is so without the colour, has "!" behind it |
/// | `look GRID ROW|ROW...` | all rows of a grid, their cells with commas between them |
/// | `clear LIST` | takes the current entry away, as no hand can |
/// | `force TYPE` | makes this the chart's type, even if the page doesn't offer it |
/// | `definition` | writes down the document being edited |
/// | `do NAME` | what the test has under this name |
class PageLines final : public forms::LineSource {
 public:
  explicit PageLines(const std::string& script, Deeds deeds = {});
  std::optional<std::string> NextLine(const forms::Scene& scene) override;

  const std::string& LastLine() const { return lines_[next_ - 1]; }
  std::vector<std::string> definitions;
  std::set<std::string> images;  ///< names of all images of all pages that were open

 private:
  /// Whether the line is one of the verbs above; a ScriptError where it can't be done.
  bool PlayOwn(const std::string& line, const forms::Form* form);

  std::vector<std::string> lines_;
  Deeds deeds_;
  std::size_t next_ = 0;
};

/// What plays a script: a hand, and the view on which it works.
struct Hands {
  std::unique_ptr<forms::Hand> hand;
  std::function<std::shared_ptr<forms::View>(const std::shared_ptr<forms::ScriptPlayer>& player)> viewOf;
};
/// Makes the hands of the next script. As long as nothing else is put here, they work on the model alone.
extern std::function<Hands()> MakeHands;

/// A test of the wizard's pages by scripts.
class PagesTest : public HostTest {
 protected:
  /// Runs the wizard on the open workbook by a script for PageLines. Answers "" where it was played to its
  /// end, else the line that failed and why.
  std::string Play(const std::string& script, Deeds deeds = {});
  /// The same on a new workbook.
  std::string Play(const PlainBook& book, const std::string& script) {
    Open(book);
    return Play(script);
  }
  /// The definition in a row of the hidden sheet, from 2.
  std::string Stored(int row = 2) { return Cells("VEX_ChartDefinitions", row, 1, row, 1); }
  /// The shapes of a sheet, each with its type and alternative text.
  std::string Shapes(const std::string& sheet);
  std::string ActiveSheet() { return Book().ActiveSheet()->Name(); }

  std::vector<std::string> definitions_;  ///< of the last script, a text for each line `definition`
  std::set<std::string> images_;          ///< of all pages that it came to
  std::vector<std::int32_t> helpTopics_;  ///< that the last script asked for
};

/// The lines that lead from a workbook without charts to the layout page of a new one. `type` is the index of
/// optType.
std::string NewChart(int type, const std::string& table = "Data1");
/// The lines that lead to the layout page of the chart in the row of the list, from 1.
std::string ModifyChart(int row = 1);

/// A chart that waits on a sheet.
struct PlacedChart {
  std::string sheet;  ///< a sheet named Hidden is hidden, one named Very is very hidden
  std::string name;
  std::string table = "Data1";
  std::string attributes = "";  ///< of its definition, such as its title
};
/// The table Data1 and column charts, whose ids are VEX_Chart1 and so on.
PlainBook BookOfCharts(const std::vector<PlacedChart>& charts);

/// A workbook without charts whose table Data1 has these columns, with a row of texts or numbers below.
PlainBook BookOfColumns(const std::vector<std::string>& labels, const std::vector<std::string>& numbers);
/// Such a workbook with the table of bubbles of FamilyBooks.
PlainBook NewBubbleBook();
/// Such a workbook with the tables of FamilyBooks, and with Others, a second table of buckets.
PlainBook NewBucketBook();

}  // namespace plotsmith::test
