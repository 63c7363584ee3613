#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QProgressBar>
#include <cstdlib>
#include <set>

#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"
#include "tests/support/Files.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Measures how long the windows don't process events, from the first event of the busy window on.
class Watch {
 public:
  Watch() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(0);
  }
  qint64 LongestGap() const { return longest_; }  ///< Returns the longest gap in milliseconds.
  const std::set<int>& BarValues() const { return values_; }

 private:
  void Look() {
    const qt::FormWindow* const page = test::FrontPage();
    const bool isBusy = page != nullptr && page->Model().Name() == "frmBusyPS";
    if (isBusy && last_.isValid()) longest_ = std::max(longest_, last_.elapsed());
    if (isBusy) values_.insert(page->findChild<QProgressBar*>()->value());
    last_.start();
  }

  QTimer timer_;
  QElapsedTimer last_;
  qint64 longest_ = 0;
  std::set<int> values_;
};

class LongWorkTest : public test::ProgramTest {
 protected:
  /// Replaces the workbook by one with this number of rows.
  void MakeRows(int count) {
    test::PlainBook book = test::SalesBook({});
    auto& rows = book.Sheet("Data1").rows;
    const test::PlainRow heads = rows.front();
    rows.assign(1, heads);
    const S regions[] = {"North", "East", "South", "West"}, products[] = {"Chair", "Desk", "Lamp"};
    for (int i = 0; i < count; ++i) rows.push_back({regions[i % 4], products[i % 3], i * 1.0, i * 0.5});
    book.Write(book_);
    fresh_ = test::BytesOf(book_);
  }
};

TEST_F(LongWorkTest, TheWindowsWorkDuringABuild) {
  const char* const rows = std::getenv("LONG_ROWS");
  MakeRows(rows == nullptr ? 200000 : std::atoi(rows));
  const Watch watch;
  const auto run = Run(S(test::kNewChart) + "press cmdFinish; page frmBusyPS; do close; box Discard",
                       {{"close", [] {
                           if (auto* busy = test::FrontPage())
                             busy->close();  // The work must not be interrupted.
                           test::BookWindow()->close();
                         }}});
  EXPECT_TRUE(run.seen.ends_with("box")) << run.seen;
  EXPECT_TRUE(test::BytesOf(book_) == fresh_);
  EXPECT_FALSE(watch.BarValues().empty()) << "the busy window processes events";
  EXPECT_LT(watch.LongestGap(), 3000);
  RecordProperty("longest_gap", static_cast<int>(watch.LongestGap()));
  std::cout << "longest gap " << watch.LongestGap() << " ms, " << watch.BarValues().size()
            << " steps of the bar\n";
}

}  // namespace
}  // namespace plotsmith
