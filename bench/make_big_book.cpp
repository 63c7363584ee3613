// Writes the workbook that the whole run is measured on: a sheet Data1 of one million rows by eight columns
// (dates, texts, integers, decimals, blanks), and one column chart over it, rows by rows. Usage:
// make_big_book FILE [ROWS]

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "tests/support/PlainBook.h"
#include "xlsx/Archive.h"
#include "xlsx/Package.h"

namespace {

/// The same numbers on every machine.
class Random {
 public:
  std::uint32_t Below(std::uint32_t limit) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::uint32_t>((state_ >> 33) % limit);
  }

 private:
  std::uint64_t state_ = 1;
};

std::string BigSheet(std::uint32_t rows) {
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
    text('B', 0, 12);     // Region
    text('C', 12, 8);     // Product
    text('D', 20, 5000);  // Customer
    open('E', row, "\"><v>");
    number(random.Below(500) + 1);
    xml += "</v></c>";
    open('F', row, "\"><v>");
    number(static_cast<double>(random.Below(100000)) / 100);
    xml += "</v></c>";
    open('G', row, "\"><v>");
    number(static_cast<double>(random.Below(2000000)) / 1000 - 500);
    xml += "</v></c>";
    if (random.Below(10) < 3) text('H', 5020, 40);  // Note, mostly blank
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
  for (int i = 0; i < 12; ++i) add("Region " + std::to_string(i + 1));
  for (int i = 0; i < 8; ++i) add("Product " + std::string(1, static_cast<char>('A' + i)));
  for (int i = 0; i < 5000; ++i) add("Customer number " + std::to_string(i + 1));
  for (int i = 0; i < 40; ++i) add("A note of some length, the " + std::to_string(i + 1) + "th of its kind");
  return xml + "</sst>";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: make_big_book FILE [ROWS]\n";
    return 2;
  }
  const auto rows = static_cast<std::uint32_t>(argc > 2 ? std::atoi(argv[2]) : 1'000'000);
  using namespace plotsmith;
  test::PlainBook book;
  test::PlainSheet data{"Data1"}, charts{"Charts"};
  data.rows = {{std::string("replaced below")}};
  charts.frames = {{"VEX_Chart1"}};
  book.sheets = {data, charts};
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><cellXfs><xf "
      "numFmtId=\"0\"/>"
      "<xf numFmtId=\"14\"/></cellXfs></styleSheet>";
  book.AddDefinitions(
      {"<chart id=\"VEX_Chart1\" name=\"Chart1\" type=\"column\" title=\"Amount\" table-id=\"Data1\">"
       "<categories headings-in=\"rows\"><column name=\"Region\"/></categories>"
       "<series headings-in=\"rows\"><column name=\"Product\"/></series>"
       "<values><column name=\"Amount\"/></values></chart>"});
  const std::string path = argv[1];
  book.Write(path);
  auto package = xlsx::Package::Open(path);
  package.Replace("/xl/worksheets/sheet1.xml", BigSheet(rows));
  package.Add("/xl/sharedStrings.xml",
              "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml",
              SharedStrings());
  package.AddRelationship("/xl/workbook.xml",
                          "http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings",
                          "/xl/sharedStrings.xml");
  package.Save(path);
  return 0;
}
