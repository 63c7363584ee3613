#pragma once

#include <cstddef>
#include <cstdint>

/// How much of anything a workbook may bring. Sound workbooks stay far below; what goes beyond is refused
/// with a sentence instead of being worked on until memory or patience ends.
namespace plotsmith::xlsx::limits {

inline constexpr std::size_t kPackageEntries = 100'000;
/// Inflated bytes of a part that is streamed (a sheet) and of one that is held in memory (all others).
inline constexpr std::uint64_t kStreamedPart = std::uint64_t{8} << 30;
inline constexpr std::uint64_t kHeldPart = std::uint64_t{512} << 20;
/// Inflated to compressed size. Deflate reaches about 1030; real sheets stay below 60. Parts up to kAnyRatio
/// bytes are not looked at.
inline constexpr std::uint64_t kRatio = 300;
inline constexpr std::uint64_t kAnyRatio = std::uint64_t{16} << 20;

inline constexpr int kXmlDepth = 512;
/// Tags and attributes of a part that becomes a tree, which takes many times the bytes of a short tag. The
/// largest chart, with kCachePoints points, stays below.
inline constexpr std::ptrdiff_t kXmlMarks = 24'000'000;
/// Attributes of one element, namespaces among them, which are looked through at each use.
inline constexpr std::size_t kXmlAttributes = 1000;
inline constexpr std::size_t kSharedStrings = 32'000'000;
/// One tag or one text between tags, while a sheet is streamed.
inline constexpr std::size_t kXmlToken = std::size_t{64} << 20;

// A sheet as Excel has it (rows and columns count from 1), and what fits into a cell, in UTF-16 units.
inline constexpr std::int32_t kRows = 1'048'576;
inline constexpr std::int32_t kColumns = 16'384;
inline constexpr std::size_t kCellText = 32'767;
inline constexpr std::size_t kFormula = 8'192;
inline constexpr std::size_t kSheetName = 31;
inline constexpr long long kSheetId = 65'534;

/// Cells of one sheet.
inline constexpr std::uint64_t kCells = 400'000'000;
/// The same of a sheet that is written to, where a row takes room up to its last cell.
inline constexpr std::size_t kGridCells = 20'000'000;
/// Units in a shape's text. It is written anew with each piece that somebody adds.
inline constexpr std::size_t kShapeText = 131'072;
/// Series of one chart, a plot group without any counted as one. Excel has up to 255.
inline constexpr std::size_t kSeries = 1024;
/// Cells that all series of a chart bring into its cache; no one reference has more.
inline constexpr std::int64_t kCachePoints = 4'000'000;

}  // namespace plotsmith::xlsx::limits
