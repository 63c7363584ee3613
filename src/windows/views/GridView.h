#pragma once

#include <vector>

#include "forms/VSFlexGrid.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {

/// A grid in which whole rows are selected. Fixed rows are its header.
class GridView final : public ControlView {
 public:
  /// Makes the window for `model`.
  GridView(forms::VSFlexGrid& model, const Stage& stage);

  forms::Size LeastSize() const override;
  int HeightOf(int lines) const override;
  void Place(const forms::Area& area) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;

 protected:
  void Show() override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnChanges() override;

 private:
  /// Returns the rows of the model that are selected in the window.
  std::vector<std::int32_t> Selected() const;
  void ShowColumns();
  void ShowCells();
  void ShowSelection();
  void SetColumnShares();

  forms::VSFlexGrid& model_;
  UINT handDpi_ = 0;  ///< the resolution at which the user set column widths; 0 if the user has set none
};

}  // namespace plotsmith::windows
