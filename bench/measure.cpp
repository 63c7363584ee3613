// Measures whole runs of the command, always beside something else in the same go, so that the figures are
// ratios that mean the same on any machine. Usage:
//   measure pairs PLOTSMITH BOOK OUT COUNT          a refresh beside `unzip -p` of the book's first sheet
//   measure growth PLOTSMITH OUT WHAT N=BOOK...     a refresh of ever larger books
//   measure beside WHAT COUNT COMMAND... -- COMMAND...   the processor time of one command beside another one
//   measure faster WHAT COUNT COMMAND... -- COMMAND...   how many times as fast the first is, by the clock

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
  double wall = 0, processor = 0;  // seconds
  double peak = 0;                 // bytes
};

/// Runs a command, its output thrown away, to its end.
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

/// By turns, so that whatever else the machine does falls on both alike.
void MeasurePairs(const std::string& plotsmith, const std::string& book, const std::string& out, int count) {
  const std::vector<std::string> refresh = {plotsmith, "refresh", book, "-o", out};
  const std::vector<std::string> unzip = {"unzip", "-p", book, kSheet};
  Run(unzip);  // the file is in memory from here on
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

/// The two commands of a line, parted by "--".
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

/// The processor time of one command, with the other one for the measure.
void MeasureBeside(const std::string& what, int count, const CommandPair& pair) {
  Run(pair.baseline);
  std::vector<double> ratios;
  for (int i = 0; i < count; ++i) {
    const double beside = Run(pair.baseline).processor;
    ratios.push_back(Run(pair.measured).processor / beside);
  }
  PrintMedian(what, std::move(ratios));
}

/// By the clock, as a command may work on several processors at a time.
void MeasureFaster(const std::string& what, int count, const CommandPair& pair) {
  Run(pair.baseline);
  std::vector<double> ratios;
  for (int i = 0; i < count; ++i) {
    const double beside = Run(pair.baseline).wall;
    ratios.push_back(beside / Run(pair.measured).wall);
  }
  PrintMedian(what, std::move(ratios));
}

/// The least of a few runs, in processor time: what else the machine does only ever adds to it.
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
