#pragma once

#include <string>
#include <zip.h>

namespace plotsmith::xlsx {

/// Files for libzip with large blocks. By itself, the library reads and writes four kilobytes at a time. With
/// a large workbook, the system calls would then take more time than the pivot. The library owns the returned
/// objects.

/// Opens a file for reading. Throws PackageError if that fails.
zip_source_t* OpenZipFile(const std::string& path);
/// Creates or empties a file and writes it in one pass. After a failure, the caller removes it.
zip_source_t* CreateZipFile(const std::string& path);
/// Writes an empty file that is open for writing. The caller keeps the descriptor.
zip_source_t* CreateZipFile(int descriptor);

}  // namespace plotsmith::xlsx
