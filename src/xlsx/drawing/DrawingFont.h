#pragma once

#include <cstdint>
#include <functional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "host/excel/Font.h"

namespace plotsmith::xlsx {

class Journal;

/// The format of a piece of text.
struct TextLook {
  std::string typeface;  ///< The name of the font.
  double points = 0;     ///< The size in points.
  /// Whether the text is bold, and whether it is italic.
  bool bold = false, italic = false;
  std::int32_t color = 0;  ///< Red + 256 * green + 65536 * blue.
  bool underline = false;  ///< Whether the text has a line of any kind below it.

  bool operator==(const TextLook&) const = default;
};

/// A font of DrawingML: the properties of the runs of a text. Derived classes know where charts and shapes
/// store them.
class DrawingFont : public excel::Font {
 public:
  runtime::Variant Name() override;
  runtime::Variant Size() override;
  runtime::Variant FontStyle() override;
  runtime::Variant Color() override;
  runtime::Variant Background() override;
  void SetName(const runtime::Variant& name) override;
  void SetSize(const runtime::Variant& size) override;
  void SetFontStyle(const runtime::Variant& style) override;
  void SetColor(const runtime::Variant& color) override;
  void SetBackground(std::int32_t background) override;
  void SetBold(bool value) override;

 protected:
  /// Makes a font. `journalPath` is its path in the journal.
  explicit DrawingFont(std::string journalPath) : path_(std::move(journalPath)) {}

  /// The journal of the host's calls.
  virtual const Journal& Log() const = 0;
  /// The formats in the text, at least one.
  virtual std::vector<TextLook> Looks() const = 0;
  /// Calls `set` with the properties of each run, which are made if they are missing.
  virtual void ForEachRun(const std::function<void(pugi::xml_node properties)>& set) = 0;

 private:
  template <class Get>
  runtime::Variant Common(const Get& get) const;
  void Apply(const char* property, const runtime::Variant& value,
             const std::function<void(pugi::xml_node properties)>& set);

  std::string path_;
};

}  // namespace plotsmith::xlsx
