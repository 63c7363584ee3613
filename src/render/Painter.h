#pragma once

#include <memory>
#include <string>

#include "render/Drawing.h"
#include "render/Raster.h"
#include "render/TextMeasure.h"

namespace plotsmith::render {

/// A PDF document that is written page by page.
class PdfDocument {
 public:
  virtual ~PdfDocument() = default;

  /// Adds a page of the drawing's size. The title of the first page becomes the title of the document.
  virtual void Add(const Drawing& page) = 0;
  /// Ends the document and returns its bytes. Nothing can be added afterwards.
  virtual std::string Finish() = 0;
};

/// Measures texts and paints pictures with a graphics library. Loading the library takes longer than starting
/// the command. Therefore it is loaded only when a picture is painted, through this interface. SVG is written
/// without it. Several threads may paint at the same time.
class Painter {
 public:
  virtual ~Painter() = default;

  /// Returns the object that measures the texts of this painter. All threads may use it.
  virtual const TextMeasure& Measure() const = 0;
  /// Paints a drawing on a white background. `scale` is the number of pixels in a point. Throws
  /// std::length_error if the picture would have no pixel or more than a hundred million.
  virtual Raster Rasterize(const Drawing& drawing, double scale) const = 0;
  /// Returns the bytes of a PNG file. Scale and errors are those of Rasterize.
  virtual std::string Png(const Drawing& drawing, double scale) const = 0;
  /// Begins a PDF document.
  virtual std::unique_ptr<PdfDocument> NewPdf() const = 0;
};

}  // namespace plotsmith::render
