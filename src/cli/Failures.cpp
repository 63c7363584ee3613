#include "cli/Failures.h"

#include <exception>

#include "cli/check/Words.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::cli {

int Guarded(std::ostream& err, const std::function<int()>& work) {
  const auto fail = [&](const std::string& sentence, int code) {
    err << "plotsmith: " << sentence << '\n';
    return code;
  };
  try {
    return work();
  } catch (const CommandError& e) {
    return fail(e.what(), e.ExitCode());
  } catch (const xlsx::PackageError& e) {
    return fail(e.what(), exit_code::kFile);
  } catch (const std::exception& e) {
    return fail(std::string("an unexpected error occurred: ") + e.what(), exit_code::kFile);
  }
}

CommandError NotInBook(const std::string& book, const std::string& kind, const std::string& name,
                       const std::vector<std::string>& there) {
  return CommandError(exit_code::kUsage,
                      "\"" + book + "\" has no " + kind + " " + Quoted(name) + "; " + ThereAre(there) + ".");
}

}  // namespace plotsmith::cli
