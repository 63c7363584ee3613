#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Calls to files by descriptors, which child processes don't inherit. Paths are UTF-8. A call that fails
/// sets errno. Each operating system has a source file.
namespace plotsmith::xlsx::file_system {

/// Opens a file for reading. Returns -1 if that fails.
int OpenToRead(const std::string& path);
/// Opens a file for writing, and creates or empties it. Returns -1 if that fails.
int OpenToWrite(const std::string& path);
/// Opens an empty file for reading and writing that is deleted when it is closed. Returns -1 if that fails.
int OpenScratch();
/// Returns a second descriptor of an open file, or -1.
int Duplicate(int file);
/// Closes a descriptor. Errors are ignored.
void Close(int file);

/// Returns the size of a file in bytes, or nothing if that fails.
std::optional<std::uint64_t> SizeOf(int file);
/// Reads at most `size` bytes at a position, in bytes from 0. Returns the number of bytes, 0 at the end, or
/// -1 for a failure.
std::int64_t ReadAt(int file, void* data, std::size_t size, std::uint64_t position);
/// Writes at most `size` bytes at a position, in bytes from 0. Returns the number of bytes, or -1 for a
/// failure.
std::int64_t WriteAt(int file, const void* data, std::size_t size, std::uint64_t position);

}  // namespace plotsmith::xlsx::file_system
