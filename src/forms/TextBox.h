#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "forms/Control.h"

namespace plotsmith::forms {

/// Where a text is in its box.
enum class Alignment { kLeft, kCenter };

/// A text to edit. Lines end in CR LF.
class TextBox : public FontControl {
 public:
  TextBox(Form& form, const char* name, Control* container) : FontControl(form, name, container) {
    SetBackColor(kWhite);
  }
  const char* TypeName() const override { return "TextBox"; }

  const std::string& Text() const { return text_; }
  /// Raises nothing.
  void SetText(std::string_view value);

  /// How many UTF-16 units a hand can type; 0 is no limit.
  ///@{
  std::size_t MaxLength() const { return maxLength_; }
  void SetMaxLength(std::size_t value) { maxLength_ = value; }
  ///@}

  /// Whether the text can have several lines, so that Enter ends a line.
  ///@{
  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool value) { multiLine_ = value; }
  ///@}

  forms::Alignment Alignment() const { return alignment_; }
  void SetAlignment(forms::Alignment value) { alignment_ = value; }

  /// Why a hand can't type the text, as the end of a sentence; empty if it can.
  std::string ObstacleTo(std::string_view text) const;
  /// Replaces the text. Line ends of any kind become CR LF.
  bool UserType(std::string_view text);

 protected:
  const char* KindText() const override { return "text"; }

 private:
  std::string text_;
  std::size_t maxLength_ = 0;
  bool multiLine_ = false;
  forms::Alignment alignment_ = Alignment::kLeft;
};

/// Whether the text has characters that a keyboard can't type into a box, and XML can't hold. Tabs and line
/// ends are none.
bool HasControlCharacters(std::string_view text);

/// Replaces by blanks what a hand can't have typed: control characters other than those allowed, and half of
/// a character of two UTF-16 units, which is left where there was no room for the whole.
void ReplaceUntypeable(std::u16string& text, std::u16string_view allowed);

/// The text with every line end (CR LF, CR or LF) replaced by `lineEnd`.
std::string WithLineEnds(std::string_view text, std::string_view lineEnd);

}  // namespace plotsmith::forms
