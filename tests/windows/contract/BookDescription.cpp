#include "tests/windows/contract/BookDescription.h"

#include <algorithm>

#include "tests/windows/contract/PortContract.h"

namespace plotsmith::contract {
namespace {

/// The number of rows and columns that are described, from the corner of the used range.
constexpr std::int32_t kRows = 150, kColumns = 30;

class Description {
 public:
  template <class Member>
  void Line(const std::string& name, const Member& member) {
    text_ += path_ + name + " = " + Answer(member) + "\n";
  }
  /// Describes an object and its contents, if it exists.
  template <class Find, class Describe>
  void On(const std::string& name, const Find& find, const Describe& describe) {
    try {
      const auto object = find();
      const std::string outside = path_;
      path_ += name + ".";
      object ? describe(*object) : void(text_ += path_ + " is Nothing\n");
      path_ = outside;
    } catch (const runtime::RuntimeError&) {
      Line(name, find);
    }
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_, path_;
};

#define LINE(object, member) text.Line(#member, [&] { return object.member(); })

void DescribeFont(Description& text, excel::Font& font) {
  LINE(font, Name);
  LINE(font, Size);
  LINE(font, FontStyle);
  LINE(font, Color);
  LINE(font, Background);
}

void DescribeInterior(Description& text, excel::Interior& interior) {
  LINE(interior, Color);
  LINE(interior, ColorIndex);
  LINE(interior, Pattern);
  LINE(interior, PatternColor);
  LINE(interior, PatternColorIndex);
}

void DescribeLabels(Description& text, excel::DataLabels& labels) {
  LINE(labels, Count);
  LINE(labels, Type);
  LINE(labels, AutoScaleFont);
  text.On(
      "Font", [&] { return labels.Font(); }, [&](auto& font) { DescribeFont(text, font); });
}

void DescribeSeries(Description& text, excel::Series& series) {
  LINE(series, Name);
  LINE(series, Formula);
  LINE(series, Values);
  LINE(series, ChartType);
  LINE(series, HasDataLabels);
  text.On(
      "DataLabels", [&] { return series.DataLabels(); }, [&](auto& labels) { DescribeLabels(text, labels); });
  text.On(
      "Interior", [&] { return series.Interior(); },
      [&](auto& interior) { DescribeInterior(text, interior); });
}

void DescribeAxis(Description& text, excel::Axis& axis) {
  LINE(axis, HasTitle);
  LINE(axis, MinimumScale);
  LINE(axis, MaximumScale);
  text.On(
      "TickLabels", [&] { return axis.TickLabels(); },
      [&](auto& labels) {
        LINE(labels, NumberFormat);
        LINE(labels, NumberFormatLinked);
      });
  text.On(
      "AxisTitle", [&] { return axis.AxisTitle(); },
      [&](auto& title) {
        LINE(title, Text);
        LINE(title, AutoScaleFont);
        text.On(
            "Font", [&] { return title.Font(); }, [&](auto& font) { DescribeFont(text, font); });
      });
}

void DescribeShapes(Description& text, excel::Shapes& shapes) {
  LINE(shapes, Count);
  for (std::int32_t i = 1; i <= shapes.Count(); ++i) {
    text.On(
        "Shape" + std::to_string(i), [&] { return shapes.Item(i); },
        [&](auto& shape) {
          LINE(shape, Type);
          LINE(shape, Name);
          LINE(shape, AlternativeText);
          LINE(shape, Left);
          LINE(shape, Top);
          LINE(shape, Width);
          LINE(shape, Height);
          text.Line("Text", [&] { return shape.TextFrame()->Characters()->Text(); });
        });
  }
}

void DescribeChart(Description& text, excel::Chart& chart) {
  LINE(chart, ChartType);
  LINE(chart, HasTitle);
  text.Line("ChartTitle", [&] { return chart.ChartTitle()->Text(); });
  LINE(chart, HasLegend);
  text.On(
      "Legend", [&] { return chart.Legend(); },
      [&](auto& legend) {
        LINE(legend, Position);
        LINE(legend, Left);
        LINE(legend, Top);
        LINE(legend, AutoScaleFont);
        text.Line("Entries", [&] { return legend.LegendEntries()->Count(); });
        text.On(
            "Font", [&] { return legend.Font(); }, [&](auto& font) { DescribeFont(text, font); });
      });
  for (const std::int32_t type : {excel::xlCategory, excel::xlValue}) {
    const std::string number = std::to_string(type);
    text.Line("HasAxis" + number, [&] { return chart.HasAxis(type); });
    text.On(
        "Axis" + number, [&] { return chart.Axes(type, excel::xlPrimary); },
        [&](auto& axis) { DescribeAxis(text, axis); });
  }
  text.On(
      "PlotArea", [&] { return chart.PlotArea(); },
      [&](auto& area) {
        LINE(area, Left);
        LINE(area, Top);
        LINE(area, Width);
        LINE(area, Height);
      });
  text.Line("Width", [&] { return chart.ChartArea()->Width(); });
  text.On(
      "Shapes", [&] { return chart.Shapes(); }, [&](auto& shapes) { DescribeShapes(text, shapes); });
  text.On(
      "SeriesCollection", [&] { return chart.SeriesCollection(); },
      [&](auto& all) {
        for (std::int32_t i = 1; i <= all.Count(); ++i) {
          text.On(
              std::to_string(i), [&] { return all.Item(i); },
              [&](auto& series) { DescribeSeries(text, series); });
        }
      });
}

void DescribeCells(Description& text, excel::Worksheet& sheet) {
  const auto used = sheet.UsedRange();
  LINE((*used), Address);
  const std::int32_t lastRow = std::min(used->Row() + used->Rows()->Count(), kRows);
  const std::int32_t lastColumn = std::min(used->Column() + used->Columns()->Count(), kColumns);
  for (std::int32_t column = 1; column <= lastColumn; ++column) {
    for (std::int32_t row = 1; row <= lastRow; ++row) {
      const std::string cell = "Cells(" + std::to_string(row) + ", " + std::to_string(column) + ").";
      std::string scratch;
      text.Line(cell + "Value", [&] { return sheet.CellValueAt(row, column).ToVariant(); });
      text.Line(cell + "Text", [&] { return std::string(sheet.CellTextAt(row, column, scratch)); });
    }
  }
}

void DescribeWorksheet(Description& text, excel::Worksheet& sheet) {
  DescribeCells(text, sheet);
  const auto shapes = sheet.Shapes();
  DescribeShapes(text, *shapes);
  for (std::int32_t i = 1; i <= shapes->Count(); ++i) {
    if (shapes->Item(i)->Type() != excel::msoChart) continue;
    text.On(
        "Chart" + std::to_string(i),
        [&] { return sheet.ChartObjects()->Item(shapes->Item(i)->Name())->Chart(); },
        [&](auto& chart) { DescribeChart(text, chart); });
  }
}

}  // namespace

std::string Describe(excel::Application& application) {
  Description text;
  LINE(application, StandardFont);
  LINE(application, Calculation);
  const auto book = application.ActiveWorkbook();
  LINE((*book), ProtectStructure);
  LINE((*book), MultiUserEditing);
  text.Line("Application name", [&] { return book->BuiltinDocumentProperties("Application name")->Value(); });
  for (std::int32_t i = 1; i <= book->Names()->Count(); ++i) {
    text.On(
        "Name" + std::to_string(i), [&] { return book->Names()->Item(i); },
        [&](auto& name) {
          LINE(name, Name);
          LINE(name, RefersTo);
          text.Line("RefersToRange", [&] { return name.RefersToRange()->Address(); });
        });
  }
  for (std::int32_t i = 1; i <= book->Sheets()->Count(); ++i) {
    text.On(
        "Sheet" + std::to_string(i), [&] { return book->Sheets()->Item(i); },
        [&](auto& sheet) {
          LINE(sheet, Name);
          LINE(sheet, Visible);
          if (auto* cells = dynamic_cast<excel::Worksheet*>(&sheet)) DescribeWorksheet(text, *cells);
        });
  }
  return text.Take();
}

}  // namespace plotsmith::contract
