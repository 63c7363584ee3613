#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <fstream>

#include "qt/wizard/PreviewWindow.h"
#include "qt/wizard/PreviewWorker.h"
#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"

namespace plotsmith {
namespace {

using S = std::string;
using test::BytesIfThere;
using test::BytesOf;

const char* const kToLayout =
    "page frmPSSelectTable; select grdTables Data1; choose optType(1); press cmdNext; page frmPSLayoutABC; ";

qt::PreviewWindow* FindPreview() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* preview = dynamic_cast<qt::PreviewWindow*>(widget)) return preview;
  }
  return nullptr;
}

/// Returns the number of pixels that aren't grey.
int ColoredPixels(const QImage& picture) {
  int colored = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb pixel = picture.pixel(x, y);
      colored += qRed(pixel) != qGreen(pixel) || qGreen(pixel) != qBlue(pixel) ? 1 : 0;
    }
  }
  return colored;
}

class PreviewTest : public test::ProgramTest {
 protected:
  /// Waits until the preview changes, and stores it.
  void Await() {
    const auto isNew = [this] {
      const auto* const preview = FindPreview();
      return preview != nullptr && preview->isVisible() &&
             (preview->Shown().picture != last_.picture || preview->Shown().message != last_.message);
    };
    EXPECT_TRUE(QTest::qWaitFor(isNew, 10000));
    if (const auto* const preview = FindPreview()) last_ = preview->Shown();
    shown_.push_back(last_);
  }
  test::ProgramResult RunAndAwait(const S& script) {
    return Run(script, {{"await", [this] { Await(); }},
                        // The page leaves space for the preview on a small screen.
                        {"corner", [] { test::FrontPage()->move(0, 0); }}});
  }

  qt::Preview last_;
  std::vector<qt::Preview> shown_;
};

TEST_F(PreviewTest, FollowsThePageAndLeavesTheWorkbookAlone) {
  const auto run = RunAndAwait(
      S(kToLayout) +
      "do await; choose optSeries(1); choose cboSeries Product; do await; check chkStacked; do await; "
      "type txtTitle Sums; do await; press cmdCancel");
  EXPECT_EQ(run.seen, "frmPSSelectTable frmPSLayoutABC");
  ASSERT_EQ(shown_.size(), 4u);
  for (const qt::Preview& preview : shown_) {
    EXPECT_FALSE(preview.picture.isNull());
    EXPECT_GT(ColoredPixels(preview.picture), 200);
  }
  EXPECT_TRUE(BytesOf(book_) == fresh_);
}

TEST_F(PreviewTest, EachLayoutPageHasOneAndAlsoAChartThatIsModified) {
  AddChart();
  for (const auto& [page, lines] : test::kWays) {
    if (page.find("Layout") == S::npos) continue;
    SCOPED_TRACE(page);
    last_ = {};
    RunAndAwait(lines + "do corner; type txtTitle B; do await; press cmdCancel");
    EXPECT_TRUE(!last_.picture.isNull() || !last_.message.empty());
  }
  EXPECT_EQ(shown_.size(), 4u);
  last_ = {};
  RunAndAwait(
      "page frmPSSelectAction; select grdCharts #1; press cmdModify; page frmPSLayoutPie; do await; press "
      "cmdCancel");
  EXPECT_GT(ColoredPixels(last_.picture), 200);
  EXPECT_EQ(last_.message, "");
  EXPECT_TRUE(BytesOf(book_) == fresh_);
}

TEST_F(PreviewTest, TheWorkerIsAProcessThatTheNextStartEnds) {
  std::vector<S> done;
  qt::PreviewWorker worker([&](qt::Preview preview) { done.push_back(preview.message); });
  int here = 0;
  const auto work = [&](const char* message, int milliseconds) {
    return [this, &here, message, milliseconds] {
      QTest::qSleep(milliseconds);
      ++here;
      std::ofstream(folder_ / message) << "done";
      return qt::Preview{QImage(3, 2, QImage::Format_RGB32), message};
    };
  };
  ASSERT_TRUE(worker.Start(work("slow", 400)));
  ASSERT_TRUE(worker.Start(work("quick", 1)));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !done.empty(); }, 10000));
  EXPECT_EQ(done, std::vector<S>{"quick"});
  EXPECT_EQ(here, 0) << "the work was done in this process";
  EXPECT_FALSE(worker.IsRunning());
  // A process that dies has no result and doesn't affect the next one.
  ASSERT_TRUE(worker.Start([]() -> qt::Preview { std::abort(); }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !worker.IsRunning(); }, 10000));
  ASSERT_TRUE(worker.Start(work("again", 1)));
  EXPECT_TRUE(QTest::qWaitFor([&] { return done.size() == 2; }, 10000));
  EXPECT_EQ(BytesOf(folder_ / "again"), "done");
  QTest::qWait(500);
  EXPECT_FALSE(BytesIfThere(folder_ / "slow")) << "the ended process continued";
}

}  // namespace
}  // namespace plotsmith
