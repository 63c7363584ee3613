#pragma once

#include <functional>
#include <string>

namespace plotsmith::test {

using Save = std::function<void(const std::string& path)>;

/// Saves to the path. Then saves the same beside it while some of the calls to files fail, those at the end
/// of the save among them, and while memory is short. Expects that a save that fails leaves a file as it was,
/// or absent, and no other file beside it, and that one that doesn't fail writes the same bytes. `save` saves
/// to the path that it is given, and may be called any number of times.
void SaveThroughFailures(const std::string& path, const Save& save);
/// The same with the failure of each single call to a file.
void SaveThroughEachFailure(const std::string& path, const Save& save);
/// Saves while one allocation, counted from 1, fails. Returns true if the save has come to its end before.
/// Expects that the file at the path is as it was if it hasn't.
bool SaveWithoutMemory(const std::string& path, int allocation, const Save& save);

}  // namespace plotsmith::test
