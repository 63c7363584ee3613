#include "bench/Books.h"

#include <array>
#include <charconv>
#include <vector>

#include "tests/support/PlainBook.h"
#include "xlsx/package/Package.h"

namespace plotsmith::bench {
namespace {

/// A random number generator that gives the same numbers on every machine.
class Random {
 public:
  std::uint32_t Below(std::uint32_t limit) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::uint32_t>((state_ >> 33) % limit);
  }

 private:
  std::uint64_t state_ = 1;
};

constexpr std::uint32_t kMostRegions = 40;
constexpr const char* kDataPart = "/xl/worksheets/sheet1.xml";

std::string Column(const std::string& name) { return "<column name=\"" + name + "\"/>"; }

/// Returns a definition with categories and series from rows.
std::string Definition(std::uint32_t number, const std::string& type, const std::string& table,
                       const std::string& categories, const std::string& series, const std::string& values) {
  const std::string n = std::to_string(number);
  return "<chart id=\"VEX_Chart" + n + "\" name=\"Chart" + n + "\" type=\"" + type + "\" title=\"" + values +
         " " + n + "\" table-id=\"" + table + "\"><categories headings-in=\"rows\">" + Column(categories) +
         "</categories><series headings-in=\"rows\">" + Column(series) + "</series><values>" +
         Column(values) + "</values></chart>";
}

/// Returns a sheet with an empty frame for each chart, ten in a row.
test::PlainSheet Frames(std::uint32_t charts) {
  test::PlainSheet sheet{"Charts"};
  for (std::uint32_t i = 0; i < charts; ++i) {
    sheet.frames.push_back({"VEX_Chart" + std::to_string(i + 1), "", static_cast<int>(i % 10) * 9,
                            static_cast<int>(i / 10) * 20});
  }
  return sheet;
}

}  // namespace

std::string DataSheet(std::uint32_t rows, std::uint32_t regions) {
  Random random;
  std::string xml;
  xml.reserve(std::size_t{rows} * 330);
  xml +=
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<worksheet "
      "xmlns=\"http://schemas.openxmlformats.org/"
      "spreadsheetml/2006/main\"><dimension ref=\"A1:H" +
      std::to_string(rows + 1) + "\"/><sheetData>";
  const auto number = [&](auto value) {
    std::array<char, 32> buffer;
    xml.append(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
  };
  const auto open = [&](char column, std::uint32_t row, const char* rest) {
    xml += "<c r=\"";
    xml += column;
    number(row);
    xml += rest;
  };
  xml += "<row r=\"1\" spans=\"1:8\">";
  for (std::uint32_t i = 0; i < 8; ++i) {
    open(static_cast<char>('A' + i), 1, "\" t=\"s\"><v>");
    number(i);
    xml += "</v></c>";
  }
  xml += "</row>";
  for (std::uint32_t row = 2; row <= rows + 1; ++row) {
    xml += "<row r=\"";
    number(row);
    xml += "\" spans=\"1:8\">";
    const auto text = [&](char column, std::uint32_t first, std::uint32_t count) {
      open(column, row, "\" t=\"s\"><v>");
      number(8 + first + random.Below(count));
      xml += "</v></c>";
    };
    open('A', row, "\" s=\"1\"><v>");
    number(43831 + random.Below(1500));
    xml += "</v></c>";
    text('B', 0, regions);              // Region
    text('C', kMostRegions, 8);         // Product
    text('D', kMostRegions + 8, 5000);  // Customer
    open('E', row, "\"><v>");
    number(random.Below(500) + 1);
    xml += "</v></c>";
    open('F', row, "\"><v>");
    number(static_cast<double>(random.Below(100000)) / 100);
    xml += "</v></c>";
    open('G', row, "\"><v>");
    number(static_cast<double>(random.Below(2000000)) / 1000 - 500);
    xml += "</v></c>";
    if (random.Below(10) < 3) text('H', kMostRegions + 5008, 40);  // Note, mostly blank.
    xml += "</row>";
  }
  return xml + "</sheetData></worksheet>";
}

std::string SharedStrings() {
  std::string xml =
      "<?xml version=\"1.0\"?><sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">";
  const auto add = [&](const std::string& text) { xml += "<si><t>" + text + "</t></si>"; };
  for (const char* heading : {"Date", "Region", "Product", "Customer", "Units", "Price", "Amount", "Note"})
    add(heading);
  for (std::uint32_t i = 0; i < kMostRegions; ++i) add("Region " + std::to_string(i + 1));
  for (int i = 0; i < 8; ++i) add("Product " + std::string(1, static_cast<char>('A' + i)));
  for (int i = 0; i < 5000; ++i) add("Customer number " + std::to_string(i + 1));
  for (int i = 0; i < 40; ++i) add("A note of some length, the " + std::to_string(i + 1) + "th of its kind");
  return xml + "</sst>";
}

void WriteDataBook(const std::string& path, std::uint32_t rows, std::uint32_t charts) {
  constexpr std::array kTypes = {"column", "bar", "area"};
  constexpr std::array kValues = {"Amount", "Units", "Price"};
  test::PlainSheet data{"Data1"};
  data.rows = {{std::string("replaced below")}};
  std::vector<std::string> definitions;
  for (std::uint32_t i = 0; i < charts; ++i) {
    const bool turned = i % 2 == 1;
    definitions.push_back(Definition(i + 1, kTypes[i % kTypes.size()], "Data1", turned ? "Product" : "Region",
                                     turned ? "Region" : "Product", kValues[i / 2 % kValues.size()]));
  }
  test::PlainBook book;
  book.sheets = {data, Frames(charts)};
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><cellXfs><xf "
      "numFmtId=\"0\"/><xf numFmtId=\"14\"/></cellXfs></styleSheet>";
  book.AddDefinitions(definitions);
  book.Write(path);
  auto package = xlsx::Package::Open(path);
  package.Replace(kDataPart, DataSheet(rows));
  package.Add("/xl/sharedStrings.xml",
              "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml",
              SharedStrings());
  package.AddRelationship("/xl/workbook.xml",
                          "http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings",
                          "/xl/sharedStrings.xml");
  package.Save(path);
}

void WriteWideBook(const std::string& path, std::uint32_t rows, std::uint32_t columns) {
  constexpr std::array kLabels = {"North", "South", "East", "West", "Centre"};
  Random random;
  std::string xml =
      "<worksheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><sheetData><row>";
  const auto text = [&](const std::string& value) {
    xml += "<c t=\"inlineStr\"><is><t>" + value + "</t></is></c>";
  };
  for (std::uint32_t i = 1; i <= columns; ++i) text((i <= 2 ? "Label " : "Number ") + std::to_string(i));
  for (std::uint32_t row = 0; row < rows; ++row) {
    xml += "</row><row>";
    text(kLabels[random.Below(kLabels.size())]);
    text(kLabels[random.Below(kLabels.size())]);
    for (std::uint32_t i = 3; i <= columns; ++i) {
      xml += "<c><v>";
      xml += std::to_string(random.Below(1000));
      xml += "</v></c>";
    }
  }
  test::PlainBook book;
  book.sheets = {test::PlainSheet{"Data1"}};
  book.Write(path);
  auto package = xlsx::Package::Open(path);
  package.Replace(kDataPart, xml + "</row></sheetData></worksheet>");
  package.Save(path);
}

void ChangeRegions(const std::string& path, std::uint32_t rows, std::uint32_t regions) {
  auto package = xlsx::Package::Open(path);
  package.Replace(kDataPart, DataSheet(rows, regions));
  package.Save(path);
}

void WriteNamesBook(const std::string& path, std::uint32_t names) {
  constexpr std::uint32_t kRows = 6, kTableEvery = 10;  // Title, note, headings, three rows of data.
  using S = std::string;
  test::PlainBook book;
  test::PlainSheet lists{"Lists"};
  for (std::uint32_t i = 0; i < names; ++i) {
    const std::uint32_t top = i * kRows + 1;
    lists.rows.push_back({S("List ") + std::to_string(i + 1)});
    lists.rows.push_back({S("A note")});
    lists.rows.push_back({S("Region"), S("Product"), S("Amount")});
    for (const char* region : {"East", "West", "North"}) {
      lists.rows.push_back({S(region), S("Widget"), static_cast<double>(i % 100)});
    }
    book.names.emplace_back((i % kTableEvery == 0 ? "VEX_TableRange" : "List_") + std::to_string(i + 1),
                            "Lists!$A$" + std::to_string(top) + ":$C$" + std::to_string(top + kRows - 1));
  }
  book.sharedStrings = true;
  book.sheets = {lists, Frames(1)};
  book.AddDefinitions({Definition(1, "column", "VEX_TableRange1", "Region", "Product", "Amount")});
  book.Write(path);
}

}  // namespace plotsmith::bench
