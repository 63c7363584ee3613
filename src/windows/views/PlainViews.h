#pragma once

#include "forms/Plain.h"
#include "pages/pictures/Picture.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {

/// A text without input.
class LabelView final : public ControlView {
 public:
  /// Makes the window for `model`.
  LabelView(forms::Label& model, const Stage& stage);
  forms::Size LeastSize() const override;

 protected:
  void Show() override { SetText(model_.Caption()); }

 private:
  forms::Label& model_;
};

/// A box with a title. The controls inside are its siblings, as in all dialogs of Windows, so the form paints
/// the colour that they share.
class FrameView final : public ControlView {
 public:
  /// Makes the window for `model`.
  FrameView(forms::Frame& model, const Stage& stage);
  forms::Size LeastSize() const override;
  /// The distances between the edges of the frame and its content, in pixels.
  forms::Edges Edges() const;
  /// The area inside the frame's line, which runs through the middle of the title, in coordinates of the
  /// form's window.
  RECT InnerArea() const;

 protected:
  void Show() override;
  bool IsBold() const override { return model_.FontBold(); }

 private:
  forms::Frame& model_;
  forms::Color shownColor_ = forms::kButtonFace;
};

/// A sample picture, selected by the control's name.
class ImageView final : public ControlView {
 public:
  /// Makes the window for `model`.
  ImageView(forms::Image& model, const Stage& stage);
  forms::Size LeastSize() const override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;

 protected:
  void Show() override {}
  LONG Role() const override;

 private:
  forms::Image& model_;
  pictures::Picture picture_;
};

/// A progress bar.
class ProgressBarView final : public ControlView {
 public:
  /// Makes the window for `model`.
  ProgressBarView(forms::ProgressBar& model, const Stage& stage);
  forms::Size LeastSize() const override;

 protected:
  void Show() override;

 private:
  forms::ProgressBar& model_;
};

}  // namespace plotsmith::windows
