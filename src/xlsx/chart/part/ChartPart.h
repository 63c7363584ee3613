#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "xlsx/drawing/Theme.h"

namespace plotsmith::xlsx {

class BookContext;
class ChartDrawing;
class ChartParts;

/// A series element. It becomes a null node when the series is deleted, because objects may still refer to
/// it.
struct SeriesEntry {
  /// The element c:ser, or null.
  pugi::xml_node node;
};
/// A series element that its objects share.
using SeriesRef = std::shared_ptr<SeriesEntry>;

/// A chart part, whose document the objects of a chart are views of. It is parsed at the first use, and
/// written if it was changed.
class ChartPart {
 public:
  /// If `part` is empty or names an unreadable part, every use raises error 1004.
  ChartPart(ChartParts& parts, std::string part);
  ~ChartPart();

  /// The workbook of the chart.
  BookContext& Book() const { return book_; }
  /// The chart parts of the workbook, including this one.
  ChartParts& Parts() const { return parts_; }
  /// The name of the part; empty if there is none.
  const std::string& Part() const { return part_; }
  /// Call this when the chart is deleted. After that, every use of it, its series and its shapes raises error
  /// 1004.
  void Leave();
  /// The chartSpace element. Raises error 1004 if the part can't be read or the chart was deleted.
  pugi::xml_node Space();
  /// Returns true if the part can be parsed. Raises error 1004 if the chart was deleted.
  bool IsReadable();
  /// The chart element, which is made if it is missing.
  pugi::xml_node Chart();
  /// The plot area, which is made if it is missing.
  pugi::xml_node PlotArea();
  /// All plot groups, in the order of the part.
  std::vector<pugi::xml_node> Groups();
  /// All series in plot order. Code that adds or removes a series element must update this list as well.
  std::vector<SeriesRef>& Series();
  /// Returns true if the part had no series when it was opened.
  bool WasEmptyWhenOpened();

  /// The theme of the chart's colours and fonts: its own override, otherwise the workbook's.
  const xlsx::Theme& Theme();
  /// The colour of an element such as `solidFill` on this chart, as red + 256 * green + 65536 * blue; absent
  /// if it depends on something unknown.
  std::optional<std::int32_t> Color(pugi::xml_node holder);

  /// The shapes that are drawn on the chart.
  ChartDrawing& Drawing();

  /// Notes that the part must be written.
  void MarkChanged() { changed_ = true; }
  /// Returns true if the part or its shapes were changed.
  bool Changed() const;
  /// Updates the references in the part for rows that have moved since the last call.
  void FollowMovedRows();
  /// Writes the changes into the package. A part that can't be read stays as it is.
  void Write();

  /// Returns the elements that were set aside when the chart's type changed, by the name of the type's state.
  /// They are restored with the type. They exist in memory only.
  pugi::xml_node FindSetAside(const std::string& state) const;
  /// Makes an empty element for the elements to set aside, which replaces an earlier one.
  pugi::xml_node SetAside(const std::string& state);
  /// Discards the elements that were set aside.
  void DiscardSetAside(const std::string& state);

 private:
  void Load();
  void Follow();

  ChartParts& parts_;
  BookContext& book_;
  std::string part_;
  std::unique_ptr<pugi::xml_document> document_;
  std::optional<std::string> unreadable_;
  std::optional<xlsx::Theme> ownTheme_;
  bool themeKnown_ = false;
  std::unique_ptr<ChartDrawing> drawing_;
  pugi::xml_document setAside_;
  std::optional<std::vector<SeriesRef>> series_;
  bool cameEmpty_ = false;  ///< set together with series_
  bool changed_ = false;
  bool deleted_ = false;
  std::size_t followed_ = 0;
};

/// A chart part without a series.
std::string EmptyChart(bool strict);

}  // namespace plotsmith::xlsx
