#include "tests/windows/views/WindowsHand.h"

#include <commctrl.h>
#include <stdexcept>

#include "tests/windows/views/Clipboard.h"
#include "tests/windows/views/WindowState.h"
#include "windows/com/Texts.h"

namespace plotsmith::test {
namespace {

LPARAM PlaceOf(POINT place) { return MAKELPARAM(place.x, place.y); }

POINT Middle(const RECT& area) { return {(area.left + area.right) / 2, (area.top + area.bottom) / 2}; }

RECT ClientArea(HWND window) {
  RECT area = {};
  GetClientRect(window, &area);
  return area;
}

/// Returns a point on the mark before the caption.
POINT OnMark(HWND window) {
  const RECT area = ClientArea(window);
  return {area.left + 6, (area.top + area.bottom) / 2};
}

RECT RowArea(HWND list, int row) {
  ListView_EnsureVisible(list, row, FALSE);
  RECT area = {};
  area.left = LVIR_LABEL;
  SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
  return area;
}

RECT EntryArea(HWND list, int entry) {
  SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(entry), 0);
  RECT area = {};
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&area));
  return area;
}

/// Clicks on rows, so that exactly these are selected.
void ClickRows(HWND list, const std::vector<int>& rows, RECT (*areaOf)(HWND, int),
               const std::vector<int>& selected) {
  if (rows.empty()) {
    SetFocus(list);
    for (const int row : selected) PostClick(list, Middle(areaOf(list, row)), MK_CONTROL);
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    PostClick(list, Middle(areaOf(list, rows[i])), i == 0 ? 0 : MK_CONTROL);
  }
}

std::vector<int> SelectedRows(HWND form, HWND list) {
  for (const auto& control : StateOfWindow(form).controls) {
    if (ControlWindow(form, control.name) != list) continue;
    std::vector<int> rows(control.selected->begin(), control.selected->end());
    for (int& row : rows) row -= control.fixedRows;
    return rows;
  }
  return {};
}

/// Replaces the text of an edit control, unit by unit.
void TypeOver(HWND edit, const std::string& text) {
  constexpr WPARAM kControlA = 1, kControlV = 22;
  PostMessageW(edit, WM_CHAR, kControlA, 0);
  PostMessageW(edit, WM_CHAR, VK_BACK, 0);
  for (const wchar_t unit : com::Wide(forms::WithLineEnds(text, "\r"))) {
    if (unit != L'\t') {
      PostMessageW(edit, WM_CHAR, unit, 0);
      continue;
    }
    SetClipboardText(L"\t");  // The Tab key leaves the box.
    PostMessageW(edit, WM_CHAR, kControlV, 0);
  }
}

/// Returns the windows inside a combo box for its text and its entries.
COMBOBOXINFO PartsOf(HWND combo) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  GetComboBoxInfo(combo, &info);
  return info;
}

}  // namespace

void PostClick(HWND window, POINT place, WPARAM keys) {
  PostMessageW(window, WM_LBUTTONDOWN, keys | MK_LBUTTON, PlaceOf(place));
  PostMessageW(window, WM_LBUTTONUP, keys, PlaceOf(place));
}

void PostClick(HWND window) { PostClick(window, Middle(ClientArea(window))); }

void PostKey(HWND window, WPARAM key, bool isRepeated) {
  PostMessageW(window, WM_KEYDOWN, key, isRepeated ? 0x40000001 : 1);
  if (!isRepeated) PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

HWND WindowsHand::Find(const forms::Control& control) const {
  const HWND window = ControlWindow(front_(), control.FullName());
  if (window == nullptr) throw std::logic_error("no window is named " + control.FullName());
  return window;
}

void WindowsHand::SelectRows(forms::EventQueue& queue, forms::VSFlexGrid& grid,
                             std::vector<std::int32_t> rows) {
  for (std::int32_t& row : rows) row -= grid.FixedRows();
  const HWND list = Find(grid);
  ClickRows(list, rows, RowArea, SelectedRows(front_(), list));
  handle_(queue);
}

void WindowsHand::DoubleClickRow(forms::EventQueue& queue, forms::VSFlexGrid& grid, std::int32_t row) {
  const HWND list = Find(grid);
  const POINT place = Middle(RowArea(list, row - grid.FixedRows()));
  PostClick(list, place);
  PostMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, PlaceOf(place));
  PostMessageW(list, WM_LBUTTONUP, 0, PlaceOf(place));
  handle_(queue);
}

void WindowsHand::SelectEntries(forms::EventQueue& queue, forms::ListBox& list,
                                std::vector<std::int32_t> entries) {
  const HWND window = Find(list);
  ClickRows(window, entries, EntryArea, SelectedRows(front_(), window));
  handle_(queue);
}

void WindowsHand::ChooseEntry(forms::EventQueue& queue, forms::ComboBox& combo, std::int32_t entry) {
  const HWND window = Find(combo);
  const RECT area = ClientArea(window);
  PostClick(window, {area.right - 5, (area.top + area.bottom) / 2});
  handle_(queue);
  const HWND list = PartsOf(window).hwndList;
  PostClick(list, Middle(EntryArea(list, entry)));
  handle_(queue);
}

void WindowsHand::ChooseOption(forms::EventQueue& queue, forms::OptionButton& option) {
  PostClick(Find(option), OnMark(Find(option)));
  handle_(queue);
}

void WindowsHand::Toggle(forms::EventQueue& queue, forms::CheckBox& box, bool checked) {
  const HWND window = Find(box);
  const bool isChecked = SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
  for (int i = 0; i < (isChecked == checked ? 2 : 1); ++i) PostClick(window, OnMark(window));
  handle_(queue);
}

void WindowsHand::TypeText(forms::EventQueue& queue, forms::TextBox& box, std::string text) {
  PostClick(Find(box));
  TypeOver(Find(box), text);
  handle_(queue);
}

void WindowsHand::TypeText(forms::EventQueue& queue, forms::ComboBox& combo, std::string text) {
  const HWND edit = PartsOf(Find(combo)).hwndItem;
  PostClick(edit);
  TypeOver(edit, text);
  handle_(queue);
}

void WindowsHand::Press(forms::EventQueue& queue, forms::CommandButton& button) {
  PostClick(Find(button));
  handle_(queue);
}

void WindowsHand::Focus(forms::EventQueue& queue, forms::Control& control) {
  SetFocus(Find(control));
  handle_(queue);
}

void WindowsHand::Enter(forms::EventQueue& queue, forms::Form&) {
  PostKey(GetFocus() == nullptr ? front_() : GetFocus(), VK_RETURN);
  handle_(queue);
}

void WindowsHand::Escape(forms::EventQueue& queue, forms::Form&) {
  PostKey(GetFocus() == nullptr ? front_() : GetFocus(), VK_ESCAPE);
  handle_(queue);
}

void WindowsHand::Close(forms::EventQueue& queue, forms::Form&) {
  PostMessageW(front_(), WM_SYSCOMMAND, SC_CLOSE, 0);
  handle_(queue);
}

}  // namespace plotsmith::test
