#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "host/excel/Excel.h"
#include "runtime/Variant.h"
#include "xlsx/Application.h"

namespace plotsmith::examples {

/// A workbook in the making, through the product's own interfaces: a host with an empty workbook, cells,
/// names, chart frames and definitions, and then one refresh. One at a time: the system's variables are its
/// state.
class ExampleBook {
 public:
  ExampleBook();
  ~ExampleBook();
  ExampleBook(const ExampleBook&) = delete;
  ExampleBook& operator=(const ExampleBook&) = delete;

  /// A new sheet behind the others. The first call names the sheet that every new workbook has.
  excel::Ref<excel::Worksheet> Sheet(const std::string& name);
  void Name(const std::string& name, const std::string& refersTo);
  /// Puts the frame of a chart on a sheet (points) and stores its definition, to which id and name are added.
  /// Returns the frame, whose chart is empty until the next refresh.
  excel::Ref<excel::ChartObject> Chart(const excel::Ref<excel::Worksheet>& sheet, double left, double top,
                                       double width, double height, const std::string& attributes,
                                       const std::string& content);
  /// The comment box of the last chart, which is on that sheet.
  void Comment(const excel::Ref<excel::Worksheet>& sheet, const std::string& text);
  /// Saves the tables alone, as a book that has never seen Plotsmith.
  void FinishAsData(const std::string& path);
  /// Draws the charts, so that they can be changed as by hand; the next refresh keeps such changes.
  void Refresh();
  /// Refreshes and saves; what the refresh had to say goes to stderr.
  void Finish(const std::string& path);

 private:
  std::shared_ptr<cli::ConsoleDesktop> desktop_;
  std::shared_ptr<xlsx::Application> host_;
  int sheets_ = 0;
  int charts_ = 0;
};

/// Writes values into a row, from column A on.
void Fill(excel::Worksheet& sheet, int row, const std::vector<runtime::Variant>& values);

/// An element of a definition that names columns; `headingsIn` may be empty.
std::string Columns(const std::string& element, const std::string& headingsIn,
                    std::initializer_list<const char*> names);
/// The axes with those labels that aren't empty.
std::string Axes(const std::string& label, const std::string& value);
std::string Settings(std::initializer_list<const char*> names,
                     const std::string& element = "dynamic-attributes");
/// Data labels that show "values" or "percentages".
std::string Labels(const std::string& show);

}  // namespace plotsmith::examples
