// Makes the gallery: a workbook with a chart of every type and setting, one per sheet, and the page that
// shows their pictures. scripts/gallery.sh draws them. Usage: make_gallery FOLDER

#include <array>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "ExampleBook.h"

namespace {

using namespace plotsmith::examples;

constexpr double kWidth = 300, kHeight = 200;  // points
constexpr int kResolution = 72;                // The resolution of LibreOffice's picture in dots per inch.
constexpr int kFarResolution = 45;             // The resolution of a picture that shows more than the chart.

/// A picture of a chart, with its description.
struct Picture {
  std::string name;  ///< The name of the sheet and of the picture's file.
  std::string caption;
  std::string attributes;
  std::string content;
  std::string shown;    ///< The part of the definition that makes the difference.
  std::string comment;  ///< The text of a comment box.
};

struct Section {
  std::string title;
  std::string text;
  std::vector<Picture> pictures;
};

std::string Escaped(const std::string& xml) {
  std::string html;
  for (const char c : xml) {
    html += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
  }
  return html;
}

std::string Persist(const std::string& property, const std::string& value) {
  return "<persist property=\"" + property + "\" value=\"" + value + "\"/>";
}

std::string Look(const std::string& persists) {
  return "<auto-persistence>" + persists + "</auto-persistence>";
}

const std::string kSales = "table-id=\"Data1\" number-format=\"0\" ";
const std::string kNations = "table-id=\"VEX_TableRange_Nations\" ";
const std::string kProjects = "table-id=\"VEX_TableRange_Projects\" number-format=\"0.0\" ";

/// Columns for a chart of regions by quarter.
const std::string kByQuarter = Columns("categories", "rows", {"Quarter"}) +
                               Columns("series", "rows", {"Region"}) + Columns("values", "", {"Revenue"});

Section AreaBarColumn(const std::string& type, const std::string& text) {
  Section section{type, text, {}};
  const auto add = [&](const std::string& name, const std::string& caption,
                       std::initializer_list<const char*> settings) {
    const std::string shown = Settings(settings);
    section.pictures.push_back(
        {type + name, caption, kSales + "type=\"" + type + "\"", kByQuarter + shown, shown, ""});
  };
  add("", "plain", {});
  add("-stacked", "stacked", {"stacked"});
  add("-100", "100%", {"stacked", "100%"});
  add("-3d", "3D", {"3D"});
  add("-3d-stacked", "3D, stacked", {"3D", "stacked"});
  add("-3d-100", "3D, 100%", {"3D", "stacked", "100%"});
  return section;
}

Section Dimensions() {
  Section section{
      "What forms categories and series",
      "These settings apply to area, bar and column charts. `rows` uses the values in one column, "
      "`columns` uses the headings of several columns, and `none` makes one series without a "
      "legend.",
      {}};
  const auto add = [&](const std::string& name, const std::string& caption, const std::string& content,
                       const std::string& shown) {
    section.pictures.push_back({name, caption, kSales + "type=\"column\"", content, shown, ""});
  };
  const std::string quarters = Columns("categories", "rows", {"Quarter"});
  const std::string revenue = Columns("values", "", {"Revenue"});
  std::string series = Columns("series", "columns", {"Revenue", "Cost"});
  add("series-from-columns", "series from columns", quarters + series, series);
  series = Columns("series", "none", {});
  add("series-none", "no series", quarters + series + revenue, series);
  std::string categories = Columns("categories", "columns", {"Revenue", "Cost"});
  add("categories-from-columns", "categories from columns",
      categories + Columns("series", "rows", {"Region"}), categories);
  return section;
}

Section TextsAndLook() {
  Section section{"Texts and look",
                  "The texts are elements of the definition. The settings in `auto-persistence` are usually "
                  "changed by hand on the chart; Plotsmith reads them from the chart.",
                  {}};
  const auto add = [&](const std::string& name, const std::string& caption, const std::string& attributes,
                       const std::string& shown, const std::string& comment = "") {
    section.pictures.push_back({name, caption, kSales + "type=\"column\" " + attributes,
                                kByQuarter + shown + Settings({"stacked"}),
                                shown.empty() ? attributes : shown, comment});
  };
  add("title", "a title", "title=\"Revenue by region\"", "");
  add("axis-labels", "axis labels", "", Axes("Quarter", "Revenue"));
  add("data-labels", "data labels", "", Labels("values"));
  add("legend-bottom", "the legend below", "",
      Look(Persist("legend-visibility", "show") + Persist("legend-position", "-4107")));
  add("legend-hidden", "no legend", "", Look(Persist("legend-visibility", "hide")));
  add("fonts", "fonts", "",
      Labels("values") + Look(Persist("label-font-style", "Bold") + Persist("label-font-color", "16777215") +
                              Persist("legend-visibility", "show") + Persist("legend-font-size", "12") +
                              Persist("legend-font-style", "Italic")));
  add("comment", "a comment box, whose text the definition repeats", "",
      "<comment>North has caught up.</comment>", "North has caught up.");
  section.pictures.push_back({"unavailable", "a chart without a fill whose table is gone",
                              "table-id=\"Gone\" type=\"column\" title=\"Revenue\"", kByQuarter,
                              "table-id=\"Gone\"", ""});
  return section;
}

Section Pies() {
  Section section{"pie", "A pie has one ring of slices, without series and axes.", {}};
  const auto add = [&](const std::string& name, const std::string& caption, const std::string& shown) {
    section.pictures.push_back({"pie" + name, caption, kSales + "type=\"pie\"",
                                Columns("categories", "rows", {"Region"}) + Columns("series", "none", {}) +
                                    Columns("values", "", {"Revenue"}) + shown,
                                shown, ""});
  };
  add("", "plain", Settings({}));
  add("-3d", "3D", Settings({"3D"}));
  add("-exploded", "exploded", Settings({"exploded"}));
  add("-3d-exploded", "3D, exploded", Settings({"3D", "exploded"}));
  add("-values", "values as labels", Labels("values"));
  add("-percentages", "percentages as labels", Labels("percentages"));
  return section;
}

Section Bubbles() {
  Section section{"bubble",
                  "Two numbers give the position of a bubble, and a third one gives its size. Quadrants are "
                  "formed by lines through the middle of both axes.",
                  {}};
  const std::string columns = Columns("categories", "rows", {"Country"}) + Columns("values", "", {"Online"}) +
                              Columns("x-values", "", {"City dwellers"});
  const std::string sizes = Columns("bubble-sizes", "", {"Population"});
  const std::string regions = Columns("series", "rows", {"Region"}), none = Columns("series", "none", {});
  const auto add = [&](const std::string& name, const std::string& caption, const std::string& content,
                       const std::string& shown) {
    section.pictures.push_back(
        {"bubble" + name, caption, kNations + "type=\"bubble\"", columns + content, shown, ""});
  };
  const auto options = [](std::initializer_list<const char*> names) {
    return Settings(names, "static-attributes");
  };
  add("", "plain", regions + sizes, regions);
  add("-3d", "3D", regions + sizes + Settings({"3D"}), Settings({"3D"}));
  add("-no-series", "no series", none + sizes, none);
  add("-zero", "with those of size zero", regions + sizes + options({"show-zero-bubbles"}),
      options({"show-zero-bubbles"}));
  add("-axis-labels", "axis labels", regions + sizes + Axes("City dwellers", "Online"),
      Axes("City dwellers", "Online"));
  add("-quadrants", "quadrants", regions + sizes + options({"quadrants"}), options({"quadrants"}));
  const std::string scaled = options({"quadrants", "autoscale-x", "autoscale-y"});
  add("-autoscale", "quadrants, both axes scaled to the data", regions + sizes + scaled, scaled);
  return section;
}

Section Buckets() {
  Section section{
      "strategic bucket",
      "The chart has a column of blocks for each bucket, a block for each row of the table, and a "
      "mark at the value that the bucket table gives for the bucket.",
      {}};
  const std::string columns = Columns("categories", "rows", {"Project"}) + Columns("values", "", {"Amount"});
  const std::string programmes = Columns("series", "rows", {"Programme"});
  const std::string none = Columns("series", "none", {});
  const auto add = [&](const std::string& name, const std::string& caption, const std::string& content,
                       const std::string& shown) {
    section.pictures.push_back({"bucket" + name, caption,
                                kProjects + "type=\"strategic bucket\" "
                                            "strategic-bucket-table-id=\"VEX_SB_Targets\"",
                                columns + content, shown, ""});
  };
  add("", "coloured by programme", programmes, programmes);
  add("-no-series", "all of one colour", none, none);
  const auto order = [](const std::string& direction) {
    return "<sort-order sort=\"" + direction + "\"><column name=\"Priority\"/></sort-order>";
  };
  add("-ascending", "sorted by another column", programmes + order("ascending"), order("ascending"));
  add("-descending", "the same, the other way round", programmes + order("descending"), order("descending"));
  const std::string manual = "<data-labels manual-labels=\"yes\"/>";
  add("-labels", "blocks with their names", programmes + manual, manual);
  return section;
}

std::vector<Section> Gallery() {
  return {AreaBarColumn("column", "The columns are vertical."),
          AreaBarColumn("bar", "These are the same charts with horizontal bars."),
          AreaBarColumn("area", "These are the same charts with areas. Plain areas cover each other."),
          Dimensions(),
          TextsAndLook(),
          Pies(),
          Bubbles(),
          Buckets()};
}

void MakeTables(ExampleBook& book) {
  const auto sales = book.Sheet("Data1");
  Fill(*sales, 1, {"Quarter", "Region", "Revenue", "Cost"});
  constexpr std::array kRegions = {"North", "South", "West"};
  constexpr double kRevenue[4][3] = {{18, 31, 42}, {29, 44, 55}, {41, 39, 47}, {52, 35, 38}};
  int row = 1;
  for (std::size_t quarter = 0; quarter < 4; ++quarter) {
    for (std::size_t region = 0; region < 3; ++region) {
      const double revenue = kRevenue[quarter][region];
      Fill(*sales, ++row,
           {"Q" + std::to_string(quarter + 1), kRegions[region], revenue,
            revenue - 4 * static_cast<double>(region + 1)});
    }
  }
  const auto nations = book.Sheet("Nations");
  Fill(*nations, 1, {"Nations, approximate figures of 2019: per cent, per cent, millions"});
  Fill(*nations, 3, {"Country", "Region", "City dwellers", "Online", "Population"});
  Fill(*nations, 4, {"China", "Asia", 60.0, 64.0, 1408.0});
  Fill(*nations, 5, {"India", "Asia", 34.0, 29.0, 1383.0});
  Fill(*nations, 6, {"USA", "Americas", 82.0, 89.0, 328.0});
  Fill(*nations, 7, {"Brazil", "Americas", 87.0, 74.0, 212.0});
  Fill(*nations, 8, {"Nigeria", "Africa", 51.0, 34.0, 203.0});
  Fill(*nations, 9, {"Vietnam", "Asia", 37.0, 69.0, 96.0});
  Fill(*nations, 10, {"Algeria", "Africa", 73.0, 57.0, 43.0});
  Fill(*nations, 11, {"Atlantis", "Africa", 20.0, 50.0, 0.0});
  book.Name("VEX_TableRange_Nations", "Nations!$A$1:$E$11");

  const auto projects = book.Sheet("Projects");
  Fill(*projects, 1, {"Projects"});
  Fill(*projects, 3, {"Project", "Programme", "Strategy", "Amount", "Priority"});
  Fill(*projects, 4, {"Paint shop", "Plant", "Keep going", 3.4, 60.0});
  Fill(*projects, 5, {"Payroll", "Digital", "Keep going", 1.2, 40.0});
  Fill(*projects, 6, {"E-Bike line", "Plant", "Grow", 3.8, 90.0});
  Fill(*projects, 7, {"Own motor", "Product", "Grow", 2.1, 95.0});
  Fill(*projects, 8, {"Portal", "Digital", "Grow", 1.5, 65.0});
  Fill(*projects, 9, {"Robots", "Plant", "Get leaner", 2.2, 75.0});
  Fill(*projects, 10, {"Planning", "Digital", "Get leaner", 1.2, 80.0});
  book.Name("VEX_TableRange_Projects", "Projects!$A$1:$E$10");
  const auto targets = book.Sheet("Targets");
  Fill(*targets, 1, {"Targets"});
  Fill(*targets, 3, {"Strategy", "Amount"});
  Fill(*targets, 4, {"Keep going", 2.8});
  Fill(*targets, 5, {"Grow", 8.5});
  Fill(*targets, 6, {"Get leaner", 4.0});
  book.Name("VEX_SB_Targets", "Targets!$A$1:$B$6");
}

constexpr std::size_t kTableSheets = 4;

/// Writes the workbook to `path`. Prints one line for each picture to stdout: the number of its page when
/// LibreOffice prints the workbook, the resolution, the name, and what is drawn ("chart" or "sheet").
void MakeBook(const std::vector<Section>& gallery, const std::string& path) {
  ExampleBook book;
  MakeTables(book);
  // Make all sheets before the first chart: LibreOffice also prints the hidden sheets.
  std::vector<plotsmith::excel::Ref<plotsmith::excel::Worksheet>> sheets;
  for (const Section& section : gallery) {
    for (const Picture& picture : section.pictures) sheets.push_back(book.Sheet(picture.name));
  }
  std::size_t next = 0;
  for (const Section& section : gallery) {
    for (const Picture& picture : section.pictures) {
      const auto& sheet = sheets[next++];
      book.Chart(sheet, 0, 0, kWidth, kHeight, picture.attributes, picture.content);
      if (!picture.comment.empty()) book.Comment(sheet, picture.comment);
      std::cout << kTableSheets + next << ' ' << (picture.comment.empty() ? kResolution : kFarResolution)
                << ' ' << picture.name << ' ' << (picture.comment.empty() ? "chart" : "sheet") << '\n';
    }
  }
  book.Finish(path);
}

void MakePage(const std::vector<Section>& gallery, const std::string& path) {
  std::ofstream page(path);
  page << "# Gallery\n\n"
          "This page shows every chart type and setting, with the part of the definition that makes it. "
          "`plotsmith render`\ndrew the pictures from `build/gallery/gallery.xlsx`. The link \"LibreOffice\" "
          "leads to LibreOffice's picture of the same\nchart. `scripts/gallery.sh` generates the workbook, "
          "the pictures and this page.\n\n"
          "[file-formats.md](file-formats.md) describes definitions in full, and [render.md](render.md) "
          "describes the drawing.\n";
  for (const Section& section : gallery) {
    page << "\n## " << static_cast<char>(std::toupper(section.title[0])) << section.title.substr(1) << "\n\n"
         << section.text << "\n\n<table>\n";
    for (std::size_t i = 0; i < section.pictures.size(); ++i) {
      const Picture& picture = section.pictures[i];
      if (i % 3 == 0) page << "<tr valign=\"top\">\n";
      page << "<td><img src=\"images/gallery/" << picture.name << ".svg\" alt=\"" << section.title << ": "
           << picture.caption << "\"><br><b>" << picture.caption
           << "</b> (<a href=\"images/gallery/libreoffice/" << picture.name
           << ".png\">LibreOffice</a>)<br><code>" << Escaped(picture.shown) << "</code></td>\n";
      if (i % 3 == 2 || i + 1 == section.pictures.size()) page << "</tr>\n";
    }
    page << "</table>\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_gallery FOLDER\n";
    return 2;
  }
  try {
    const std::string folder = argv[1];
    const auto gallery = Gallery();
    MakeBook(gallery, folder + "/gallery.xlsx");
    MakePage(gallery, folder + "/gallery.md");
    return 0;
  } catch (const std::exception& e) {
    std::cerr << "make_gallery: " << e.what() << '\n';
    return 3;
  }
}
