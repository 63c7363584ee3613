#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::xlsx {

/// An entry of a zip file, as its directory tells.
struct ArchiveEntry {
  std::string name;  ///< as stored, except that backslashes are slashes
  std::uint64_t compressedSize = 0;
  std::uint64_t size = 0;
  std::uint32_t crc = 0;
  std::uint16_t method = 0;
  bool encrypted = false;
};

/// A zip file, read entry by entry and never as a whole. All failures are PackageErrors.
class Archive {
 public:
  /// `path` must name a readable zip file.
  explicit Archive(const std::string& path);
  ~Archive();
  Archive(const Archive&) = delete;
  Archive& operator=(const Archive&) = delete;

  const std::string& Path() const { return path_; }
  const std::vector<ArchiveEntry>& Entries() const { return entries_; }
  /// Lets go of the file. The entries can't be opened any more.
  void Close();

  /// The inflated bytes of an entry, piece by piece; size and checksum are proved at the end.
  class Stream {
   public:
    virtual ~Stream() = default;
    /// 0 at the end.
    virtual std::size_t Read(char* buffer, std::size_t size) = 0;
  };
  std::unique_ptr<Stream> Open(std::size_t index) const;

 private:
  friend class ArchiveWriter;
  struct Handle;
  std::string path_;
  std::unique_ptr<Handle> handle_;  ///< null after Close
  std::vector<ArchiveEntry> entries_;
};

/// Writes a zip file, entry by entry in the order of the calls. The views and the archives given must live
/// until Finish, which does the writing.
class ArchiveWriter {
 public:
  explicit ArchiveWriter(const std::string& path);
  /// Into an empty file that is open for writing, and stays so.
  explicit ArchiveWriter(int descriptor);
  ~ArchiveWriter();

  /// Copies an entry as it lies, compressed by whatever method.
  void Copy(const Archive& source, std::size_t index);
  /// Copies what was noted on the file as a whole.
  void CopyComment(const Archive& source);
  /// Compresses new bytes, or stores them as they are.
  void Add(const std::string& name, std::string_view bytes, bool compress = true);
  void Finish();

 private:
  struct Handle;
  std::unique_ptr<Handle> handle_;
};

}  // namespace plotsmith::xlsx
