#include "fuzz/Pictures.h"

#include "render/cairo/CairoFonts.h"
#include "render/cairo/CairoPainter.h"
#include "render/chart/ChartDrawing.h"
#include "render/svg/SvgWriter.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith::fuzz {

void DrawPictures(xlsx::Workbook& book, const std::string& part) {
  static const render::CairoFonts fonts;
  render::Notes notes;
  constexpr double kWidth = 200, kHeight = 150;  // points
  const render::Drawing drawing = DrawChart(*book.Chart(part), kWidth, kHeight, fonts, notes);
  MakeSvg(drawing);
  MakePng(drawing, fonts);
}

}  // namespace plotsmith::fuzz
