#include "xlsx/chart/part/ChartPart.h"

#include <algorithm>

#include "xlsx/base/Errors.h"
#include "xlsx/base/Limits.h"
#include "xlsx/chart/part/ChartDrawing.h"
#include "xlsx/chart/part/ChartParts.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

std::string EmptyChart(bool strict) {
  const Namespaces& names = strict ? kStrict : kTransitional;
  return std::string(kXmlDeclaration) + "<c:chartSpace xmlns:c=\"" + std::string(names.chart) +
         "\" xmlns:a=\"" + std::string(names.drawing) + "\" xmlns:r=\"" + std::string(names.relationships) +
         R"("><c:roundedCorners val="0"/><c:chart><c:autoTitleDeleted val="1"/><c:plotArea><c:layout/></c:plotArea>)"
         R"(<c:plotVisOnly val="1"/><c:dispBlanksAs val="gap"/></c:chart></c:chartSpace>)";
}

namespace {

/// Returns the number of series. A plot group without series counts as one.
std::size_t CountSeries(pugi::xml_node space) {
  std::size_t count = 0;
  for (const pugi::xml_node& child : xml::Child(space, "chart", "plotArea").children()) {
    if (schema::IsGroup(child)) count += std::max<std::size_t>(xml::Children(child, "ser").size(), 1);
  }
  return count;
}

}  // namespace

ChartPart::ChartPart(ChartParts& parts, std::string part)
    : parts_(parts), book_(parts.Book()), part_(std::move(part)) {}

ChartPart::~ChartPart() = default;

bool ChartPart::IsReadable() {
  Load();
  return static_cast<bool>(document_);
}

void ChartPart::Leave() {
  deleted_ = true;
  if (series_) {
    for (const SeriesRef& entry : *series_) entry->node = {};
    series_->clear();
  }
  if (drawing_) {
    for (const auto& shape : drawing_->Shapes()) shape->Leave();
  }
  document_.reset();
}

pugi::xml_node ChartPart::Space() {
  Load();
  // An unreadable chart fails only when it is used; the workbook can be opened.
  if (!document_) throw Refusal("The chart can't be read: " + *unreadable_ + ".");
  return xml::Root(*document_);
}

void ChartPart::Load() {
  if (deleted_) throw Refusal("The object has been deleted.");
  if (document_ || unreadable_) return;  // A part that can't be read isn't tried again.
  auto document = std::make_unique<pugi::xml_document>();
  try {
    if (part_.empty()) throw PackageError("the chart's part is missing");
    InPart(part_, [&] {
      xml::Parse(*document, book_.Package().Read(part_));
      if (!xml::Is(xml::Root(*document), "chartSpace")) throw PackageError("it isn't a chart");
      if (CountSeries(xml::Root(*document)) > limits::kSeries) {
        throw PackageError("it has more series than Plotsmith supports");
      }
    });
    document_ = std::move(document);
  } catch (const PackageError& e) {
    unreadable_ = e.what();
  }
}

pugi::xml_node ChartPart::Chart() { return schema::Ensure(Space(), "chart"); }

pugi::xml_node ChartPart::PlotArea() { return schema::Ensure(Chart(), "plotArea"); }

const Theme& ChartPart::Theme() {
  if (!themeKnown_) {
    themeKnown_ = true;
    try {
      if (const auto link = book_.Package().FindRelationshipOfType(part_, "themeOverride")) {
        ownTheme_ = book_.Theme().WithOverride(book_.Package().Read(link->target));
      }
    } catch (const PackageError&) {
      // An unreadable override is ignored, and the workbook's theme is used.
    }
  }
  return ownTheme_ ? *ownTheme_ : book_.Theme();
}

std::optional<std::int32_t> ChartPart::Color(pugi::xml_node holder) {
  return Theme().Color(holder, xml::Child(Space(), "clrMapOvr"));
}

ChartDrawing& ChartPart::Drawing() {
  Space();
  if (!drawing_) drawing_ = std::make_unique<ChartDrawing>(*this);
  return *drawing_;
}

bool ChartPart::Changed() const { return changed_ || (drawing_ && drawing_->Changed()); }

std::vector<pugi::xml_node> ChartPart::Groups() {
  std::vector<pugi::xml_node> groups;
  for (const pugi::xml_node& child : xml::Child(Space(), "chart", "plotArea").children()) {
    if (schema::IsGroup(child)) groups.push_back(child);
  }
  return groups;
}

std::vector<SeriesRef>& ChartPart::Series() {
  Space();
  if (!series_) {
    series_.emplace();
    for (const pugi::xml_node& group : Groups()) {
      for (const pugi::xml_node& node : xml::Children(group, "ser")) {
        series_->push_back(std::make_shared<SeriesEntry>(SeriesEntry{node}));
      }
    }
    const auto order = [](const SeriesRef& entry) { return schema::IntegerVal(entry->node, "order", 0); };
    std::stable_sort(series_->begin(), series_->end(),
                     [&](const SeriesRef& a, const SeriesRef& b) { return order(a) < order(b); });
    cameEmpty_ = series_->empty();
  }
  return *series_;
}

bool ChartPart::WasEmptyWhenOpened() {
  Series();
  return cameEmpty_;
}

void ChartPart::FollowMovedRows() {
  Space();
  Follow();
}

void ChartPart::Follow() {
  struct Walker : pugi::xml_tree_walker {
    const RowShifts* shifts = nullptr;
    std::size_t followed = 0;
    bool changed = false;
    bool for_each(pugi::xml_node& node) override {
      if (!xml::Is(node, "f")) return true;
      if (const auto moved = shifts->Follow(xml::Text(node), "", followed)) {
        xml::SetText(node, *moved);
        changed = true;
      }
      return true;
    }
  } walker;
  RowShifts& shifts = book_.Shifts();
  const std::size_t mark = shifts.Mark();
  if (mark == followed_) return;
  walker.shifts = &shifts;
  walker.followed = followed_;
  document_->traverse(walker);
  changed_ |= walker.changed;
  setAside_.traverse(walker);
  followed_ = mark;
}

void ChartPart::Write() {
  if (!book_.Shifts().None()) Load();  // The chart may refer to rows that have moved.
  if (!document_) return;
  Follow();
  if (drawing_) drawing_->Write();
  if (!changed_) return;
  parts_.Complete(*this);
  book_.Package().Replace(part_, xml::Serialize(*document_));
  changed_ = false;
}

pugi::xml_node ChartPart::FindSetAside(const std::string& state) const {
  return setAside_.child(state.c_str());
}

pugi::xml_node ChartPart::SetAside(const std::string& state) {
  DiscardSetAside(state);
  return setAside_.append_child(state.c_str());
}

void ChartPart::DiscardSetAside(const std::string& state) { setAside_.remove_child(state.c_str()); }

}  // namespace plotsmith::xlsx
