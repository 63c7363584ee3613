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

/// A series element. It becomes a null node when the series is deleted while an object still refers to it.
struct SeriesEntry {
  pugi::xml_node node;
};
using SeriesRef = std::shared_ptr<SeriesEntry>;

/// A chart part: the document that the objects of a chart are views over. It is parsed at the first use, and
/// written if it was changed.
class ChartPart {
 public:
  /// If `part` is empty, or names a part that can't be read, every use is error 1004.
  ChartPart(ChartParts& parts, std::string part);
  ~ChartPart();

  /// The workbook of the chart.
  BookContext& Book() const { return book_; }
  /// The chart parts of the workbook, this one among them.
  ChartParts& Parts() const { return parts_; }
  /// The name of the part; empty if there is none.
  const std::string& Part() const { return part_; }
  /// Call this when the chart is deleted. Every use of it, its series and its shapes is error 1004 from then
  /// on.
  void Leave();
  /// The chartSpace element; error 1004 if the part can't be read, or the chart was deleted.
  pugi::xml_node Space();
  /// Whether the part can be parsed; error 1004 if the chart was deleted.
  bool IsReadable();
  /// The chart element and its plot area, which are made if they are missing.
  pugi::xml_node Chart();
  /// The plot area, which is made if it is missing.
  pugi::xml_node PlotArea();
  /// All plot groups, in the order of the part.
  std::vector<pugi::xml_node> Groups();
  /// All series in plot order. Code that adds or removes a series element must do so here as well.
  std::vector<SeriesRef>& Series();
  /// Whether the part had no series when it was opened.
  bool CameEmpty();

  /// The theme that the chart's colours and fonts refer to: its own override, else the workbook's.
  const xlsx::Theme& Theme();
  /// The colour that an element such as `solidFill` gives on this chart, as red + 256 * green + 65536 * blue;
  /// nothing if it depends on something unknown.
  std::optional<std::int32_t> Color(pugi::xml_node holder);

  /// The shapes that are drawn on the chart.
  ChartDrawing& Drawing();

  /// Notes that the part must be written.
  void MarkChanged() { changed_ = true; }
  /// Returns true if the part or its shapes were changed.
  bool Changed() const;
  /// References in the part follow the rows that moved since they were last looked at.
  void CatchUp();
  /// Brings the part in the package up to date. A part that can't be read stays as it is.
  void Write();

  /// The elements that were set aside when the chart's type changed, by the name of the type's state. They
  /// come back with the type. They exist in memory only.
  pugi::xml_node LaidAside(const std::string& state) const;
  /// An empty element for them, which replaces an earlier one.
  pugi::xml_node LayAside(const std::string& state);
  /// Drops what was set aside.
  void Forget(const std::string& state);

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
  pugi::xml_document laidAside_;
  std::optional<std::vector<SeriesRef>> series_;
  bool cameEmpty_ = false;  ///< known with series_
  bool changed_ = false;
  bool deleted_ = false;
  std::size_t followed_ = 0;
};

/// A chart part without a series.
std::string EmptyChart(bool strict);

}  // namespace plotsmith::xlsx
