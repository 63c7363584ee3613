#include <QtCore/QProcess>
#include <QtCore/QTemporaryFile>
#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Uses the existing screen. ScreensTest runs this test on others.
class PageFitsTest : public test::ProgramTest {
 protected:
  PageFitsTest() : font_(QApplication::font()) { AddChart(); }
  ~PageFitsTest() override {
    QApplication::setFont(font_);
    QApplication::setLayoutDirection(Qt::LeftToRight);
  }

  const QFont font_;
};

/// Returns widgets whose contents are cut off, or that are outside their parent.
S CutWidgets(const qt::FormWindow& page) {
  S names;
  for (const forms::Control* control : page.Model().Controls()) {
    const QWidget* const widget = page.WidgetOf(*control);
    if (widget == nullptr || !widget->isVisible()) continue;
    const bool hasFixedText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                              qobject_cast<const QLabel*>(widget) != nullptr;
    const QSize least = hasFixedText ? widget->sizeHint() : widget->minimumSizeHint();
    const bool isCut = hasFixedText && (widget->width() < least.width() || widget->height() < least.height());
    if (isCut || !widget->parentWidget()->rect().contains(widget->geometry()))
      names += control->FullName() + " ";
  }
  return names;
}

/// Returns controls that aren't visible although they have the focus.
S UnseenFocus(qt::FormWindow& page) {
  S names;
  const auto* const scroll = page.findChild<QScrollArea*>();
  for (forms::Control* control : page.Model().Controls()) {
    if (!control->UserFocus()) continue;
    page.Update();
    QWidget* const widget = page.WidgetOf(*control);
    const QRect place(widget->mapTo(scroll->viewport(), QPoint()), widget->size());
    if (!scroll->viewport()->rect().intersects(place)) names += control->FullName() + " ";
  }
  return names;
}

/// The sizes of fonts, in points, and the directions of writing that pages are shown with.
constexpr std::pair<int, Qt::LayoutDirection> kLooks[] = {
    {8, Qt::LeftToRight}, {10, Qt::LeftToRight}, {10, Qt::RightToLeft}, {12, Qt::LeftToRight}};

TEST_F(PageFitsTest, NothingIsCutOff) {
  for (const test::Way& way : test::kWays) {
    for (const auto& [points, direction] : kLooks) {
      SCOPED_TRACE(way.page + " at " + std::to_string(points) +
                   (direction == Qt::RightToLeft ? " from the right" : ""));
      QFont font = font_;
      font.setPointSize(points);
      QApplication::setFont(font);
      QApplication::setLayoutDirection(direction);
      Run(way.lines + "do wait; do look",
          {{"look", [] {
              qt::FormWindow& page = *test::FrontPage();
              const QSize room = page.screen()->availableGeometry().size();
              EXPECT_EQ(page.size().boundedTo(room), page.size());
              EXPECT_EQ(CutWidgets(page), "");
              if (!page.isRightToLeft()) {
                EXPECT_EQ(UnseenFocus(page), "");
              }
              const auto* const scroll = page.findChild<QScrollArea*>();
              const bool isScrolled =
                  scroll->verticalScrollBar()->maximum() > 0 || scroll->horizontalScrollBar()->maximum() > 0;
              std::cout << page.Model().Name() << " " << page.width() << " x " << page.height()
                        << (isScrolled ? " scrolled" : "") << "\n";
            }}});
    }
  }
}

TEST(ScreensTest, PagesFitASmallScreenAtEachScale) {
  QTemporaryFile screen;
  ASSERT_TRUE(screen.open());
  screen.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1366, "height": 768,
                   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  screen.flush();
  for (const char* scale : {"1.5", "2"}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName());
    environment.insert("QT_SCALE_FACTOR", scale);
    // Otherwise this test runs only what belongs to its part of the tests.
    environment.remove("GTEST_TOTAL_SHARDS");
    environment.remove("GTEST_SHARD_INDEX");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=PageFitsTest.*"});
    ASSERT_TRUE(process.waitForFinished(120000));
    const S output = process.readAll().toStdString();
    EXPECT_EQ(process.exitCode(), 0) << "at scale " << scale << "\n" << output;
    EXPECT_NE(output.find("[  PASSED  ] 1 test."), S::npos) << output;
  }
}

}  // namespace
}  // namespace plotsmith
