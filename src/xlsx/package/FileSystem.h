#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Files by descriptors, which child processes don't inherit. Paths are UTF-8. Where a call fails, errno says
/// why. Each operating system has a source file.
namespace plotsmith::xlsx::file_system {

/// -1 if the file can't be opened.
int OpenToRead(const std::string& path);
/// Makes the file or empties it, and opens it to be written. -1 if that can't be done.
int OpenToWrite(const std::string& path);
/// An empty file, open for reading and writing, that is gone when it is closed. -1 if there is no room.
int OpenScratch();
/// A second descriptor of an open file.
int Duplicate(int file);
void Close(int file);

/// The size in bytes.
std::optional<std::uint64_t> SizeOf(int file);
/// Reads at most `size` bytes from a position, in bytes from the start, and answers how many; 0 at the end
/// and -1 for a failure.
std::int64_t ReadAt(int file, void* data, std::size_t size, std::uint64_t position);
/// Writes at most `size` bytes and answers how many; -1 for a failure.
std::int64_t WriteAt(int file, const void* data, std::size_t size, std::uint64_t position);

}  // namespace plotsmith::xlsx::file_system
