// Measures whole runs of the command. Each measurement compares two programs in the same session, so the
// results are ratios, which are comparable between machines. Usage:
//   measure pairs PLOTSMITH BOOK OUT COUNT          a refresh against `unzip -p` of the first sheet
//   measure growth PLOTSMITH OUT WHAT N=BOOK...     refreshes of workbooks of increasing size
//   measure beside WHAT COUNT COMMAND... -- COMMAND...   the processor times of two commands
//   measure faster WHAT COUNT COMMAND... -- COMMAND...   the speed-up of the first command, in elapsed time

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "xlsx/package/Archive.h"

namespace {

constexpr const char* kSheet = "xl/worksheets/sheet1.xml";
constexpr double kMebibyte = 1024 * 1024;

struct Usage {
  double wall = 0, processor = 0;  // In seconds.
  double peak = 0;                 // In bytes.
};

/// Runs a command to its end and discards its output.
Usage Run(std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  const int failure = posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  rusage usage{};
  if (failure != 0 || wait4(child, &status, 0, &usage) < 0 || !WIFEXITED(status) ||
      WEXITSTATUS(status) != 0) {
    throw std::runtime_error("\"" + command[0] + "\" failed");
  }
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return {wall.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime),
          static_cast<double>(usage.ru_maxrss) * 1024};
}

double InflatedSheet(const std::string& book) {
  const plotsmith::xlsx::Archive archive(book);
  for (const auto& entry : archive.Entries()) {
    if (entry.name == kSheet) return static_cast<double>(entry.size);
  }
  throw std::runtime_error("\"" + book + "\" has no " + kSheet);
}

/// The commands run alternately, so that other load on the machine affects both.
void MeasurePairs(const std::string& plotsmith, const std::string& book, const std::string& out, int count) {
  const std::vector<std::string> refresh = {plotsmith, "refresh", book, "-o", out};
  const std::vector<std::string> unzip = {"unzip", "-p", book, kSheet};
  Run(unzip);  // The file is in the page cache from here on.
  Run(refresh);
  std::vector<double> ratios;
  double peak = 0;
  for (int i = 0; i < count; ++i) {
    const Usage baseline = Run(unzip), measured = Run(refresh);
    ratios.push_back(measured.wall / baseline.wall);
    peak = std::max(peak, measured.peak);
  }
  std::sort(ratios.begin(), ratios.end());
  const double sheet = InflatedSheet(book);
  std::printf("  time of refresh / time of unzip -p    %.2f   (median of %d; %.2f to %.2f)\n",
              ratios[ratios.size() / 2], count, ratios.front(), ratios.back());
  std::printf("  peak memory / inflated sheet          %.2f   (%.0f MiB / %.0f MiB)\n", peak / sheet,
              peak / kMebibyte, sheet / kMebibyte);
}

/// The two commands of a line, separated by "--".
struct CommandPair {
  explicit CommandPair(const std::vector<std::string>& words) {
    const auto sign = std::find(words.begin(), words.end(), "--");
    if (sign == words.end()) throw std::runtime_error("there is no second command behind \"--\"");
    measured.assign(words.begin(), sign);
    baseline.assign(sign + 1, words.end());
  }
  std::vector<std::string> measured, baseline;
};

void PrintMedian(const std::string& what, std::vector<double> ratios) {
  std::sort(ratios.begin(), ratios.end());
  std::printf("  %s    %.2f   (median of %zu; %.2f to %.2f)\n", what.c_str(), ratios[ratios.size() / 2],
              ratios.size(), ratios.front(), ratios.back());
}

/// Measures the processor times of two commands.
void MeasureBeside(const std::string& what, int count, const CommandPair& pair) {
  Run(pair.baseline);
  std::vector<double> ratios;
  for (int i = 0; i < count; ++i) {
    const double beside = Run(pair.baseline).processor;
    ratios.push_back(Run(pair.measured).processor / beside);
  }
  PrintMedian(what, std::move(ratios));
}

/// Measures elapsed time, because a command may use several processors.
void MeasureFaster(const std::string& what, int count, const CommandPair& pair) {
  Run(pair.baseline);
  std::vector<double> ratios;
  for (int i = 0; i < count; ++i) {
    const double beside = Run(pair.baseline).wall;
    ratios.push_back(beside / Run(pair.measured).wall);
  }
  PrintMedian(what, std::move(ratios));
}

/// Uses the minimum processor time of several runs, because other load only increases it.
void MeasureGrowth(const std::string& plotsmith, const std::string& out, const std::string& what,
                   const std::vector<std::string>& books) {
  constexpr int kRounds = 7;
  struct Measured {
    double items;
    std::string book;
    double time = 0;
    double peak = 0;
  };
  std::vector<Measured> all;
  for (const std::string& book : books) {
    const auto equals = book.find('=');
    all.push_back({std::strtod(book.c_str(), nullptr), book.substr(equals + 1)});
  }
  for (int round = 0; round < kRounds; ++round) {
    for (Measured& one : all) {
      const Usage usage = Run({plotsmith, "refresh", one.book, "-o", out});
      if (round == 0 || usage.processor < one.time) one.time = usage.processor;
      one.peak = std::max(one.peak, usage.peak);
    }
  }
  std::printf("  %s\n  %10s %8s %10s %10s\n", what.c_str(), "count", "time", "time each", "peak each");
  const Measured& first = all.front();
  for (const Measured& one : all) {
    const double more = one.items / first.items;
    std::printf("  %10.0f %8.2f %10.2f %10.2f\n", one.items, one.time / first.time,
                one.time / first.time / more, one.peak / first.peak / more);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  try {
    if (arguments.size() == 5 && arguments[0] == "pairs") {
      MeasurePairs(arguments[1], arguments[2], arguments[3], std::max(1, std::atoi(argv[5])));
    } else if (arguments.size() > 4 && arguments[0] == "growth") {
      MeasureGrowth(arguments[1], arguments[2], arguments[3], {arguments.begin() + 4, arguments.end()});
    } else if (arguments.size() > 5 && arguments[0] == "beside") {
      MeasureBeside(arguments[1], std::max(1, std::atoi(argv[3])),
                    CommandPair({arguments.begin() + 3, arguments.end()}));
    } else if (arguments.size() > 5 && arguments[0] == "faster") {
      MeasureFaster(arguments[1], std::max(1, std::atoi(argv[3])),
                    CommandPair({arguments.begin() + 3, arguments.end()}));
    } else {
      std::fputs(
          "usage: measure pairs PLOTSMITH BOOK OUT COUNT | growth PLOTSMITH OUT WHAT N=BOOK... | beside WHAT "
          "COUNT COMMAND... -- COMMAND... | faster WHAT COUNT COMMAND... -- COMMAND...\n",
          stderr);
      return 2;
    }
  } catch (const std::exception& e) {
    std::fprintf(stderr, "measure: %s\n", e.what());
    return 1;
  }
  return 0;
}
