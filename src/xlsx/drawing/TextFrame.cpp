#include "xlsx/drawing/TextFrame.h"

#include <algorithm>
#include <optional>
#include <string>

#include "host/excel/Characters.h"
#include "runtime/Strings.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Journal.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/DrawnShape.h"
#include "xlsx/drawing/ShapeEnumerations.h"
#include "xlsx/drawing/ShapeFont.h"
#include "xlsx/drawing/TextBody.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

class CharactersObject final : public excel::Characters {
 public:
  CharactersObject(std::shared_ptr<DrawnShape> shape, std::size_t start, std::optional<std::size_t> length)
      : shape_(std::move(shape)), start_(start), length_(length) {}

  void SetText(std::string_view text) override {
    shape_->Log().Put([this] { return Path(); }, "Text", text);
    Replace(text);
  }
  void Insert(std::string_view text) override {
    shape_->Log().Call([this] { return Path(); }, "Insert", {text});
    Replace(text);
  }
  std::string Text() override {
    const std::u16string_view units = shape_->Text();
    if (start_ > units.size()) return {};
    return runtime::ToUtf8(units.substr(start_ - 1, length_.value_or(std::u16string::npos)));
  }
  Ref<excel::Font> Font() override {
    return MakeShapeFont(shape_, start_ - 1, length_.value_or(std::u16string::npos), Path() + ".Font");
  }

 private:
  std::string Path() const {
    std::string path = shape_->JournalPath() + ".TextFrame.Characters";
    if (length_) return path + "(" + std::to_string(start_) + ", " + std::to_string(*length_) + ")";
    return start_ > 1 ? path + "(" + std::to_string(start_) + ")" : path;
  }

  void Replace(std::string_view text) {
    std::u16string units = shape_->Text();
    const std::size_t at = std::min(start_ - 1, units.size());
    units.replace(at, length_.value_or(std::u16string::npos), runtime::ToUtf16(text));
    shape_->SetText(units);
  }

  std::shared_ptr<DrawnShape> shape_;
  std::size_t start_;
  std::optional<std::size_t> length_;
};

/// The members that TextFrame and TextFrame2 have in common.
class FrameMembers {
 public:
  FrameMembers(std::shared_ptr<DrawnShape> shape, const char* name) : shape_(std::move(shape)), name_(name) {}

  void Put(const char* property, const runtime::Variant& value) const {
    shape_->Log().Put([this] { return shape_->JournalPath() + "." + name_; }, property, value);
  }
  /// Sets a property of the body. A shape that adapts its size to the text is resized.
  template <class Set>
  void Change(const Set& set) const {
    TextBody text(shape_->Object());
    set(text);
    shape_->FitToText();
    shape_->MarkChanged();
  }
  void SetMarginTop(double points) const {
    Put("MarginTop", points);
    if (!(points >= 0)) throw OutOfRange();
    Change([&](TextBody& text) {
      xml::SetAttribute(text.BodyProperties(), "tIns", std::to_string(Emu(points)));
    });
  }
  const std::shared_ptr<DrawnShape>& Shape() const { return shape_; }

 private:
  std::shared_ptr<DrawnShape> shape_;
  const char* name_;
};

class TextFrameObject final : public excel::TextFrame {
 public:
  explicit TextFrameObject(std::shared_ptr<DrawnShape> shape) : frame_(std::move(shape), "TextFrame") {}

  Ref<excel::Characters> Characters(std::int32_t start, std::int32_t length) override {
    if (start < 1) throw RuntimeError(runtime::error::kApplication);
    return std::make_shared<CharactersObject>(
        frame_.Shape(), static_cast<std::size_t>(start),
        length < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(length)));
  }
  void SetVerticalAlignment(std::int32_t alignment) override {
    frame_.Put("VerticalAlignment", alignment);
    const auto token = kVerticalAlignments.Token(alignment);
    if (!token) throw OutOfRange();
    frame_.Change([&](TextBody& text) { xml::SetAttribute(text.BodyProperties(), "anchor", *token); });
  }
  void SetHorizontalAlignment(std::int32_t alignment) override {
    frame_.Put("HorizontalAlignment", alignment);
    const auto token = kHorizontalAlignments.Token(alignment);
    if (!token) throw OutOfRange();
    frame_.Change([&](TextBody& text) {
      text.BodyProperties();
      for (const pugi::xml_node& paragraph : text.Paragraphs()) {
        xml::SetAttribute(schema::Ensure(paragraph, "pPr"), "algn", *token);
      }
    });
  }
  void SetMarginTop(double points) override { frame_.SetMarginTop(points); }

 private:
  FrameMembers frame_;
};

class TextFrame2Object final : public excel::TextFrame2 {
 public:
  explicit TextFrame2Object(std::shared_ptr<DrawnShape> shape) : frame_(std::move(shape), "TextFrame2") {}

  void SetWordWrap(bool value) override {
    frame_.Put("WordWrap", value);
    frame_.Change(
        [&](TextBody& text) { xml::SetAttribute(text.BodyProperties(), "wrap", value ? "square" : "none"); });
  }
  void SetAutoSize(std::int32_t value) override {
    frame_.Put("AutoSize", value);
    const auto token = kAutoSizes.Token(value);
    if (!token) throw OutOfRange();
    frame_.Change([&](TextBody& text) {
      const pugi::xml_node body = text.BodyProperties();
      for (const EnumerationEntry& entry : kAutoSizes.entries) schema::Remove(body, entry.token);
      schema::Ensure(body, *token);
    });
  }
  void SetMarginTop(double points) override { frame_.SetMarginTop(points); }

 private:
  FrameMembers frame_;
};

}  // namespace

Ref<excel::TextFrame> MakeTextFrame(std::shared_ptr<DrawnShape> shape) {
  return std::make_shared<TextFrameObject>(std::move(shape));
}

Ref<excel::TextFrame2> MakeTextFrame2(std::shared_ptr<DrawnShape> shape) {
  return std::make_shared<TextFrame2Object>(std::move(shape));
}

}  // namespace plotsmith::xlsx
