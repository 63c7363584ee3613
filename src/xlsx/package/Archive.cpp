#include "xlsx/package/Archive.h"

#include <algorithm>
#include <isa-l/crc.h>
#include <optional>
#include <zip.h>

#include "xlsx/base/Limits.h"
#include "xlsx/package/Inflater.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/ZipFiles.h"

namespace plotsmith::xlsx {
namespace {

/// 1 January 1980, the first date of zip files.
constexpr zip_uint16_t kFirstDosDay = 1 << 5 | 1;

struct ZipCloser {
  void operator()(zip_t* zip) const { zip_discard(zip); }
};
std::unique_ptr<zip_t, ZipCloser> OpenFrom(zip_source_t* source, int flags) {
  zip_error_t error;
  zip_error_init(&error);
  std::unique_ptr<zip_t, ZipCloser> zip(zip_open_from_source(source, flags, &error));
  const std::string reason = zip_error_strerror(&error);
  zip_error_fini(&error);
  if (!zip) {
    zip_source_free(source);
    throw PackageError(reason);
  }
  return zip;
}

struct FileCloser {
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};

class EntryStream : public Archive::Stream {
 public:
  EntryStream(zip_t* zip, const ArchiveEntry& entry, std::size_t index)
      : entry_(entry), file_(zip_fopen_index(zip, index, ZIP_FL_COMPRESSED)) {
    if (!file_) throw PackageError(zip_strerror(zip));
    const ByteReader raw = [this](char* buffer, std::size_t size) {
      const auto count = zip_fread(file_.get(), buffer, size);
      if (count < 0) throw PackageError(zip_file_strerror(file_.get()));
      return static_cast<std::size_t>(count);
    };
    if (entry.method == ZIP_CM_STORE) {
      reader_ = raw;
    } else {
      reader_ = [inflater = std::make_shared<Inflater>(raw)](char* buffer, std::size_t size) {
        return inflater->Read(buffer, size);
      };
    }
  }

  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = reader_(buffer, size);
    crc_ = crc32_gzip_refl(crc_, reinterpret_cast<const unsigned char*>(buffer), count);
    total_ += count;
    if (total_ > entry_.size || (count == 0 && total_ != entry_.size)) {
      throw PackageError("its size isn't the one in the archive's directory");
    }
    if (count == 0 && crc_ != entry_.crc) throw PackageError("its checksum is wrong");
    return count;
  }

 private:
  ArchiveEntry entry_;
  std::unique_ptr<zip_file_t, FileCloser> file_;
  ByteReader reader_;
  std::uint32_t crc_ = 0;
  std::uint64_t total_ = 0;
};

}  // namespace

struct Archive::Handle {
  std::unique_ptr<zip_t, ZipCloser> zip;
};

Archive::Archive(const std::string& path)
    : path_(path), stamp_(FileStamp::Of(path)), handle_(std::make_unique<Handle>()) {
  handle_->zip = OpenFrom(OpenZipFile(path), ZIP_RDONLY);
  zip_t* zip = handle_->zip.get();
  const auto count = zip_get_num_entries(zip, 0);
  if (static_cast<std::size_t>(count) > limits::kPackageEntries)
    throw PackageError("it has too many entries");
  for (zip_int64_t i = 0; i < count; ++i) {
    zip_stat_t stat;
    if (zip_stat_index(zip, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_RAW, &stat) != 0) {
      throw PackageError(zip_strerror(zip));
    }
    ArchiveEntry entry;
    entry.name = stat.name;
    std::replace(entry.name.begin(), entry.name.end(), '\\', '/');
    entry.compressedSize = stat.comp_size;
    entry.size = stat.size;
    entry.crc = stat.crc;
    entry.method = stat.comp_method;
    entry.encrypted = (stat.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && stat.encryption_method != ZIP_EM_NONE;
    entries_.push_back(std::move(entry));
  }
}

Archive::~Archive() = default;

bool Archive::FileHasChanged() const { return FileStamp::Of(path_) != stamp_; }

void Archive::Close() { handle_.reset(); }

std::unique_ptr<Archive::Stream> Archive::Open(std::size_t index) const {
  const ArchiveEntry& entry = entries_.at(index);
  if (!handle_) throw PackageError("the file is closed");
  if (entry.encrypted) throw PackageError("it is encrypted");
  if (entry.method != ZIP_CM_STORE && entry.method != ZIP_CM_DEFLATE) {
    throw PackageError("it is compressed by an unsupported method");
  }
  return std::make_unique<EntryStream>(handle_->zip.get(), entry, index);
}

/// Compression level of deflate, from 1 to 9. A chart on a sheet of data makes Plotsmith compress the whole
/// sheet again. The library's default, 9, takes about 25 times as long as this level and saves another
/// seventh of the bytes.
constexpr zip_uint32_t kDeflateLevel = 4;

struct ArchiveWriter::Handle {
  std::unique_ptr<zip_t, ZipCloser> zip;

  /// Adds an entry and returns its index. `method` is given for data that is to be compressed or stored. A
  /// copied entry keeps its method, even if the library doesn't support it.
  zip_uint64_t Add(const char* name, zip_source_t* source, std::optional<std::uint16_t> method) {
    const auto index = source == nullptr ? -1 : zip_file_add(zip.get(), name, source, ZIP_FL_ENC_GUESS);
    if (index < 0) {
      zip_source_free(source);
      throw PackageError(zip_strerror(zip.get()));
    }
    if (method &&
        zip_set_file_compression(zip.get(), static_cast<zip_uint64_t>(index), *method, kDeflateLevel) != 0) {
      throw PackageError(zip_strerror(zip.get()));
    }
    return static_cast<zip_uint64_t>(index);
  }
};

ArchiveWriter::ArchiveWriter(const std::string& path) : handle_(std::make_unique<Handle>()) {
  handle_->zip = OpenFrom(CreateZipFile(path), ZIP_CREATE | ZIP_TRUNCATE);
}

ArchiveWriter::ArchiveWriter(int descriptor) : handle_(std::make_unique<Handle>()) {
  handle_->zip = OpenFrom(CreateZipFile(descriptor), ZIP_CREATE | ZIP_TRUNCATE);
}

ArchiveWriter::~ArchiveWriter() = default;

void ArchiveWriter::Copy(const Archive& source, std::size_t index) {
  if (!source.handle_) throw PackageError("the file is closed");
  zip_t* from = source.handle_->zip.get();
  const bool stored = source.Entries()[index].method == ZIP_CM_STORE;
  handle_->Add(zip_get_name(from, index, ZIP_FL_ENC_RAW),
               zip_source_zip(handle_->zip.get(), from, index, ZIP_FL_COMPRESSED, 0, -1),
               stored ? std::optional<std::uint16_t>(ZIP_CM_STORE) : std::nullopt);
}

void ArchiveWriter::CopyComment(const Archive& source) {
  if (!source.handle_) throw PackageError("the file is closed");
  int length = 0;
  const char* comment = zip_get_archive_comment(source.handle_->zip.get(), &length, ZIP_FL_ENC_RAW);
  if (comment != nullptr && length > 0) {
    zip_set_archive_comment(handle_->zip.get(), comment, static_cast<zip_uint16_t>(length));
  }
}

void ArchiveWriter::Add(const std::string& name, std::string_view bytes, bool compress) {
  const auto index =
      handle_->Add(name.c_str(), zip_source_buffer(handle_->zip.get(), bytes.data(), bytes.size(), 0),
                   compress ? ZIP_CM_DEFLATE : ZIP_CM_STORE);
  // As in files of Office, there is no time stamp. Therefore the same content gives the same file.
  zip_file_set_dostime(handle_->zip.get(), index, 0, kFirstDosDay, 0);
}

void ArchiveWriter::Finish() {
  if (zip_close(handle_->zip.get()) != 0) throw PackageError(zip_strerror(handle_->zip.get()));
  static_cast<void>(handle_->zip.release());  // closed, and thereby freed
}

}  // namespace plotsmith::xlsx
