#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <new>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/Files.h"
#include "tests/support/SaveFailures.h"
#include "xlsx/package/Package.h"

namespace plotsmith::test {
namespace {

namespace fs = std::filesystem;
using S = std::string;

/// The calls of one kind during a save: their number, and which of them fails.
struct Calls {
  std::atomic<int> made = 0;
  std::atomic<int> failing = 0;  ///< from 1; 0 if none fails

  bool FailsNow() { return ++made == failing; }
};
std::atomic<bool> isSaving = false;
Calls allocations, fileCalls;
std::atomic<bool> isFatal = false;  ///< true if the save can't succeed without the call that failed

constexpr int kLast = 8;  ///< number of calls at the end of a save, which put the file in place

bool FileCallFails(int reason, bool fatal = true) {
  if (!isSaving || !fileCalls.FailsNow()) return false;
  isFatal = fatal;
  errno = reason;
  return true;
}

/// Returns the real function that a replacement calls.
template <class Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Returns true if the save succeeded. The failures are numbers of calls from 1, or 0 for none.
bool Saves(const Save& save, const S& path, int failingAllocation, int failingFileCall) {
  allocations.made = fileCalls.made = 0;
  allocations.failing = failingAllocation;
  fileCalls.failing = failingFileCall;
  isFatal = false;
  isSaving = true;
  bool done = false;
  try {
    save(path);
    done = true;
  } catch (const std::exception&) {
  }
  isSaving = false;
  return done;
}

std::set<S> FilesBeside(const S& path) {
  std::set<S> files;
  for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path())) files.insert(entry.path());
  files.erase(path);
  return files;
}

/// Saves again while one call to a file fails, over an existing file or to a new one.
void SaveWhileCallFails(const S& path, const Save& save, int call) {
  const S target = call % 2 == 0 ? path : (fs::path(path).parent_path() / "absent.xlsx").string();
  const auto before = BytesIfThere(target), good = BytesIfThere(path);
  const auto files = FilesBeside(target);
  const bool done = Saves(save, target, 0, call);
  EXPECT_FALSE(done && isFatal) << "call " << call << " to a file";
  EXPECT_TRUE(BytesIfThere(target) == (done ? good : before)) << "call " << call << " to a file";
  EXPECT_EQ(FilesBeside(target), files) << "call " << call << " to a file";
  if (target != path) fs::remove(target);
}

/// Makes every nth call to a file fail, where n is this number, and each call at the end.
void Run(const S& path, const Save& save, int every) {
  ASSERT_TRUE(Saves(save, path, 0, 0)) << "a save without failures fails";
  const int calls = fileCalls.made;
  EXPECT_GT(calls, kLast);
  const fs::path folder = fs::path(path).parent_path() / "failures";
  fs::create_directory(folder);
  const S trial = (folder / fs::path(path).filename()).string();
  fs::copy_file(path, trial);
  for (int call = 1; call <= calls; call += call + kLast < calls ? every : 1) {
    SaveWhileCallFails(trial, save, call);
  }
  for (int n = 1; !SaveWithoutMemory(trial, n, save); n = n * 3 + 1) {
  }
  EXPECT_TRUE(BytesIfThere(trial) == BytesIfThere(path));
  fs::remove_all(folder);
}

}  // namespace

void SaveThroughFailures(const S& path, const Save& save) { Run(path, save, 31); }

void SaveThroughEachFailure(const S& path, const Save& save) { Run(path, save, 1); }

bool SaveWithoutMemory(const S& path, int allocation, const Save& save) {
  const auto before = BytesIfThere(path);
  const auto files = FilesBeside(path);
  const bool done = Saves(save, path, allocation, 0);
  const bool hasFailed = allocations.made >= allocation;
  EXPECT_TRUE(done || hasFailed) << "allocation " << allocation;
  if (!done) {
    EXPECT_TRUE(BytesIfThere(path) == before) << "allocation " << allocation;
  } else {
    EXPECT_NO_THROW(xlsx::Package::Open(path)) << "allocation " << allocation;
  }
  EXPECT_EQ(FilesBeside(path), files) << "allocation " << allocation;
  return !hasFailed;
}

}  // namespace plotsmith::test

// Replacements of the C library's functions that a save calls, and of the functions for memory. Each calls
// the real one. GCC doesn't recognize the memory functions as a pair if it inlines one of them.

namespace failures = plotsmith::test;

[[gnu::noinline]] void* operator new(std::size_t size) {
  if (failures::isSaving && failures::allocations.FailsNow()) throw std::bad_alloc();
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
// std::stable_sort allocates memory with this function and frees it with the delete below. It also sorts
// without that memory, so such a failure wouldn't be seen and isn't counted.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return std::malloc(size == 0 ? 1 : size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" {

int open(const char* path, int flags, ...) {
  if (failures::FileCallFails(EMFILE, false)) return -1;
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static auto* const next = failures::Next<int(const char*, int, ...)>("open");
  return next(path, flags, mode);
}

ssize_t pread(int file, void* data, size_t size, off_t position) {
  if (failures::FileCallFails(EIO)) return -1;
  static auto* const next = failures::Next<ssize_t(int, void*, size_t, off_t)>("pread");
  return next(file, data, size, position);
}

ssize_t pwrite(int file, const void* data, size_t size, off_t position) {
  if (failures::FileCallFails(ENOSPC)) return -1;
  static auto* const next = failures::Next<ssize_t(int, const void*, size_t, off_t)>("pwrite");
  return next(file, data, size, position);
}

int fsync(int file) {
  struct stat status {};
  const bool isFolder = fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
  if (failures::FileCallFails(EIO, !isFolder)) return -1;
  static auto* const next = failures::Next<int(int)>("fsync");
  return next(file);
}

int mkostemp(char* path, int flags) {
  if (failures::FileCallFails(EACCES)) return -1;
  static auto* const next = failures::Next<int(char*, int)>("mkostemp");
  return next(path, flags);
}

int rename(const char* from, const char* to) noexcept {
  if (failures::FileCallFails(EACCES)) return -1;
  static auto* const next = failures::Next<int(const char*, const char*)>("rename");
  return next(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  if (failures::FileCallFails(ENOSPC, false)) return -1;
  static auto* const next = failures::Next<int(int, const char*, int, const char*, int)>("linkat");
  return next(fromFolder, from, toFolder, to, flags);
}

int fchmod(int file, mode_t mode) noexcept {
  if (failures::FileCallFails(EPERM)) return -1;
  static auto* const next = failures::Next<int(int, mode_t)>("fchmod");
  return next(file, mode);
}

}  // extern "C"
