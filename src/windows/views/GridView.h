#pragma once

#include <vector>

#include "forms/VSFlexGrid.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {

/// A grid, of which whole rows are selected. Fixed rows are its head.
class GridView final : public ControlView {
 public:
  GridView(forms::VSFlexGrid& model, const Stage& stage);

  forms::Size LeastSize() const override;
  int HeightOf(int lines) const override;
  void Place(const forms::Area& area) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;

 protected:
  void Show() override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnNews() override;

 private:
  /// Rows of the model, selected in the window.
  std::vector<std::int32_t> Selected() const;
  void ShowColumns();
  void ShowCells();
  void ShowSelection();
  void ShareOutWidth();

  forms::VSFlexGrid& model_;
  UINT handDpi_ = 0;  ///< the resolution in which a hand has chosen the widths of columns; 0 while none has
};

}  // namespace plotsmith::windows
