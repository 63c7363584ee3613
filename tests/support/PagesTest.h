#pragma once

#include <cstdint>
#include <functional>
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

/// Functions that a test calls during a script, by name.
using Actions = std::map<std::string, std::function<void()>>;

/// Returns the lines of a script, which are separated by "; ".
std::vector<std::string> LinesOf(const std::string& script);

/// The lines of a script, separated by "; ", with additional verbs for properties that scripts of the command
/// can't check:
///
/// | line | what it does |
/// |---|---|
/// | `look focus CONTROL` | checks the control with the focus |
/// | `look default BUTTON` | checks the button that Enter presses |
/// | `look off CONTROL...` | checks all disabled controls; "!" follows a box with the wrong colour |
/// | `look pictures IMAGE...` | checks all visible images |
/// | `look marked CONTROL...` | checks all controls with the mark's colour; "!" follows an inconsistent frame
/// | | `look GRID ROW|ROW...` | checks all rows of a grid, with commas between cells | | `clear LIST` |
/// removes the current entry, which a user can't do | | `force TYPE` | sets the chart type, even if the page
/// doesn't offer it | | `definition` | stores the document that is being edited | | `do NAME` | calls the
/// function of the test with this name |
class PageLines final : public forms::LineSource {
 public:
  explicit PageLines(const std::string& script, Actions actions = {})
      : lines_(LinesOf(script)), actions_(std::move(actions)) {}
  std::optional<std::string> NextLine(const forms::ScriptState& state) override;

  const std::string& LastLine() const { return lines_.at(next_ - 1); }
  std::vector<std::string> definitions;
  std::set<std::string> images;  ///< The names of all images on all pages that were open.

 private:
  /// Executes one of the verbs above. Returns false for other lines. Throws ScriptError if it fails.
  bool PlayOwn(const std::string& line, const forms::Form* form);

  std::vector<std::string> lines_;
  Actions actions_;
  std::size_t next_ = 0;
};

/// The simulated user of a script, and the view on which it works.
struct Hands {
  std::unique_ptr<forms::Hand> hand;
  std::function<std::shared_ptr<forms::View>(const std::shared_ptr<forms::ScriptPlayer>& player)> viewOf;
};
/// Makes the simulated user of the next script. By default it works on the model.
extern std::function<Hands()> MakeHands;

/// A test of the wizard's pages with scripts.
class PagesTest : public HostTest {
 protected:
  /// Runs the wizard on the open workbook with a script for PageLines. Returns "", or the line that failed
  /// and the reason.
  std::string Play(const std::string& script, Actions actions = {});
  /// Does the same on a new workbook.
  std::string Play(const PlainBook& book, const std::string& script) {
    Open(book);
    return Play(script);
  }
  /// Returns the definition in a row of the hidden sheet. The first one is in row 2.
  std::string Stored(int row = 2) { return Cells("VEX_ChartDefinitions", row, 1, row, 1); }
  /// Returns the shapes of a sheet, each with its type and alternative text.
  std::string Shapes(const std::string& sheet);
  std::string ActiveSheet() { return Book().ActiveSheet()->Name(); }

  std::vector<std::string>
      definitions_;               ///< The documents of the last script, one for each line `definition`.
  std::set<std::string> images_;  ///< The images on all its pages.
  std::vector<std::int32_t> helpTopics_;  ///< The help topics that the last script opened.
};

/// Returns the lines that lead to the layout page of a new chart in a workbook without charts. `type` is the
/// index of optType.
std::string NewChart(int type, const std::string& table = "Data1");
/// Returns the lines that lead to the layout page of the chart in a row of the list, from 1.
std::string ModifyChart(int row = 1);

/// A chart that waits for its first refresh.
struct PlacedChart {
  std::string sheet;  ///< The sheet. A sheet named Hidden is hidden, and one named Very is very hidden.
  std::string name;
  std::string table = "Data1";
  std::string attributes = "";  ///< Attributes of its definition, such as its title.
};
/// Returns a workbook with the table Data1 and column charts, whose ids are VEX_Chart1 and so on.
PlainBook BookOfCharts(const std::vector<PlacedChart>& charts);

/// Returns a workbook without charts whose table Data1 has these columns and one row of texts or numbers.
PlainBook BookOfColumns(const std::vector<std::string>& labels, const std::vector<std::string>& numbers);
/// Returns a workbook without charts, with the bubble table of FamilyBooks.
PlainBook NewBubbleBook();
/// Returns a workbook without charts, with the tables of FamilyBooks and a second bucket table Others.
PlainBook NewBucketBook();

}  // namespace plotsmith::test
