#pragma once

#include <memory>
#include <vector>

#include "forms/Form.h"
#include "forms/SecondPress.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {

/// Makes the view of a control, or returns null for an invisible kind, such as a timer. `presses` must
/// outlive the view.
std::unique_ptr<ControlView> MakeControlView(forms::Control& control, const Stage& stage,
                                             forms::SecondPress& presses);

/// The views of a form's controls, in tab order, and their sizes.
class ControlViews final : public forms::Measures {
 public:
  /// Creates the windows. The fonts must outlive this object.
  ControlViews(forms::Form& form, const Stage& stage, forms::SecondPress& presses);

  /// Returns the view of a control, or null for an invisible kind.
  ControlView* Find(const forms::Control& control) const;
  /// The first view in tab order.
  auto begin() const { return views_.begin(); }
  /// The end of the views.
  auto end() const { return views_.end(); }
  /// Uses these fonts in all views. They must outlive this object.
  void UseFonts(Fonts& fonts);

  forms::Size LeastSize(const forms::Control& control) const override;
  int WidthOf(const forms::Control& control, int characters) const override;
  int HeightOf(const forms::Control& control, int lines) const override;
  forms::Edges EdgesOf(const forms::Control& frame) const override;
  int Gap() const override;

 private:
  std::vector<std::unique_ptr<ControlView>> views_;
  UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
};

}  // namespace plotsmith::windows
