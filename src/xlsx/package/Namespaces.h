#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// The namespace URIs of a workbook's vocabularies. A file is either Transitional or Strict as a whole.
struct Namespaces {
  std::string_view main;                ///< SpreadsheetML.
  std::string_view relationships;       ///< r:id. It is also the beginning of relationship types.
  std::string_view drawing;             ///< DrawingML.
  std::string_view spreadsheetDrawing;  ///< Anchors and shapes on a sheet.
  std::string_view chart;               ///< Charts.
  std::string_view chartDrawing;        ///< Anchors and shapes on a chart.

  /// Returns the URI of a relationship type, such as "chart".
  std::string RelationshipType(std::string_view name) const {
    return std::string(relationships) + "/" + std::string(name);
  }
};

/// The namespaces of a Transitional file.
inline constexpr Namespaces kTransitional = {
    "http://schemas.openxmlformats.org/spreadsheetml/2006/main",
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships",
    "http://schemas.openxmlformats.org/drawingml/2006/main",
    "http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing",
    "http://schemas.openxmlformats.org/drawingml/2006/chart",
    "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing",
};

/// The namespaces of a Strict file.
inline constexpr Namespaces kStrict = {
    "http://purl.oclc.org/ooxml/spreadsheetml/main",
    "http://purl.oclc.org/ooxml/officeDocument/relationships",
    "http://purl.oclc.org/ooxml/drawingml/main",
    "http://purl.oclc.org/ooxml/drawingml/spreadsheetDrawing",
    "http://purl.oclc.org/ooxml/drawingml/chart",
    "http://purl.oclc.org/ooxml/drawingml/chartDrawing",
};

namespace content_type {
inline constexpr std::string_view kWorkbook =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml";
inline constexpr std::string_view kWorksheet =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml";
inline constexpr std::string_view kStyles =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml";
inline constexpr std::string_view kDrawing = "application/vnd.openxmlformats-officedocument.drawing+xml";
inline constexpr std::string_view kTheme = "application/vnd.openxmlformats-officedocument.theme+xml";
inline constexpr std::string_view kChart =
    "application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
inline constexpr std::string_view kChartShapes =
    "application/vnd.openxmlformats-officedocument.drawingml.chartshapes+xml";
}  // namespace content_type

/// The declaration of the parts that Plotsmith writes.
inline constexpr std::string_view kXmlDeclaration =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)";

}  // namespace plotsmith::xlsx
