#include "xlsx/package/ZipFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include "runtime/SystemErrors.h"
#include "xlsx/package/FileSystem.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::size_t kBlock = 256 * 1024;

/// The common base of both kinds of file: a descriptor, a position, and libzip's error reporting.
class ZipFile {
 public:
  /// Takes over the descriptor. If it is -1, errno contains the reason.
  explicit ZipFile(int file) : file_(file) {
    zip_error_init(&error_);
    const auto size = file_ < 0 ? std::nullopt : file_system::SizeOf(file_);
    if (!size) {
      const std::string reason = runtime::SystemErrorText(errno);
      if (file_ >= 0) file_system::Close(file_);
      throw PackageError(reason);
    }
    size_ = *size;
  }
  virtual ~ZipFile() {
    file_system::Close(file_);
    zip_error_fini(&error_);
  }
  ZipFile(const ZipFile&) = delete;
  ZipFile& operator=(const ZipFile&) = delete;

  virtual zip_int64_t Handle(void* data, zip_uint64_t length, zip_source_cmd_t command) = 0;

  /// Performs a command of libzip. No exception may pass through the library, which is written in C.
  static zip_int64_t Callback(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    auto* file = static_cast<ZipFile*>(self);
    switch (command) {
      case ZIP_SOURCE_FREE:
        delete file;
        return 0;
      case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&file->error_, data, length);
      case ZIP_SOURCE_STAT: {
        auto* stat = static_cast<zip_stat_t*>(data);
        zip_stat_init(stat);
        stat->valid = ZIP_STAT_SIZE;
        stat->size = file->size_;
        return sizeof(*stat);
      }
      default:
        try {
          return file->Handle(data, length, command);
        } catch (const std::bad_alloc&) {
          return file->Fail(ZIP_ER_MEMORY);
        }
    }
  }

 protected:
  zip_int64_t Fail(int code) {
    zip_error_set(&error_, code, errno);
    return -1;
  }
  zip_int64_t Seek(std::uint64_t& position, void* data, zip_uint64_t length) {
    const auto target = zip_source_seek_compute_offset(position, size_, data, length, &error_);
    if (target < 0) return -1;
    position = static_cast<std::uint64_t>(target);
    return 0;
  }

  int file_;
  std::uint64_t size_ = 0;
  zip_error_t error_;
};

class ReadFile final : public ZipFile {
 public:
  using ZipFile::ZipFile;

  zip_int64_t Handle(void* data, zip_uint64_t length, zip_source_cmd_t command) override {
    switch (command) {
      case ZIP_SOURCE_OPEN:
        position_ = 0;
        return 0;
      case ZIP_SOURCE_CLOSE:
        return 0;
      case ZIP_SOURCE_READ:
        return Read(static_cast<char*>(data), length);
      case ZIP_SOURCE_SEEK:
        return Seek(position_, data, length);
      case ZIP_SOURCE_TELL:
        return static_cast<zip_int64_t>(position_);
      case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                              ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE,
                                              ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL, ZIP_SOURCE_SUPPORTS, -1);
      default:
        return Fail(ZIP_ER_OPNOTSUPP);
    }
  }

 private:
  zip_int64_t Read(char* buffer, zip_uint64_t length) {
    zip_uint64_t done = 0;
    while (done < length && position_ < size_) {
      if (position_ < blockAt_ || position_ >= blockAt_ + block_.size()) {
        block_.resize(std::min<std::uint64_t>(kBlock, size_ - position_));
        const auto count = file_system::ReadAt(file_, block_.data(), block_.size(), position_);
        if (count < 0) return Fail(ZIP_ER_READ);
        block_.resize(static_cast<std::size_t>(count));
        blockAt_ = position_;
        if (count == 0) break;  // The file was truncated while it was read.
      }
      const auto offset = static_cast<std::size_t>(position_ - blockAt_);
      const auto count = std::min<zip_uint64_t>(block_.size() - offset, length - done);
      std::memcpy(buffer + done, block_.data() + offset, count);
      done += count;
      position_ += count;
    }
    return static_cast<zip_int64_t>(done);
  }

  std::uint64_t position_ = 0;
  std::vector<char> block_;
  std::uint64_t blockAt_ = 0;
};

class WriteFile final : public ZipFile {
 public:
  explicit WriteFile(int file) : ZipFile(file) { block_.reserve(kBlock); }

  zip_int64_t Handle(void* data, zip_uint64_t length, zip_source_cmd_t command) override {
    switch (command) {
      case ZIP_SOURCE_OPEN:
      case ZIP_SOURCE_CLOSE:
      case ZIP_SOURCE_BEGIN_WRITE:
      case ZIP_SOURCE_ROLLBACK_WRITE:
      case ZIP_SOURCE_REMOVE:
        return 0;
      case ZIP_SOURCE_READ:
        return 0;  // The new file is empty.
      case ZIP_SOURCE_SEEK:
      case ZIP_SOURCE_TELL:
        return 0;
      case ZIP_SOURCE_WRITE:
        return Write(static_cast<const char*>(data), length);
      case ZIP_SOURCE_COMMIT_WRITE:
        return Flush() ? 0 : Fail(ZIP_ER_WRITE);
      case ZIP_SOURCE_SEEK_WRITE:
        if (!Flush()) return Fail(ZIP_ER_WRITE);
        return Seek(position_, data, length);
      case ZIP_SOURCE_TELL_WRITE:
        return static_cast<zip_int64_t>(position_ + block_.size());
      case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(
            ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE, ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR,
            ZIP_SOURCE_FREE, ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL, ZIP_SOURCE_SUPPORTS, ZIP_SOURCE_BEGIN_WRITE,
            ZIP_SOURCE_COMMIT_WRITE, ZIP_SOURCE_ROLLBACK_WRITE, ZIP_SOURCE_WRITE, ZIP_SOURCE_SEEK_WRITE,
            ZIP_SOURCE_TELL_WRITE, ZIP_SOURCE_REMOVE, -1);
      default:
        return Fail(ZIP_ER_OPNOTSUPP);
    }
  }

 private:
  zip_int64_t Write(const char* data, zip_uint64_t length) {
    if (block_.size() + length > kBlock && !Flush()) return Fail(ZIP_ER_WRITE);
    block_.insert(block_.end(), data, data + length);
    return static_cast<zip_int64_t>(length);
  }
  bool Flush() {
    std::size_t done = 0;
    while (done < block_.size()) {
      const auto count =
          file_system::WriteAt(file_, block_.data() + done, block_.size() - done, position_ + done);
      if (count <= 0) return false;
      done += static_cast<std::size_t>(count);
    }
    position_ += done;
    size_ = std::max(size_, position_);
    block_.clear();
    return true;
  }

  std::uint64_t position_ = 0;  ///< the position of the block in the file
  std::vector<char> block_;
};

zip_source_t* MakeSource(std::unique_ptr<ZipFile> file) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_function_create(ZipFile::Callback, file.get(), &error);
  zip_error_fini(&error);
  if (source == nullptr) throw PackageError("out of memory");
  static_cast<void>(file.release());  // The source frees it.
  return source;
}

}  // namespace

zip_source_t* OpenZipFile(const std::string& path) {
  return MakeSource(std::make_unique<ReadFile>(file_system::OpenToRead(path)));
}

zip_source_t* CreateZipFile(const std::string& path) {
  return MakeSource(std::make_unique<WriteFile>(file_system::OpenToWrite(path)));
}

zip_source_t* CreateZipFile(int descriptor) {
  return MakeSource(std::make_unique<WriteFile>(file_system::Duplicate(descriptor)));
}

}  // namespace plotsmith::xlsx
