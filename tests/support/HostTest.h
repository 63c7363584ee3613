#pragma once

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "tests/support/PlainBook.h"
#include "xlsx/Application.h"
#include "xlsx/Workbook.h"
#include "xlsx/package/Package.h"

namespace plotsmith::test {

/// A temporary folder for one test, which is deleted afterwards.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Changes a part of a saved workbook, as another program could.
void EditPart(const std::string& path, const std::string& part,
              const std::function<void(std::string& text)>& edit);

/// Stores in the package which program saved it last, as the program itself does. An empty version is left
/// out.
void SetSavingProgram(xlsx::Package& package, const std::string& program, const std::string& version = "");

/// A test of the system on the embedded host. Before each case, all module variables have their initial
/// values.
class HostTest : public ::testing::Test {
 protected:
  HostTest();
  ~HostTest() override;

  /// Writes the workbook and opens it as the active workbook, with the run variables set to it.
  xlsx::Workbook& Open(const PlainBook& book, const std::string& version = "16.0");
  /// Does the same with renamed parts: `from` becomes `entry` in the zip file and `written` in the
  /// references.
  xlsx::Workbook& OpenRenamed(const PlainBook& book, const std::string& from, const std::string& entry,
                              const std::string& written);
  xlsx::Workbook& OpenFile(const std::string& path, const std::string& version = "16.0");
  /// Refreshes all charts, as a host add-in does.
  void Refresh();
  /// Saves to a file, opens it again, and makes it the active workbook.
  xlsx::Workbook& SaveAndReopen();
  void RefreshAndReopen() {
    Refresh();
    SaveAndReopen();
  }

  xlsx::Workbook& Book() { return host_->Book(); }
  const std::vector<std::string>& Messages() const { return desktop_->Messages(); }
  /// Returns the text of a part of the saved file.
  std::string SavedPart(const std::string& part) const;
  /// Returns the displayed texts of a range, with "\n" between rows and "|" between cells.
  std::string Cells(const std::string& sheet, int row1, int column1, int row2, int column2);

  TempFolder folder_;
  std::shared_ptr<cli::ConsoleDesktop> desktop_;
  std::shared_ptr<xlsx::Application> host_;
  std::vector<std::string> journal_;

 private:
  void Start(const std::string& version);
};

/// Returns a sheet named Data1 with a sales table, which has the columns Region, Product, Amount and Cost.
PlainSheet SalesSheet(const std::string& name = "Data1");

/// A chart definition with the parts that most cases need. A case replaces the parts that it tests.
struct Definition {
  std::string id = "VEX_Chart1";
  std::string type = "column";
  std::string attributes = "table-id=\"Data1\" title=\"Sales\"";
  std::string categories = "<categories headings-in=\"rows\"><column name=\"Region\"/></categories>";
  std::string series = "<series headings-in=\"rows\"><column name=\"Product\"/></series>";
  std::string values = "<values><column name=\"Amount\"/></values>";
  std::string rest;

  std::string Xml() const;
};

/// Returns the element for settings of a chart in a definition.
std::string Settings(std::initializer_list<const char*> settings,
                     const std::string& group = "dynamic-attributes");

/// Returns a workbook with a data sheet, a sheet with one empty frame for each definition, and the
/// definitions.
PlainBook SalesBook(const std::vector<Definition>& definitions);

}  // namespace plotsmith::test
