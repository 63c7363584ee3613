#include <cstdlib>
#include <filesystem>
#include <pugixml.hpp>
#include <set>

#include "render/svg/SvgWriter.h"
#include "tests/render/DrawingTest.h"
#include "tests/support/Paths.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;

/// A typical size of the charts in these workbooks, for which positions (in fractions) and fonts (in points)
/// fit together.
constexpr double kWidth = 720, kHeight = 432;

/// The plot area has a manual layout that ends at the chart's edge, so Excel also cuts its labels off.
const std::set<S> kLabelsOutside = {"32readwriteComboChart1.xlsx"};

class BooksTest : public DrawingTest {
 protected:
  /// Draws and checks all charts of a workbook. Returns the number of readable charts.
  int DrawAll(const fs::path& book) {
    int drawn = 0;
    OpenFile(book.string());
    for (const S& part : Book().Package().Parts()) {
      const bool isChart = part.find("/charts/chart") != S::npos && part.ends_with(".xml");
      if (!isChart || !Book().Chart(part)->IsReadable()) continue;
      render::Notes notes;
      const Drawing drawing = render::DrawChart(*Book().Chart(part), kWidth, kHeight, SharedFonts(), notes);
      const S complaints = DrawingComplaints(drawing);
      const bool known = kLabelsOutside.contains(book.filename().string());
      EXPECT_EQ(complaints.find("TickLabel") != S::npos, known) << book << ' ' << part << ' ' << complaints;
      if (!known) {
        EXPECT_EQ(complaints, "") << book << ' ' << part;
      }
      const S svg = MakeSvg(drawing);
      pugi::xml_document document;
      EXPECT_TRUE(document.load_buffer(svg.data(), svg.size())) << book << ' ' << part;
      EXPECT_FALSE(Book().Chart(part)->Changed()) << book << ' ' << part;
      ++drawn;
    }
    return drawn;
  }
  int DrawFolder(const fs::path& folder) {
    int drawn = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".xlsx") drawn += DrawAll(entry.path());
    }
    return drawn;
  }
};

TEST_F(BooksTest, ChartsOfTheExamplesAreDrawnWithoutAComplaint) {
  EXPECT_GT(DrawFolder(fs::path(kSourceFolder) / "examples"), 8);
}

TEST_F(BooksTest, ChartsOfTheGalleryAreDrawnWithoutAComplaint) {
  const S command = S(kMakeGallery) + " " + folder_.Path().string() + " >" + (folder_ / "pages") + " 2>&1";
  ASSERT_EQ(std::system(command.c_str()), 0);
  EXPECT_GT(DrawAll(folder_ / "gallery.xlsx"), 40);
}

TEST_F(BooksTest, ChartsOfOtherProgramsAreDrawnWithoutAComplaint) {
  const fs::path folder = fs::path(kCorpusFolder) / "charts";
  if (!fs::exists(folder)) GTEST_SKIP() << "no corpus";
  EXPECT_GT(DrawFolder(folder), 60);
}

}  // namespace
}  // namespace plotsmith
