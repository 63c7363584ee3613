#pragma once

#include <cstddef>
#include <cstdint>

/// The limits of what a workbook may contain. Sound workbooks stay far below them. A workbook beyond a limit
/// is refused with a sentence, because it would use up memory or time.
namespace plotsmith::xlsx::limits {

/// Entries of the zip archive.
inline constexpr std::size_t kPackageEntries = 100'000;
/// Inflated bytes of a part that is streamed (a sheet) and of one that is held in memory (all others).
inline constexpr std::uint64_t kStreamedPart = std::uint64_t{8} << 30;
inline constexpr std::uint64_t kHeldPart = std::uint64_t{512} << 20;
/// Inflated to compressed size. Deflate reaches about 1030; real sheets stay below 60. Parts up to kAnyRatio
/// bytes are not looked at.
inline constexpr std::uint64_t kRatio = 300;
inline constexpr std::uint64_t kAnyRatio = std::uint64_t{16} << 20;

/// Nested elements of a part.
inline constexpr int kXmlDepth = 512;
/// Tags and attributes of a part that is held as a tree, where a short tag takes many times its bytes. The
/// largest chart, with kCachePoints points, stays below.
inline constexpr std::ptrdiff_t kXmlMarks = 24'000'000;
/// Attributes of one element, with its namespaces. Each use searches all of them.
inline constexpr std::size_t kXmlAttributes = 1000;
/// Texts of the shared strings part.
inline constexpr std::size_t kSharedStrings = 32'000'000;
/// One tag or one text between tags, while a sheet is streamed.
inline constexpr std::size_t kXmlToken = std::size_t{64} << 20;

// Excel's own limits. Rows and columns count from 1; texts are measured in UTF-16 units.
inline constexpr std::int32_t kRows = 1'048'576;
inline constexpr std::int32_t kColumns = 16'384;
inline constexpr std::size_t kCellText = 32'767;
inline constexpr std::size_t kFormula = 8'192;
inline constexpr std::size_t kSheetName = 31;
inline constexpr long long kSheetId = 65'534;

/// Cells of one sheet.
inline constexpr std::uint64_t kCells = 400'000'000;
/// Cells of one sheet that is written to, where a row takes room up to its last cell.
inline constexpr std::size_t kGridCells = 20'000'000;
/// UTF-16 units in a shape's text, which is rewritten with each piece that is added.
inline constexpr std::size_t kShapeText = 131'072;
/// Series of one chart; a plot group without series counts as one. Excel allows up to 255.
inline constexpr std::size_t kSeries = 1024;
/// Cells in the caches of all series of a chart, and in one reference.
inline constexpr std::int64_t kCachePoints = 4'000'000;

}  // namespace plotsmith::xlsx::limits
