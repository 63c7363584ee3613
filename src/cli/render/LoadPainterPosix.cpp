#include <array>
#include <dlfcn.h>
#include <filesystem>
#include <string>
#include <sys/auxv.h>

#include "cli/Command.h"
#include "cli/render/LoadPainter.h"
#include "render/module/Module.h"

namespace plotsmith::cli {
namespace {

namespace fs = std::filesystem;

/// The folders of the modules, relative to the folder of the program: beside it in an installation, below it
/// in a build folder, and for tests below one of its parents.
constexpr std::array kFolders = {"../lib/plotsmith", "lib/plotsmith", "../../lib/plotsmith"};

/// Returns the folder of this program. Without /proc, as in some minimal roots, it comes from the name with
/// which the program was started.
fs::path FolderOfProgram() {
  std::error_code error;
  fs::path program = fs::read_symlink("/proc/self/exe", error);
  const auto* const started = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
  if (error && started != nullptr) program = fs::canonical(started, error);
  return program.parent_path();
}

fs::path FindModule(const char* file) {
  std::error_code ignored;
  const fs::path folder = FolderOfProgram();
  for (const char* const relative : kFolders) {
    const fs::path module = (folder / relative / file).lexically_normal();
    if (module.is_absolute() && fs::exists(module, ignored)) return module;
  }
  throw CommandError(exit_code::kUsage, "nothing can be drawn: \"" +
                                            (folder / kFolders[0] / file).lexically_normal().string() +
                                            "\", which draws, isn't installed.");
}

template <class Function>
Function* Find(void* module, const char* name) {
  return reinterpret_cast<Function*>(dlsym(module, name));
}

/// Loads a module and returns its function.
template <class Function>
Function* Load(const char* file, const char* function) {
  const fs::path path = FindModule(file);
  const auto refuse = [&](const std::string& why) -> CommandError {
    return CommandError(exit_code::kUsage, "nothing can be drawn: \"" + path.string() + "\" " + why + ".");
  };
  // Most functions of the graphics libraries are never called, so each is bound at its first call.
  void* const module = dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
  if (module == nullptr) {
    const char* const reason = dlerror();
    throw refuse("can't be loaded: " + std::string(reason == nullptr ? "no reason is given" : reason));
  }
  auto* const version = Find<render::ModuleVersion>(module, render::kVersionFunction);
  auto* const entry = Find<Function>(module, function);
  if (version == nullptr || entry == nullptr) throw refuse("isn't Plotsmith's drawing library");
  if (version() != std::string(PLOTSMITH_VERSION)) {
    throw refuse("is of version " + std::string(version()) + ", and this program of version " +
                 PLOTSMITH_VERSION);
  }
  return entry;
}

}  // namespace

const render::TextMeasure& LoadFonts() {
  static const render::TextMeasure& fonts =
      *Load<render::ModuleMeasure>(render::kFontsFile, render::kMeasureFunction)(
          []() -> const render::TextMeasure& { return LoadPainter().Measure(); });
  return fonts;
}

const render::Painter& LoadPainter() {
  static const render::Painter& painter = []() -> const render::Painter& {
    const auto* const loaded = Load<render::ModulePainter>(render::kPainterFile, render::kPainterFunction)();
    // This reads the list of fonts, because threads that need it at the same time would each read it.
    loaded->Measure();
    return *loaded;
  }();
  return painter;
}

}  // namespace plotsmith::cli
