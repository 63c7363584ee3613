#pragma once

#include <string>
#include <zip.h>

namespace plotsmith::xlsx {

/// Files for the zip library, which by itself reads and writes them by four kilobytes: a large workbook would
/// spend more time in the kernel than in the pivot. The library owns what these return.

/// A file to read. Throws PackageError if it can't be opened.
zip_source_t* OpenZipFile(const std::string& path);
/// A file to write anew, in place and in one go; what a failure leaves of it is the caller's to remove.
zip_source_t* CreateZipFile(const std::string& path);
/// The same of an empty file that is open for writing; the descriptor stays the caller's.
zip_source_t* CreateZipFile(int descriptor);

}  // namespace plotsmith::xlsx
