#pragma once

#include <vector>

#include "forms/Lists.h"
#include "windows/views/ControlView.h"

namespace plotsmith::windows {

/// A combo box. An entry is reported when the user decides on it, not while the cursor moves through the open
/// list.
class ComboBoxView final : public ControlView {
 public:
  /// Makes the window for `model`.
  ComboBoxView(forms::ComboBox& model, const Stage& stage);
  ~ComboBoxView() override;

  forms::Size LeastSize() const override;
  void Place(const forms::Area& area) override;
  void OnCommand(WORD code) override;

 protected:
  void Show() override;
  bool IsInTheMiddle() const override;
  void ShowSpoken(const Spoken& spoken) override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnChanges() override;

 private:
  static LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                        DWORD_PTR data);
  void DetachEdit();
  void ReportText();
  bool IsOpen() const { return Send(CB_GETDROPPEDSTATE) != 0; }

  forms::ComboBox& model_;
  HWND edit_ = nullptr;  ///< the edit control of the combo box; null if it has none
  bool isDecided_ = false;
};

/// A list box with single or multiple selection.
class ListBoxView final : public ControlView {
 public:
  /// Makes the window for `model`.
  ListBoxView(forms::ListBox& model, const Stage& stage);

  forms::Size LeastSize() const override;
  void OnCommand(WORD code) override;

 protected:
  void Show() override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool HasSeveral() const { return model_.MultiSelect() == forms::MultiSelect::kExtended; }
  std::vector<std::int32_t> Selected() const;
  /// Selects an entry of a list without a selection on behalf of the user. In a list with single selection,
  /// -1 deselects the selected entry.
  void SelectAlone(std::int32_t entry);
  void ShowSelection();

  forms::ListBox& model_;
};

/// Returns true if the key selects the first row of a list without a selection.
bool IsCursorKey(WPARAM key);

}  // namespace plotsmith::windows
