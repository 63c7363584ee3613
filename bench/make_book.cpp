// Writes a workbook for measuring whole runs. Usage:
//   make_book data FILE ROWS CHARTS      a table of eight columns, and charts of it
//   make_book regions FILE ROWS COUNT    changes the number of categories in such a book
//   make_book names FILE COUNT           a workbook with many defined names
//   make_book wide FILE ROWS COLUMNS     a table without charts

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "bench/Books.h"

int main(int argc, char** argv) {
  const auto number = [&](int i) { return static_cast<std::uint32_t>(std::strtoul(argv[i], nullptr, 10)); };
  const std::string_view kind = argc > 1 ? argv[1] : "";
  using namespace plotsmith::bench;
  if (kind == "data" && argc == 5) {
    WriteDataBook(argv[2], number(3), number(4));
  } else if (kind == "regions" && argc == 5) {
    ChangeRegions(argv[2], number(3), number(4));
  } else if (kind == "names" && argc == 4) {
    WriteNamesBook(argv[2], number(3));
  } else if (kind == "wide" && argc == 5) {
    WriteWideBook(argv[2], number(3), number(4));
  } else {
    std::cerr
        << "usage: make_book data FILE ROWS CHARTS | regions FILE ROWS COUNT | names FILE COUNT | wide FILE "
           "ROWS COLUMNS\n";
    return 2;
  }
  return 0;
}
