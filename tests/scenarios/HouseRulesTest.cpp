#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/Files.h"
#include "tests/support/Paths.h"
#include "tests/support/Patterns.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = fs::path(test::kSourceFolder) / "src";
const fs::path kDocs = fs::path(test::kSourceFolder) / "docs";

/// Returns the texts between separators, without surrounding blanks.
std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> pieces;
  std::istringstream stream(text);
  for (std::string piece; std::getline(stream, piece, separator);) {
    const auto first = piece.find_first_not_of(' ');
    pieces.push_back(first == std::string::npos ? "" : piece.substr(first));
  }
  return pieces;
}

/// A row of docs/rooms.tsv.
struct Room {
  std::string name;
  std::vector<std::string> mayInclude;  ///< as listed in the row
  std::string content;
};

class HouseRulesTest : public ::testing::Test {
 protected:
  static std::vector<Room> ReadRooms() {
    std::vector<Room> rooms;
    for (const std::string& line : Split(test::BytesOf(kDocs / "rooms.tsv"), '\n')) {
      if (line.empty() || line[0] == '#') continue;
      const auto cells = Split(line, '\t');
      if (cells.size() != 3) throw std::runtime_error("a row without three columns: " + line);
      rooms.push_back({cells[0], Split(cells[1], ','), cells[2]});
    }
    return rooms;
  }

  /// Returns true if a path without its extension belongs to a row or is below it.
  static bool IsWithin(const std::string& path, const std::string& room) {
    return path == room || path.starts_with(room + "/");
  }

  /// Returns the row of a path below src; empty if there is none.
  std::string RoomOf(const std::string& path) const {
    const std::string stem = fs::path(path).replace_extension().generic_string();
    std::string longest;
    for (const Room& room : rooms_) {
      if (IsWithin(stem, room.name) && room.name.size() > longest.size()) longest = room.name;
    }
    return longest;
  }

  /// Returns the rows that a row may include, with its entries expanded.
  std::set<std::string> Allowed(const Room& room) const {
    std::set<std::string> allowed;
    for (const std::string& entry : room.mayInclude) {
      const bool below = entry.ends_with("/*");
      const std::string name = below ? entry.substr(0, entry.size() - 2) : entry;
      const auto before = allowed.size();
      for (const Room& other : rooms_) {
        if (other.name != room.name && (below ? IsWithin(other.name, name) : other.name == name)) {
          allowed.insert(other.name);
        }
      }
      EXPECT_GT(allowed.size(), before) << room.name << " may include " << entry << ", which adds no row";
    }
    return allowed;
  }

  /// Calls `visit` with the path below src and the text of each header and source file.
  template <class Visit>
  static void ForEachSource(const Visit& visit) {
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
      const auto extension = entry.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      visit(fs::relative(entry.path(), kSource).generic_string(), test::BytesOf(entry.path()));
    }
  }

  static std::vector<std::string> IncludesIn(const std::string& text) {
    std::vector<std::string> includes;
    for (const test::Match& include : test::MatchesOf(text, "#include \"([^\"]+/[^\"]+)\""))
      includes.push_back(include[1]);
    return includes;
  }

  /// Returns a cycle of a graph, such as "a -> b -> a"; empty if there is none.
  static std::string FindCycle(const std::map<std::string, std::set<std::string>>& graph) {
    std::set<std::string> done;
    std::vector<std::string> way;
    const std::function<std::string(const std::string&)> visit = [&](const std::string& node) {
      if (const auto seen = std::find(way.begin(), way.end(), node); seen != way.end()) {
        std::string cycle;
        for (auto step = seen; step != way.end(); ++step) cycle += *step + " -> ";
        return cycle + node;
      }
      if (!done.insert(node).second || !graph.contains(node)) return std::string();
      way.push_back(node);
      for (const std::string& next : graph.at(node)) {
        if (const std::string cycle = visit(next); !cycle.empty()) return cycle;
      }
      way.pop_back();
      return std::string();
    };
    for (const auto& [node, next] : graph) {
      if (const std::string cycle = visit(node); !cycle.empty()) return cycle;
    }
    return {};
  }

  const std::vector<Room> rooms_ = ReadRooms();
};

TEST_F(HouseRulesTest, RoomsIncludeOnlyWhatTheTableAllows) {
  std::map<std::string, std::set<std::string>> allowed;
  for (const Room& room : rooms_) allowed[room.name] = Allowed(room);
  std::set<std::string> used;
  ForEachSource([&](const std::string& file, const std::string& text) {
    const std::string own = RoomOf(file);
    ASSERT_NE(own, "") << file << " is in a folder that docs/rooms.tsv doesn't have";
    used.insert(own);
    for (const std::string& include : IncludesIn(text)) {
      const std::string other = RoomOf(include);
      if (other == own || other.empty()) continue;  // headers of libraries are in no room
      EXPECT_TRUE(allowed[own].contains(other)) << file << " includes " << include;
    }
  });
  for (const Room& room : rooms_) EXPECT_TRUE(used.contains(room.name)) << room.name << " has no file";
}

TEST_F(HouseRulesTest, NoRoomIncludesItselfThroughOthers) {
  std::map<std::string, std::set<std::string>> graph;
  for (const Room& room : rooms_) graph[room.name] = Allowed(room);
  EXPECT_EQ(FindCycle(graph), "");
}

TEST_F(HouseRulesTest, NoHeaderIncludesItselfThroughOthers) {
  std::map<std::string, std::set<std::string>> graph;
  ForEachSource([&](const std::string& file, const std::string& text) {
    if (!file.ends_with(".h")) return;
    for (const std::string& include : IncludesIn(text)) graph[file].insert(include);
  });
  EXPECT_GT(graph.size(), 100U);
  EXPECT_EQ(FindCycle(graph), "");
}

TEST_F(HouseRulesTest, ACycleIsFound) {
  EXPECT_EQ(FindCycle({{"a", {"b", "c"}}, {"b", {"d"}}, {"c", {"d"}}}), "");
  EXPECT_EQ(FindCycle({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}}), "b -> c -> b");
}

/// The page has one table of rooms, and one table for each room that has folders.
TEST_F(HouseRulesTest, TheArchitecturePageShowsTheTable) {
  std::map<std::string, std::string> tables;
  for (const Room& room : rooms_) {
    const auto slash = room.name.find('/');
    const bool folder = slash != std::string::npos;
    std::string includes;
    for (const std::string& entry : room.mayInclude) {
      includes += (includes.empty() ? "`" : ", `") + entry + "`";
    }
    tables[folder ? room.name.substr(0, slash) : ""] += "| `" + room.name + "` | " + room.content + " | " +
                                                        (includes.empty() ? "nothing" : includes) + " |\n";
  }
  const std::string page = test::BytesOf(kDocs / "architecture.md");
  const std::string head = "| in `src/` | what is in it | may include |\n|---|---|---|\n";
  for (const auto& [room, rows] : tables) {
    EXPECT_NE(page.find(head + rows + "\n"), std::string::npos)
        << "docs/architecture.md should have this table:\n"
        << head << rows;
  }
}

TEST_F(HouseRulesTest, TheSystemCatchesExceptionsOnlyInErrorBlocks) {
  const std::set<std::string> system = {"common", "metadata", "builder", "readback", "pages", "controller"};
  ForEachSource([&](const std::string& file, const std::string& text) {
    if (!system.contains(file.substr(0, file.find('/'))) || file == "common/ErrorBlocks.h") return;
    EXPECT_EQ(text.find("catch ("), std::string::npos) << file;
  });
}

}  // namespace
}  // namespace plotsmith
