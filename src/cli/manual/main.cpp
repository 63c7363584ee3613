// Writes the manual page and the completions. Usage: plotsmith_manual FOLDER

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "cli/manual/Manual.h"

int main(int argc, char** argv) {
  using namespace plotsmith::cli;
  if (argc != 2) {
    std::cerr << "usage: plotsmith_manual FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  const auto write = [&](const char* name, const std::string& text) {
    std::ofstream file(folder / name, std::ios::binary);
    file << text;
    if (!file.flush()) {
      std::cerr << "plotsmith_manual: can't write " << folder / name << '\n';
      return false;
    }
    return true;
  };
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  const CommandLine line;
  const bool written = write("plotsmith.1", ManualPage(line)) &&
                       write("plotsmith.bash", BashCompletion(line)) &&
                       write("_plotsmith", ZshCompletion(line));
  return written ? 0 : 3;
}
