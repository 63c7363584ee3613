#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "forms/Control.h"

namespace plotsmith::forms {

/// The alignment of a text in its box.
enum class Alignment { kLeft, kCenter };

/// A text box. Lines end with CR LF.
class TextBox : public FontControl {
 public:
  /// Makes an empty text box. See Control for the parameters.
  TextBox(Form& form, const char* name, Control* container) : FontControl(form, name, container) {
    SetBackColor(kWhite);
  }
  const char* TypeName() const override { return "TextBox"; }

  /// The text.
  const std::string& Text() const { return text_; }
  /// Sets the text, which may be longer than MaxLength. Raises no event.
  void SetText(std::string_view value);

  /// The maximum number of UTF-16 units that the user can type; 0 means no limit.
  ///@{
  std::size_t MaxLength() const { return maxLength_; }
  void SetMaxLength(std::size_t value) { maxLength_ = value; }
  ///@}
  /// The maximum number of UTF-16 units that the box can hold now; 0 means no limit. It is MaxLength, or the
  /// length of a longer text that SetText has set, so that the user can edit such a text.
  std::size_t Limit() const;

  /// Whether the text can have several lines. Enter then ends a line.
  ///@{
  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool value) { multiLine_ = value; }
  ///@}

  /// The alignment of the text.
  ///@{
  forms::Alignment Alignment() const { return alignment_; }
  void SetAlignment(forms::Alignment value) { alignment_ = value; }
  ///@}

  /// Returns the reason why the user can't type the text, as the end of a sentence, or an empty text if the
  /// user can.
  std::string ObstacleTo(std::string_view text) const;
  /// Handles typing by the user, which replaces the text. All line ends become CR LF. Returns false if the
  /// user can't type the text.
  bool UserType(std::string_view text);

 protected:
  const char* KindText() const override { return "text"; }

 private:
  void Store(std::string_view text);

  std::string text_;
  std::size_t maxLength_ = 0;
  std::size_t givenLength_ = 0;  ///< The length of the text that SetText has set.
  bool multiLine_ = false;
  forms::Alignment alignment_ = Alignment::kLeft;
};

/// Returns true if the text has control characters, which can't be typed and can't be stored in XML. Tabs and
/// line ends don't count as control characters here.
bool HasControlCharacters(std::string_view text);

/// Replaces characters that a user can't have typed with blanks: control characters except those in
/// `allowed`, and half of a surrogate pair, which is left if there was no space for both halves.
void ReplaceUntypeable(std::u16string& text, std::u16string_view allowed);

/// Returns the text with every line end (CR LF, CR or LF) replaced by `lineEnd`.
std::string WithLineEnds(std::string_view text, std::string_view lineEnd);

}  // namespace plotsmith::forms
