#include <gtest/gtest.h>
#include <string>

#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/package/AheadStream.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/sheet/SheetScanner.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::size_t kMebibyte = 1024 * 1024;

std::string Bytes(std::size_t size) {
  std::string bytes(size, '\0');
  std::uint32_t state = 1;
  for (char& byte : bytes) byte = static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
  return bytes;
}

/// A stream that ends with an error.
class FailingStream final : public Archive::Stream {
 public:
  explicit FailingStream(std::string_view bytes, std::size_t piece) : inner_(bytes, piece) {}
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = inner_.Read(buffer, size);
    if (count == 0) throw PackageError("it ends here");
    return count;
  }

 private:
  MemoryStream inner_;
};

/// Returns all bytes that a reader with a buffer of this size gets, and the error at the end.
std::pair<std::string, std::string> All(Archive::Stream& stream, std::size_t size) {
  std::string all, buffer(size, '\0'), error;
  try {
    while (const std::size_t count = stream.Read(buffer.data(), size)) all.append(buffer, 0, count);
  } catch (const PackageError& e) {
    error = e.what();
  }
  return {all, error};
}

TEST(AheadStreamTest, GivesTheBytesOfTheOtherStreamInPiecesOfAnySize) {
  const struct {
    std::size_t length, piece, buffer;
  } cases[] = {{0, 100, 100},
               {1, 100, 100},
               {kMebibyte, 65536, 65536},  // the maximum size without a thread
               {kMebibyte + 1, 65536, 65536},
               {5 * kMebibyte, 1000, 100000},
               {5 * kMebibyte, 100000, 1000},
               {5 * kMebibyte + 7, 8 * kMebibyte, 8 * kMebibyte},
               {5 * kMebibyte, 128 * 1024, 128 * 1024}};
  for (const auto& c : cases) {
    const std::string bytes = Bytes(c.length);
    MemoryStream whole(bytes, c.piece);
    AheadStream ahead(whole);
    EXPECT_TRUE(All(ahead, c.buffer) == std::pair(bytes, std::string())) << c.length << ' ' << c.piece;
    EXPECT_TRUE(All(ahead, c.buffer) == std::pair(std::string(), std::string()))
        << "reading after the end gives the end again";
    FailingStream failing(bytes, c.piece);
    AheadStream aheadOfFailure(failing);
    EXPECT_TRUE(All(aheadOfFailure, c.buffer) == std::pair(bytes, std::string("it ends here"))) << c.length;
  }
}

TEST(AheadStreamTest, AnAbandonedStreamIsReadOnlyAFewPiecesAhead) {
  const std::string bytes = Bytes(20 * kMebibyte);
  MemoryStream whole(bytes, 64 * 1024);
  {
    AheadStream ahead(whole);
    std::string buffer(64 * 1024, '\0');
    for (std::size_t taken = 0; taken < 2 * kMebibyte;) taken += ahead.Read(buffer.data(), buffer.size());
  }
  const auto [rest, error] = All(whole, kMebibyte);
  EXPECT_EQ(error, "");
  EXPECT_LE(rest.size(), 18 * kMebibyte);
  EXPECT_GE(rest.size(), 16 * kMebibyte);
  EXPECT_TRUE(bytes.ends_with(rest));
}

TEST(AheadStreamTest, ALargeSheetIsScannedLikeASmallOne) {
  constexpr int kRows = 40000;
  std::string text = "<worksheet xmlns='m'><sheetData>";
  for (int row = 1; row <= kRows; ++row) {
    const std::string number = std::to_string(row);
    text += "<row r=\"" + number + "\"><c r=\"A" + number + "\"><v>" + number + "</v></c><c r=\"B" + number +
            "\" t=\"s\"><v>" + std::to_string(row % 7) + "</v></c></row>";
  }
  text += "</sheetData></worksheet>";
  ASSERT_GT(text.size(), 2 * kMebibyte);
  MemoryStream stream(text, 5000);
  const SheetContents sheet = ScanSheet(stream, DateSystem::k1900);
  EXPECT_EQ(sheet.used, (CellRange{1, 1, kRows, 2}));
  for (int row = 1; row <= kRows; ++row) {
    ASSERT_EQ(sheet.cells.ValueAt(row, 1).Number(), row);
    ASSERT_EQ(sheet.cells.ValueAt(row, 2).Index(), static_cast<std::uint32_t>(row % 7));
  }
  const std::string cut = text.substr(0, text.size() - 1000);
  MemoryStream cutStream(cut, 5000);
  EXPECT_THROW(ScanSheet(cutStream, DateSystem::k1900), PackageError);
}

}  // namespace
}  // namespace plotsmith::xlsx
