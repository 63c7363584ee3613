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

/// Builds a workbook with the product's interfaces: a host with an empty workbook, cells, names, chart frames
/// and definitions, and then a refresh. Only one can exist at a time, because the system's variables are its
/// state.
class ExampleBook {
 public:
  ExampleBook();
  ~ExampleBook();
  ExampleBook(const ExampleBook&) = delete;
  ExampleBook& operator=(const ExampleBook&) = delete;

  /// Adds a sheet after the others. The first call names the sheet that every new workbook has.
  excel::Ref<excel::Worksheet> Sheet(const std::string& name);
  void Name(const std::string& name, const std::string& refersTo);
  /// Adds the frame of a chart to a sheet (in points) and stores its definition, to which id and name are
  /// added. Returns the frame, whose chart is empty until the next refresh.
  excel::Ref<excel::ChartObject> Chart(const excel::Ref<excel::Worksheet>& sheet, double left, double top,
                                       double width, double height, const std::string& attributes,
                                       const std::string& content);
  /// Adds the comment box of the last chart, which is on that sheet.
  void Comment(const excel::Ref<excel::Worksheet>& sheet, const std::string& text);
  /// Saves only the tables, as a workbook without charts.
  void FinishAsData(const std::string& path);
  /// Draws the charts, so that they can be changed like by hand. The next refresh keeps such changes.
  void Refresh();
  /// Refreshes and saves. Messages of the refresh go to stderr.
  void Finish(const std::string& path);

 private:
  std::shared_ptr<cli::ConsoleDesktop> desktop_;
  std::shared_ptr<xlsx::Application> host_;
  int sheets_ = 0;
  int charts_ = 0;
};

/// Writes values into a row, beginning in column A.
void Fill(excel::Worksheet& sheet, int row, const std::vector<runtime::Variant>& values);

/// Returns an element of a definition that names columns. `headingsIn` may be empty.
std::string Columns(const std::string& element, const std::string& headingsIn,
                    std::initializer_list<const char*> names);
/// Returns the axes whose labels aren't empty.
std::string Axes(const std::string& label, const std::string& value);
std::string Settings(std::initializer_list<const char*> names,
                     const std::string& element = "dynamic-attributes");
/// Returns data labels that show "values" or "percentages".
std::string Labels(const std::string& show);

}  // namespace plotsmith::examples
