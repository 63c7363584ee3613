#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/package/FileStamp.h"

namespace plotsmith::xlsx {

/// An entry in the directory of a zip file.
struct ArchiveEntry {
  std::string name;                  ///< The stored name, with slashes in place of backslashes.
  std::uint64_t compressedSize = 0;  ///< The size in the file, in bytes.
  std::uint64_t size = 0;            ///< The inflated size in bytes.
  std::uint32_t crc = 0;             ///< The CRC-32 checksum of the inflated bytes.
  std::uint16_t method = 0;          ///< The compression method: 0 for stored, 8 for deflated.
  bool encrypted = false;            ///< Whether the entry is encrypted and can't be read.
};

/// A zip file that is read entry by entry. All failures are PackageErrors.
class Archive {
 public:
  /// Opens a zip file and reads its directory.
  explicit Archive(const std::string& path);
  ~Archive();
  Archive(const Archive&) = delete;
  Archive& operator=(const Archive&) = delete;

  /// The path of the file.
  const std::string& Path() const { return path_; }
  /// Returns true if the file at the path has changed since this archive was opened.
  bool FileHasChanged() const;
  /// The entries in the order of the directory.
  const std::vector<ArchiveEntry>& Entries() const { return entries_; }
  /// Closes the file. Its entries can no longer be opened.
  void Close();

  /// Reads the inflated bytes of an entry piece by piece. The end of the entry is checked against its size
  /// and checksum.
  class Stream {
   public:
    virtual ~Stream() = default;
    /// Reads up to `size` bytes and returns their number; 0 at the end.
    virtual std::size_t Read(char* buffer, std::size_t size) = 0;
  };
  /// Opens an entry for reading; `index` is its index in Entries, from 0.
  std::unique_ptr<Stream> Open(std::size_t index) const;

 private:
  friend class ArchiveWriter;
  struct Handle;
  std::string path_;
  std::optional<FileStamp> stamp_;  ///< The file before it was opened.
  std::unique_ptr<Handle> handle_;  ///< Null after Close.
  std::vector<ArchiveEntry> entries_;
};

/// Writes a zip file. The entries are in the order of the calls. Finish writes the file, so the bytes and the
/// archives that are passed must exist until then.
class ArchiveWriter {
 public:
  /// Creates the file, or empties an existing one.
  explicit ArchiveWriter(const std::string& path);
  /// Writes into an empty file that is open for writing. The file stays open.
  explicit ArchiveWriter(int descriptor);
  ~ArchiveWriter();

  /// Copies an entry without inflating it.
  void Copy(const Archive& source, std::size_t index);
  /// Copies the comment of the file.
  void CopyComment(const Archive& source);
  /// Adds an entry with new bytes, compressed or stored. The bytes must stay unchanged until Finish.
  void Add(const std::string& name, std::string_view bytes, bool compress = true);
  /// Writes the file.
  void Finish();

 private:
  struct Handle;
  std::unique_ptr<Handle> handle_;
};

}  // namespace plotsmith::xlsx
