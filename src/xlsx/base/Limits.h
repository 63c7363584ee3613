#pragma once

#include <cstddef>
#include <cstdint>

/// Limits for the contents of a workbook. Valid workbooks stay far below them. A workbook that exceeds a
/// limit is refused with a message, because it would exhaust memory or time.
namespace plotsmith::xlsx::limits {

/// Entries of the zip archive.
inline constexpr std::size_t kPackageEntries = 100'000;
/// Inflated bytes of a part that is streamed (a sheet), and of a part that is held in memory (all others).
inline constexpr std::uint64_t kStreamedPart = std::uint64_t{8} << 30;
inline constexpr std::uint64_t kHeldPart = std::uint64_t{512} << 20;
/// Ratio of inflated to compressed size. Deflate reaches about 1030; real sheets stay below 60. Parts up to
/// kAnyRatio bytes aren't checked.
inline constexpr std::uint64_t kRatio = 300;
inline constexpr std::uint64_t kAnyRatio = std::uint64_t{16} << 20;

/// Nested elements of a part.
inline constexpr int kXmlDepth = 512;
/// Tags and attributes of a part that is parsed to a tree, where a short tag takes many times its size. The
/// largest chart, with kCachePoints points, stays below.
inline constexpr std::ptrdiff_t kXmlMarks = 24'000'000;
/// Attributes of one element, including namespaces. Each access searches all of them.
inline constexpr std::size_t kXmlAttributes = 1000;
/// Texts of the shared strings part.
inline constexpr std::size_t kSharedStrings = 32'000'000;
/// Size of one tag, or of one text between tags, in a streamed sheet.
inline constexpr std::size_t kXmlToken = std::size_t{64} << 20;

// Excel's own limits. Rows and columns count from 1; text lengths are in UTF-16 units.
inline constexpr std::int32_t kRows = 1'048'576;
inline constexpr std::int32_t kColumns = 16'384;
inline constexpr std::size_t kCellText = 32'767;
inline constexpr std::size_t kFormula = 8'192;
inline constexpr std::size_t kSheetName = 31;
inline constexpr long long kSheetId = 65'534;

/// Cells of one sheet.
inline constexpr std::uint64_t kCells = 400'000'000;
/// Cells of one sheet that is written to. Each row takes memory up to its last cell.
inline constexpr std::size_t kGridCells = 20'000'000;
/// UTF-16 units in a shape's text, which is rewritten with each piece that is added to it.
inline constexpr std::size_t kShapeText = 131'072;
/// Series of one chart; a plot group without series counts as one. Excel allows up to 255.
inline constexpr std::size_t kSeries = 1024;
/// Cells in the caches of all series of a chart, and in one reference.
inline constexpr std::int64_t kCachePoints = 4'000'000;

}  // namespace plotsmith::xlsx::limits
