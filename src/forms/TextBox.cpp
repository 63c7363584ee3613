#include "forms/TextBox.h"

#include <algorithm>

#include "runtime/Strings.h"

namespace plotsmith::forms {

void TextBox::SetText(std::string_view value) {
  givenLength_ = runtime::Len(WithLineEnds(value, "\r\n"));
  Store(value);
}

void TextBox::Store(std::string_view text) {
  text_ = text;
  Changed();
}

std::size_t TextBox::Limit() const { return maxLength_ == 0 ? 0 : std::max(maxLength_, givenLength_); }

std::string TextBox::ObstacleTo(std::string_view text) const {
  const std::string typed = WithLineEnds(text, "\r\n");
  if (HasControlCharacters(text)) return "accepts no control characters";
  if (!multiLine_ && typed.find('\n') != std::string::npos) return "accepts only one line";
  if (Limit() > 0 && runtime::Len(typed) > Limit()) {
    return "takes at most " + std::to_string(Limit()) + " characters";
  }
  return {};
}

bool TextBox::UserType(std::string_view text) {
  const std::string typed = WithLineEnds(text, "\r\n");
  if (!ObstacleTo(text).empty() || !Reach()) return false;
  Store(typed);
  return true;
}

bool HasControlCharacters(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r';
  });
}

std::string WithLineEnds(std::string_view text, std::string_view lineEnd) {
  const std::string folded = runtime::Replace(runtime::Replace(text, "\r\n", "\n"), "\r", "\n");
  return runtime::Replace(folded, "\n", lineEnd);
}

void ReplaceUntypeable(std::u16string& text, std::u16string_view allowed) {
  const auto isFirstHalf = [](char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; };
  const auto isSecondHalf = [](char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; };
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isFirstHalf(text[i]) && i + 1 < text.size() && isSecondHalf(text[i + 1])) {
      ++i;
      continue;
    }
    const bool isControl = text[i] < u' ' && allowed.find(text[i]) == allowed.npos;
    if (isControl || isFirstHalf(text[i]) || isSecondHalf(text[i])) text[i] = u' ';
  }
}

}  // namespace plotsmith::forms
