#pragma once

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <string>
#include <string_view>

#include "forms/Control.h"

namespace plotsmith::forms {

/// A label: a text that the user can't edit.
class Label : public CaptionControl {
 public:
  using CaptionControl::CaptionControl;
  const char* TypeName() const override { return "Label"; }

 protected:
  bool TakesFocus() const override { return false; }
};

/// A frame around other controls, with a title.
class Frame : public CaptionControl {
 public:
  /// The values of Appearance.
  static constexpr std::int32_t kFlat = 0, k3D = 1;

  using CaptionControl::CaptionControl;
  const char* TypeName() const override { return "Frame"; }

  /// Whether the title is bold.
  ///@{
  bool FontBold() const { return bold_; }
  void SetFontBold(bool value);
  ///@}

  /// The look of the border: kFlat or k3D.
  ///@{
  std::int32_t Appearance() const { return appearance_; }
  void SetAppearance(std::int32_t value);
  ///@}

 protected:
  bool TakesFocus() const override { return false; }

 private:
  bool bold_ = false;
  std::int32_t appearance_ = k3D;
};

/// A sample picture. The name of the control identifies the drawing.
class Image : public Control {
 public:
  using Control::Control;
  const char* TypeName() const override { return "Image"; }

 protected:
  /// The name in words, such as "Sample: column stack" for imgColumnStack.
  std::string CaptionText() const override;
  bool TakesFocus() const override { return false; }
};

/// A progress bar.
class ProgressBar : public Control {
 public:
  /// The limits of Value.
  static constexpr std::int32_t kMin = 0, kMax = 100;

  using Control::Control;
  const char* TypeName() const override { return "ProgressBar"; }

  /// The progress, from kMin to kMax. Values out of range are set to the nearest limit.
  ///@{
  std::int32_t Value() const { return value_; }
  void SetValue(std::int32_t value);
  ///@}

 protected:
  bool TakesFocus() const override { return false; }

 private:
  std::int32_t value_ = kMin;
};

inline std::string Image::CaptionText() const {
  std::string words = "Sample:";
  for (std::size_t i = std::string_view("img").size(); i < Name().size(); ++i) {
    const auto character = static_cast<unsigned char>(Name()[i]);
    const bool isInNumber = i > 0 && std::isdigit(static_cast<unsigned char>(Name()[i - 1])) != 0;
    if (std::isupper(character) != 0 && !isInNumber) words += ' ';
    words += static_cast<char>(std::tolower(character));
  }
  return words;
}

inline void Frame::SetFontBold(bool value) {
  bold_ = value;
  Changed();
}

inline void Frame::SetAppearance(std::int32_t value) {
  appearance_ = value;
  Changed();
}

inline void ProgressBar::SetValue(std::int32_t value) {
  value_ = std::clamp(value, kMin, kMax);
  Changed();
}

}  // namespace plotsmith::forms
