// Draws all charts of a workbook for comparison with pictures of other programs. Usage: draw_charts BOOK
// FOLDER
//
// The files for the first chart are 1.svg, 1.png and 1.tsv, and so on. Each line of 1.tsv is an item of the
// drawing: role, series, point, left, top, width, height in points, colour, text. charts.tsv has a line for
// each chart: number, part, width and height, sheet, and what wasn't drawn.

#include <fstream>
#include <iostream>
#include <string>

#include "render/cairo/CairoFonts.h"
#include "render/cairo/CairoPainter.h"
#include "render/chart/ChartDrawing.h"
#include "render/svg/SvgWriter.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Application.h"
#include "xlsx/Sheet.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/part/ChartSize.h"

namespace {

using namespace plotsmith;

constexpr double kDotsPerInch = 144;

/// Returns the colour of an item, or the first of several, which identifies items.
std::string ColorOf(const render::Item& item) {
  if (const auto* text = std::get_if<render::TextItem>(&item.content)) return HexOf(text->color);
  const auto* path = std::get_if<render::PathItem>(&item.content);
  if (path == nullptr) return {};
  if (const auto* solid = std::get_if<render::SolidFill>(&path->fill)) return HexOf(solid->color);
  if (const auto* pattern = std::get_if<render::PatternFill>(&path->fill)) return HexOf(pattern->background);
  const auto* gradient = std::get_if<render::GradientFill>(&path->fill);
  if (gradient != nullptr && !gradient->stops.empty()) return HexOf(gradient->stops.front().color);
  return HexOf(path->stroke.color);
}

void WriteTable(const render::Drawing& drawing, const std::string& path) {
  std::ofstream table(path);
  for (const render::Item& item : drawing.items) {
    const render::Rect bounds = BoundsOf(item);
    const auto* text = std::get_if<render::TextItem>(&item.content);
    std::string words = text != nullptr ? text->text : "";
    for (const char* blank : {"\t", "\n", "\r"}) words = runtime::Replace(words, blank, " ");
    table << NameOf(item.tag.role) << '\t' << item.tag.series << '\t' << item.tag.point << '\t' << bounds.left
          << '\t' << bounds.top << '\t' << bounds.width << '\t' << bounds.height << '\t' << ColorOf(item)
          << '\t' << words << '\n';
  }
}

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class Pictures {
 public:
  explicit Pictures(std::string folder) : folder_(std::move(folder)), list_(folder_ + "/charts.tsv") {}

  void Draw(xlsx::Workbook& book, const std::string& part, const xlsx::Frame& size,
            const std::string& sheet) {
    render::Notes notes;
    const std::string stem = folder_ + "/" + std::to_string(++count_);
    list_ << count_ << '\t' << part << '\t' << size.width << '\t' << size.height << '\t' << sheet << '\t';
    try {
      const auto drawing = DrawChart(*book.Chart(part), size.width, size.height, fonts_, notes);
      WriteTable(drawing, stem + ".tsv");
      Write(stem + ".svg", MakeSvg(drawing));
      Write(stem + ".png", MakePng(drawing, fonts_, kDotsPerInch));
    } catch (const runtime::RuntimeError& e) {
      notes.push_back(e.what());
    }
    for (const std::string& note : notes) list_ << note << ' ';
    list_ << '\n';
  }

 private:
  std::string folder_;
  std::ofstream list_;
  render::CairoFonts fonts_;
  int count_ = 0;
};

void DrawAll(xlsx::Workbook& book, Pictures& pictures) {
  for (const auto& sheet : book.Tabs().All()) {
    if (!sheet->worksheet) {
      const auto drawing = book.Package().FindRelationshipOfType(sheet->part, "drawing");
      const auto chart =
          drawing ? book.Package().FindRelationshipOfType(drawing->target, "chart") : std::nullopt;
      if (chart) pictures.Draw(book, chart->target, xlsx::ChartSize({}), sheet->name);
      continue;
    }
    const auto* drawing = sheet->worksheet->FindDrawing();
    if (drawing == nullptr) continue;
    for (const auto& shape : drawing->Shapes()) {
      const std::string part = shape->ChartPartName();
      if (!part.empty()) pictures.Draw(book, part, xlsx::ChartSize(shape), sheet->name);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: draw_charts BOOK FOLDER\n";
    return 2;
  }
  try {
    const auto host = xlsx::Application::Create();
    host->Open(argv[1]);
    Pictures pictures(argv[2]);
    DrawAll(host->Book(), pictures);
    return 0;
  } catch (const std::exception& e) {
    std::cerr << "draw_charts: " << argv[1] << ": " << e.what() << '\n';
    return 3;
  }
}
