#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <gtest/gtest.h>

#include "qt/wizard/ChartPicture.h"
#include "tests/support/HostTest.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::qt {
namespace {

/// Tests the window's pictures of a refreshed column chart.
class ChartPictureTest : public test::HostTest {
 protected:
  void SetUp() override {
    Open(test::SalesBook({{"VEX_Chart1"}}));
    Refresh();
    shape_ = Book().FindWorksheet("Charts")->FindDrawing()->Shapes().front();
  }
  QImage Picture(const QSize& pixels) { return PictureOf(shape_->Chart(), pixels).value_or(QImage()); }

  std::shared_ptr<xlsx::SheetShape> shape_;
};

TEST_F(ChartPictureTest, HasTheRequestedSizeAndTheColorsOfTheChart) {
  for (const QSize size : {QSize(512, 360), QSize(1024, 720), QSize(301, 207)}) {
    const QImage picture = Picture(size);
    ASSERT_EQ(picture.size(), size);
    // The picture has a bar in the first automatic colour on white.
    int bars = 0, white = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        bars += picture.pixel(x, y) == qRgb(0x4F, 0x81, 0xBD) ? 1 : 0;
        white += picture.pixel(x, y) == qRgb(255, 255, 255) ? 1 : 0;
      }
    }
    const int all = size.width() * size.height();
    EXPECT_GT(bars, all / 50) << size.width();
    EXPECT_GT(white, all / 4) << size.width();
  }
  EXPECT_TRUE(Picture({0, 100}).isNull());
  EXPECT_TRUE(Picture({100000, 100000}).isNull());
}

TEST_F(ChartPictureTest, FollowsTheChart) {
  const QImage before = Picture({400, 300});
  EXPECT_EQ(Picture({400, 300}), before);
  shape_->Chart()->SetChartType(excel::xlPie);
  EXPECT_NE(Picture({400, 300}), before);
}

TEST_F(ChartPictureTest, ThePainterDrawsWithThePixelsOfTheScreen) {
  for (const double ratio : {1.0, 2.0, 1.5}) {
    QPixmap pixmap((QSizeF(300, 200) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::magenta);
    QPainter painter(&pixmap);
    EXPECT_TRUE(MakeChartPainter()(painter, shape_->Chart(), QRectF(0, 0, 300, 200)));
    painter.end();
    EXPECT_EQ(pixmap.toImage().convertToFormat(QImage::Format_RGB32), Picture(pixmap.size()))
        << "the picture isn't stretched at " << ratio;
  }
}

TEST_F(ChartPictureTest, FitsIntoAnAreaInItsProportions) {
  const double width = shape_->Width(), height = shape_->Height();
  const QSize wide = FittingSize(shape_->Chart(), {1000, 200}),
              high = FittingSize(shape_->Chart(), {200, 1000});
  EXPECT_EQ(wide.height(), 200);
  EXPECT_EQ(high.width(), 200);
  for (const QSize& size : {wide, high})
    EXPECT_NEAR(size.width() / double(size.height()), width / height, 0.01);
}

TEST_F(ChartPictureTest, AChartThatWasDeletedHasNoPicture) {
  const auto chart = shape_->Chart();
  shape_->Delete();
  EXPECT_EQ(PictureOf(chart, {100, 100}), std::nullopt);
  EXPECT_EQ(PictureOf(nullptr, {100, 100}), std::nullopt);
}

}  // namespace
}  // namespace plotsmith::qt
