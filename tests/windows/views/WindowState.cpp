#include "tests/windows/views/WindowState.h"

#include <algorithm>
#include <commctrl.h>
#include <optional>

#include "forms/TextBox.h"
#include "tests/support/StateDifferences.h"
#include "windows/com/Texts.h"
#include "windows/views/ControlNames.h"
#include "windows/views/EditTexts.h"

namespace plotsmith::test {
namespace {

using forms::ControlState;

std::string TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return com::Utf8(text.data(), text.size());
}

std::string ClassOf(HWND window) {
  wchar_t name[64];
  const int length = GetClassNameW(window, name, 64);
  return com::Utf8(name, static_cast<std::size_t>(length));
}

bool HasStyle(HWND window, LONG_PTR style) { return (GetWindowLongPtrW(window, GWL_STYLE) & style) == style; }

std::string KindOfButton(HWND window) {
  switch (GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK) {
    case BS_GROUPBOX:
      return "Frame";
    case BS_CHECKBOX:
      return "CheckBox";
    case BS_RADIOBUTTON:
      return "OptionButton";
    default:
      return "CommandButton";
  }
}

/// Returns the class of a control from the class of its window.
std::string KindOf(HWND window) {
  const std::string name = ClassOf(window);
  if (name == "Button") return KindOfButton(window);
  if (name == "Static") {
    const bool isDrawn = (GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW;
    return isDrawn ? "Image" : "Label";
  }
  if (name == "Edit") return "TextBox";
  if (name == "SysListView32") return "VSFlexGrid";
  return name == "msctls_progress32" ? "ProgressBar" : name;  // ComboBox, ListBox
}

std::vector<std::string> Entries(HWND list, UINT countMessage, UINT lengthMessage, UINT textMessage) {
  std::vector<std::string> entries;
  const LRESULT count = SendMessageW(list, countMessage, 0, 0);
  for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(list, lengthMessage, i, 0)) + 1, L'\0');
    const LRESULT length = SendMessageW(list, textMessage, i, reinterpret_cast<LPARAM>(text.data()));
    entries.push_back(com::Utf8(text.data(), static_cast<std::size_t>(length)));
  }
  return entries;
}

void ReadListBox(HWND window, ControlState& state) {
  state.list = Entries(window, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
  state.selected.emplace();
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(state.list->size()); ++i) {
    if (SendMessageW(window, LB_GETSEL, static_cast<WPARAM>(i), 0) > 0) state.selected->push_back(i);
  }
  state.listIndex = state.selected->empty() ? -1 : state.selected->back();
  state.text = *state.listIndex < 0 ? "" : (*state.list)[static_cast<std::size_t>(*state.listIndex)];
}

void ReadComboBox(HWND window, ControlState& state) {
  state.list = Entries(window, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
  state.listIndex = static_cast<std::int32_t>(SendMessageW(window, CB_GETCURSEL, 0, 0));
  state.text = TextOf(window);
}

std::string CellText(HWND list, int row, int column) {
  wchar_t text[512] = {};
  LVITEMW item = {};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = 512;
  const auto length =
      SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  return com::Utf8(item.pszText, static_cast<std::size_t>(length));
}

std::string HeadText(HWND list, int column) {
  wchar_t text[512] = {};
  LVCOLUMNW head = {};
  head.mask = LVCF_TEXT;
  head.pszText = text;
  head.cchTextMax = 512;
  SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&head));
  return com::Utf8(head.pszText, wcslen(head.pszText));
}

void ReadGrid(HWND window, ControlState& state) {
  state.rows.emplace();
  state.selected.emplace();
  const int columns = Header_GetItemCount(ListView_GetHeader(window));
  state.fixedRows = HasStyle(window, LVS_NOCOLUMNHEADER) ? 0 : 1;
  if (state.fixedRows == 1) {
    auto& heads = state.rows->emplace_back();
    for (int column = 0; column < columns; ++column) heads.push_back(HeadText(window, column));
  }
  for (int row = 0; row < ListView_GetItemCount(window); ++row) {
    auto& cells = state.rows->emplace_back();
    for (int column = 0; column < columns; ++column) cells.push_back(CellText(window, row, column));
    if (ListView_GetItemState(window, row, LVIS_SELECTED) != 0)
      state.selected->push_back(row + state.fixedRows);
  }
}

/// Returns true if a control has the mark's colour. Input controls have their own colour.
bool IsMarked(HWND window, const std::string& kind) {
  if (kind != "Frame" && kind != "OptionButton" && kind != "CheckBox" && kind != "Label") return false;
  const HDC context = CreateCompatibleDC(nullptr);
  SendMessageW(GetParent(window), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
               reinterpret_cast<LPARAM>(window));
  const COLORREF color = GetBkColor(context);
  DeleteDC(context);
  return color == GetSysColor(COLOR_INFOBK);
}

RECT AreaOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return area;
}

bool IsInside(const RECT& inner, const RECT& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

/// Returns the name of the frame around a control, or "".
std::string ContainerOf(HWND form, HWND window) {
  for (const HWND other : ControlWindows(form)) {
    const bool isAround =
        other != window && KindOf(other) == "Frame" && IsInside(AreaOf(window), AreaOf(other));
    if (isAround) return windows::WindowName(other);
  }
  return {};
}

ControlState Read(HWND form, HWND window) {
  ControlState state;
  state.name = windows::WindowName(window);
  state.kind = KindOf(window);
  state.container = ContainerOf(form, window);
  state.enabled = IsWindowEnabled(window) != FALSE;
  state.visible = HasStyle(window, WS_VISIBLE);
  state.focus = GetFocus() == window || GetParent(GetFocus()) == window;
  state.backColor = IsMarked(window, state.kind) ? forms::kToolTipBackground : forms::kButtonFace;
  const bool hasCaption = ClassOf(window) == "Button" || state.kind == "Label";
  if (hasCaption) state.caption = TextOf(window);
  if (state.kind == "CheckBox" || state.kind == "OptionButton") {
    state.value = SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
  }
  if (state.kind == "CommandButton") {
    state.isDefault = HasStyle(window, BS_DEFPUSHBUTTON);
    state.isCancel = GetDlgCtrlID(window) == IDCANCEL;
  }
  if (state.kind == "TextBox") state.text = forms::WithLineEnds(TextOf(window), "\n");
  if (state.kind == "ListBox") ReadListBox(window, state);
  if (state.kind == "ComboBox") ReadComboBox(window, state);
  if (state.kind == "VSFlexGrid") ReadGrid(window, state);
  return state;
}

/// Returns true if the user is in the middle of an action in a control: its list is open, or only the first
/// unit of a character was typed.
bool IsInTheMiddle(HWND window, const std::string& kind) {
  const bool isOpen = kind == "ComboBox" && SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
  const HWND edit = kind == "ComboBox" ? GetWindow(window, GW_CHILD) : window;
  const bool isText = edit != nullptr && ClassOf(edit) == "Edit";
  return isOpen || (isText && GetFocus() == edit && windows::HasHalfCharacter(edit));
}

}  // namespace

std::vector<HWND> ControlWindows(HWND form) {
  std::vector<HWND> controls;
  for (HWND window = GetWindow(form, GW_CHILD); window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
    controls.push_back(window);
  }
  return controls;
}

HWND ControlWindow(HWND form, const std::string& name) {
  for (const HWND window : ControlWindows(form)) {
    if (windows::WindowName(window) == name) return window;
  }
  return nullptr;
}

forms::FormState StateOfWindow(HWND form) {
  forms::FormState state{windows::WindowName(form), TextOf(form), {}};
  for (const HWND window : ControlWindows(form)) state.controls.push_back(Read(form, window));
  return state;
}

std::string DifferencesFromModel(const forms::Form& form, HWND window) {
  const forms::FormState shown = StateOfWindow(window);
  std::vector<std::string> names;
  for (const forms::Control* control : form.Controls()) {
    if (std::string(control->TypeName()) != "Timer") names.push_back(control->FullName());
  }
  const bool isInOrder = std::ranges::equal(names, shown.controls, {}, {}, &ControlState::name);
  return StateDifferences(forms::StateOf(form), shown,
                          [&](ControlState& model, ControlState& seen) {
                            model.accessibleName.clear();  // screen readers know it, windows don't
                            if (model.kind == "ListBox") model.listIndex = seen.listIndex;
                            if (IsInTheMiddle(ControlWindow(window, model.name), model.kind)) model = seen;
                          }) +
         (isInOrder ? "" : "the tab order differs\n");
}

}  // namespace plotsmith::test
