#pragma once

#include <functional>
#include <string>

namespace plotsmith::test {

using Save = std::function<void(const std::string& path)>;

/// Saves to the path. Then saves the same beside it, while some calls to files fail, including those at the
/// end of the save, and while memory is short. Expects that a failed save leaves a file unchanged (or absent)
/// and no other file beside it, and that a successful save writes the same bytes. `save` saves to the path
/// that it is given, and may be called any number of times.
void SaveThroughFailures(const std::string& path, const Save& save);
/// Does the same with a failure of each single call to a file.
void SaveThroughEachFailure(const std::string& path, const Save& save);
/// Saves while one allocation, counted from 1, fails. Returns true if the save has ended before this
/// allocation. Expects that a failed save leaves the file at the path unchanged. A save can succeed in spite
/// of the failure, because the file is already in place when the package is opened again.
bool SaveWithoutMemory(const std::string& path, int allocation, const Save& save);

}  // namespace plotsmith::test
