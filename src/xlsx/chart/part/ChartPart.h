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

/// A series element, which its chart may lose while somebody still holds the entry: then it is a null node.
struct SeriesEntry {
  pugi::xml_node node;
};
using SeriesRef = std::shared_ptr<SeriesEntry>;

/// A chart part: the document that the objects of a chart are views over. It is parsed when something of the
/// chart is asked for, and written if something was changed.
class ChartPart {
 public:
  /// `part` may be empty, or a part that can't be read: then every use is error 1004.
  ChartPart(ChartParts& parts, std::string part);
  ~ChartPart();

  BookContext& Book() const { return book_; }
  /// The chart parts of the workbook, this one among them.
  ChartParts& Parts() const { return parts_; }
  const std::string& Part() const { return part_; }
  /// The chart was deleted: every use of it, its series and its shapes is error 1004 from now on.
  void Leave();
  /// The chartSpace element; error 1004 if the part can't be read, or the chart was deleted.
  pugi::xml_node Space();
  /// Error 1004 if the chart was deleted.
  bool IsReadable();
  /// The chart element, and the plot area, made if they are missing.
  pugi::xml_node Chart();
  pugi::xml_node PlotArea();
  /// All plot groups, in the order of the part.
  std::vector<pugi::xml_node> Groups();
  /// All series in plot order. Whoever adds or removes one does so here too.
  std::vector<SeriesRef>& Series();
  /// Whether the part had no series when it was opened.
  bool CameEmpty();

  /// The theme that the chart's colours and fonts are of: its own override, else the workbook's.
  const xlsx::Theme& Theme();
  /// What an element that holds a colour means on this chart; nothing if that can't be known.
  std::optional<std::int32_t> Color(pugi::xml_node holder);

  /// What is drawn on the chart.
  ChartDrawing& Drawing();

  void MarkChanged() { changed_ = true; }
  bool Changed() const;
  /// References in the part follow the rows that moved since they were last looked at.
  void CatchUp();
  /// Brings the part in the package up to date. A part that can't be read stays as it is.
  void Write();

  /// What the chart had to lay aside when its type changed, by the name of the type's state: it comes back
  /// with the type. In memory only.
  pugi::xml_node LaidAside(const std::string& state) const;
  /// An empty place for it, whatever was there before.
  pugi::xml_node LayAside(const std::string& state);
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
