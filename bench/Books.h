#pragma once

#include <cstdint>
#include <string>

/// The workbooks of the benchmarks, which are the same on every machine.
namespace plotsmith::bench {

/// Returns the part of a sheet with eight columns (a date, three texts, an integer, two decimals, a mostly
/// blank text), with headings in row 1 and indices of shared strings. `regions` is the number of different
/// texts in the column Region.
std::string DataSheet(std::uint32_t rows, std::uint32_t regions = 12);
std::string SharedStrings();

/// Writes a workbook with that sheet as Data1 and charts of it: column, bar and area charts in turn, each
/// with other columns. The first is a column chart with categories and series from rows.
void WriteDataBook(const std::string& path, std::uint32_t rows, std::uint32_t charts);

/// Changes the number of categories in a refreshed workbook of this kind.
void ChangeRegions(const std::string& path, std::uint32_t rows, std::uint32_t regions);

/// Writes a workbook with defined names for ranges on one sheet, of which every tenth is a table, and a chart
/// of the first table.
void WriteNamesBook(const std::string& path, std::uint32_t names);

/// Writes a workbook with a table on the sheet Data1 and no charts: two label columns, then number columns.
void WriteWideBook(const std::string& path, std::uint32_t rows, std::uint32_t columns);

}  // namespace plotsmith::bench
