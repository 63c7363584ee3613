#include "xlsx/chart/part/ChartParts.h"

#include <algorithm>

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

ChartParts::~ChartParts() = default;

std::shared_ptr<ChartPart> ChartParts::At(const std::string& part) {
  auto& chart = charts_[part];
  if (!chart) chart = std::make_shared<ChartPart>(*this, part);
  return chart;
}

void ChartParts::RemoveRelationship(const std::string& part, const std::string& id) {
  for (const std::string& gone : book_.Package().RemoveRelationship(part, id)) {
    const auto chart = charts_.find(gone);
    if (chart == charts_.end()) continue;
    chart->second->Leave();
    deleted_.push_back(std::move(chart->second));
    charts_.erase(chart);
  }
}

void ChartParts::RemoveRelationships(const std::string& part, const std::set<std::string>& ids) {
  book_.Guarded([&] {
    for (const std::string& id : ids) RemoveRelationship(part, id);
  });
}

bool ChartParts::Changed() const {
  return std::any_of(charts_.begin(), charts_.end(),
                     [](const auto& chart) { return chart.second->Changed(); });
}

void ChartParts::Write() {
  UseChartsOfMovedRows();
  for (const auto& [part, chart] : charts_) chart->Write();
}

void ChartParts::UseChartsOfMovedRows() {
  if (book_.Shifts().None()) return;
  for (const std::string& part : book_.Package().Parts()) {
    if (book_.Package().ContentType(part) != content_type::kChart) continue;
    if (charts_.contains(part)) continue;
    try {
      if (book_.Shifts().MayConcern(xml::ToUtf8(book_.Package().Read(part)))) At(part);
    } catch (const PackageError&) {
      // An unreadable chart stays as it is; its references aren't updated.
    }
  }
}

}  // namespace plotsmith::xlsx
