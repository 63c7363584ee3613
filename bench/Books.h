#pragma once

#include <cstdint>
#include <string>

/// The workbooks that the benchmarks measure on, the same on every machine.
namespace plotsmith::bench {

/// The part of a sheet of eight columns (a date, three texts, an integer, two decimals, a mostly blank text)
/// with its headings in row 1, and the shared strings that it points at. `regions` is how many different
/// texts the column Region holds.
std::string DataSheet(std::uint32_t rows, std::uint32_t regions = 12);
std::string SharedStrings();

/// A book with that sheet as Data1, and charts over it: column, bar and area charts by turns, each with other
/// headings. The first is a column chart, rows by rows.
void WriteDataBook(const std::string& path, std::uint32_t rows, std::uint32_t charts);

/// Gives the charts of such a book, once refreshed, another number of categories to show.
void ChangeRegions(const std::string& path, std::uint32_t rows, std::uint32_t regions);

/// A book with that many defined names of areas on one sheet, of which every tenth is a table, and a chart
/// over the first table.
void WriteNamesBook(const std::string& path, std::uint32_t names);

/// A book with a table on the sheet Data1 that has never seen Plotsmith: two columns of labels, then numbers.
void WriteWideBook(const std::string& path, std::uint32_t rows, std::uint32_t columns);

}  // namespace plotsmith::bench
