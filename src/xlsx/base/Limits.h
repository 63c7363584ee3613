#pragma once

#include <cstddef>
#include <cstdint>

/// Limits for the contents of a workbook. Valid workbooks stay far below them. A workbook that exceeds a
/// limit is refused with a message, because it would exhaust memory or time.
namespace plotsmith::xlsx::limits {

/// The maximum number of entries in the zip archive.
inline constexpr std::size_t kPackageEntries = 100'000;
/// The maximum inflated size, in bytes, of a part that is read piece by piece (a sheet).
inline constexpr std::uint64_t kStreamedPart = std::uint64_t{8} << 30;
/// The maximum inflated size, in bytes, of a part that is held in memory. All parts except sheets are
/// held, and a sheet while its view or its drawing element is changed.
inline constexpr std::uint64_t kHeldPart = std::uint64_t{512} << 20;
/// The maximum ratio of inflated to compressed size. The deflate format can reach about 1030; real sheets
/// stay below 60.
inline constexpr std::uint64_t kRatio = 300;
/// The inflated size, in bytes, up to which a part may have any ratio.
inline constexpr std::uint64_t kAnyRatio = std::uint64_t{16} << 20;

/// The maximum depth of nested elements in a part.
inline constexpr int kXmlDepth = 512;
/// The maximum number of tags and attributes in a part that is parsed into a tree. In the tree, a short tag
/// takes many times its size in the file. A chart with kCachePoints points stays below this limit.
inline constexpr std::ptrdiff_t kXmlMarks = 24'000'000;
/// The maximum number of attributes of an element, including namespace declarations. Each access to an
/// attribute searches all of them.
inline constexpr std::size_t kXmlAttributes = 1000;
/// The maximum number of texts in the shared strings part.
inline constexpr std::size_t kSharedStrings = 32'000'000;
/// The maximum size, in bytes, of a tag or of a text between two tags in a part that is read piece by piece.
inline constexpr std::size_t kXmlToken = std::size_t{64} << 20;

/// Limits of Excel: the rows and columns of a sheet; the UTF-16 units of a cell's text, of a formula and of a
/// sheet's name; and the largest id of a sheet.
///@{
inline constexpr std::int32_t kRows = 1'048'576;
inline constexpr std::int32_t kColumns = 16'384;
inline constexpr std::size_t kCellText = 32'767;
inline constexpr std::size_t kFormula = 8'192;
inline constexpr std::size_t kSheetName = 31;
inline constexpr long long kSheetId = 65'534;
///@}

/// The maximum number of cells on a sheet.
inline constexpr std::uint64_t kCells = 400'000'000;
/// The maximum number of cells on a sheet that is written to. Each row takes memory up to its last cell.
inline constexpr std::size_t kGridCells = 20'000'000;
/// The maximum length of a shape's text in UTF-16 units. The whole text is rewritten with each piece that is
/// added to it.
inline constexpr std::size_t kShapeText = 131'072;
/// The maximum number of series in a chart. A plot group without series counts as one series. Excel allows
/// 255.
inline constexpr std::size_t kSeries = 1024;
/// The maximum number of cells in the caches of all series of a chart, and in one reference.
inline constexpr std::int64_t kCachePoints = 4'000'000;

}  // namespace plotsmith::xlsx::limits
