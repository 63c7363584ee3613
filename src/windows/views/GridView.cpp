#include "windows/views/GridView.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

#include "windows/com/Texts.h"
#include "windows/views/ListViews.h"

namespace plotsmith::windows {
namespace {

constexpr int kLeastCharacters = 20, kLeastLines = 3;
constexpr int kRowGap = 4, kHeadGap = 8;  // at 96 dots per inch
constexpr std::size_t kLongestText = 1024;

DWORD StyleOf(const forms::VSFlexGrid& model) {
  DWORD style = WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER;
  if (model.MultiSelect() == forms::MultiSelect::kNone) style |= LVS_SINGLESEL;
  if (model.FixedRows() == 0) style |= LVS_NOCOLUMNHEADER;
  return style;
}

std::wstring CellText(HWND list, int row, int column) {
  wchar_t text[kLongestText] = {};
  LVITEMW item = {};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = static_cast<int>(kLongestText);
  const auto length =
      SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  return {item.pszText, static_cast<std::size_t>(length)};
}

}  // namespace

GridView::GridView(forms::VSFlexGrid& model, const Stage& stage)
    : ControlView(model, stage, {WC_LISTVIEWW, StyleOf(model), WS_EX_CLIENTEDGE}), model_(model) {
  const DWORD styles = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_DOUBLEBUFFER;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, styles, static_cast<LPARAM>(styles));
}

forms::Size GridView::LeastSize() const { return {WidthOf(kLeastCharacters), HeightOf(kLeastLines)}; }

int GridView::HeightOf(int lines) const {
  const auto line = static_cast<int>(CharacterSize(Font()).cy) + Scaled(kRowGap);
  return lines * line + Scaled(model_.FixedRows() > 0 ? kHeadGap : 0) + Scaled(kRowGap);
}

void GridView::Place(const forms::Area& area) {
  ControlView::Place(area);
  SetColumnShares();
}

// One click moves the selection from some rows to others, and Windows sends a message for each row.
std::optional<LRESULT> GridView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      if (((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0) AwaitChanges();
      return 0;
    }
    case LVN_ODSTATECHANGED:
      AwaitChanges();
      return 0;
    case NM_DBLCLK: {
      const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
      if (row >= 0) Report([this, row] { model_.UserDoubleClick(row + model_.FixedRows()); });
      return 0;
    }
    default:
      return std::nullopt;
  }
}

void GridView::OnChanges() {
  Report([this, rows = Selected()] { model_.UserSelect(rows); });
}

std::vector<std::int32_t> GridView::Selected() const {
  std::vector<std::int32_t> rows;
  LRESULT row = -1;
  while ((row = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0) {
    rows.push_back(static_cast<std::int32_t>(row) + model_.FixedRows());
  }
  return rows;
}

std::optional<LRESULT> GridView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY) {
    const UINT code = reinterpret_cast<const NMHDR*>(lParam)->code;
    const bool isSized = code == HDN_ENDTRACKW || code == HDN_ENDTRACKA || code == HDN_DIVIDERDBLCLICKW ||
                         code == HDN_DIVIDERDBLCLICKA;
    if (isSized) handDpi_ = Dpi();
    return std::nullopt;
  }
  const bool hasRows = model_.Rows() > model_.FixedRows();
  if (message != WM_KEYDOWN || !IsCursorKey(wParam) || !hasRows || !Selected().empty()) return std::nullopt;
  ListView_SetItemState(Window(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  return 0;
}

void GridView::Show() {
  ShowColumns();
  ShowCells();
  ShowSelection();
  SetColumnShares();
}

void GridView::ShowColumns() {
  const HWND head = ListView_GetHeader(Window());
  for (int column = Header_GetItemCount(head); column < model_.Cols(); ++column) {
    LVCOLUMNW added = {};
    ListView_InsertColumn(Window(), column, &added);
  }
  for (int column = 0; column < model_.Cols(); ++column) {
    const bool isRight = model_.ColAlignment(column) == forms::ColumnAlignment::flexAlignRightCenter;
    std::wstring text;
    if (model_.FixedRows() > 0) text = com::Wide(model_.TextMatrix(model_.FixedRows() - 1, column));
    LVCOLUMNW wanted = {};
    wanted.mask = LVCF_TEXT | LVCF_FMT;
    wanted.fmt = isRight ? LVCFMT_RIGHT : LVCFMT_LEFT;
    wanted.pszText = text.data();
    Send(LVM_SETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&wanted));
  }
}

void GridView::ShowCells() {
  const int rows = model_.Rows() - model_.FixedRows();
  while (ListView_GetItemCount(Window()) > rows) {
    ListView_DeleteItem(Window(), ListView_GetItemCount(Window()) - 1);
  }
  for (int row = 0; row < rows; ++row) {
    if (row >= ListView_GetItemCount(Window())) {
      LVITEMW added = {};
      added.iItem = row;
      Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&added));
    }
    for (int column = 0; column < model_.Cols(); ++column) {
      std::wstring text = com::Wide(model_.TextMatrix(row + model_.FixedRows(), column));
      if (CellText(Window(), row, column) == text) continue;
      LVITEMW item = {};
      item.iSubItem = column;
      item.pszText = text.data();
      Send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
  }
}

void GridView::ShowSelection() {
  int first = -1;
  for (int row = 0; row < model_.Rows() - model_.FixedRows(); ++row) {
    const bool isSelected = model_.IsSelected(row + model_.FixedRows());
    if (isSelected && first < 0) first = row;
    const bool isShown = ListView_GetItemState(Window(), row, LVIS_SELECTED) != 0;
    if (isShown != isSelected)
      ListView_SetItemState(Window(), row, isSelected ? LVIS_SELECTED : 0, LVIS_SELECTED);
  }
  if (first < 0) return;
  const auto cursor = static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
  if (cursor >= 0 && ListView_GetItemState(Window(), cursor, LVIS_SELECTED) != 0) return;
  ListView_SetItemState(Window(), first, LVIS_FOCUSED, LVIS_FOCUSED);
  ListView_EnsureVisible(Window(), first, FALSE);
}

// No text is cut off as long as there is enough space. If the page sets no widths, all columns have equal
// widths. Widths that the user has set are kept, and grow with the resolution.
void GridView::SetColumnShares() {
  if (handDpi_ != 0) {
    const UINT before = std::exchange(handDpi_, Dpi());
    for (int column = 0; column < model_.Cols() && before != handDpi_; ++column) {
      const int width = ListView_GetColumnWidth(Window(), column);
      ListView_SetColumnWidth(Window(), column,
                              MulDiv(width, static_cast<int>(handDpi_), static_cast<int>(before)));
    }
    return;
  }
  RECT area;
  GetClientRect(Window(), &area);
  int sum = 0;
  for (int column = 0; column < model_.Cols(); ++column) sum += model_.ColWidth(column);
  for (int column = 0; column < model_.Cols(); ++column) {
    const int width = sum > 0 ? MulDiv(area.right, model_.ColWidth(column), sum) : area.right / model_.Cols();
    ListView_SetColumnWidth(Window(), column, width);
  }
}

}  // namespace plotsmith::windows
