#include "windows/views/ListViews.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

#include "windows/com/Texts.h"
#include "windows/views/EditTexts.h"
#include "windows/views/Subclasses.h"

namespace plotsmith::windows {
namespace {

constexpr int kLeastCharacters = 12, kOpenLines = 8;
constexpr int kArrow = 24;  // of a combo box, at 96 dots per inch

/// The messages that change the entries of a kind of list.
struct EntryMessages {
  UINT count, textLength, text, add, clear;
};
constexpr EntryMessages kOfCombo = {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_ADDSTRING,
                                    CB_RESETCONTENT};
constexpr EntryMessages kOfList = {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_ADDSTRING, LB_RESETCONTENT};

std::vector<std::wstring> EntriesOf(const forms::EntryList& list) {
  std::vector<std::wstring> entries;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) entries.push_back(com::Wide(list.List(i)));
  return entries;
}

std::vector<std::wstring> EntriesOf(HWND list, const EntryMessages& messages) {
  std::vector<std::wstring> entries;
  const LRESULT count = SendMessageW(list, messages.count, 0, 0);
  for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(list, messages.textLength, i, 0)), L'\0');
    SendMessageW(list, messages.text, i, reinterpret_cast<LPARAM>(text.data()));
    entries.push_back(std::move(text));
  }
  return entries;
}

/// Shows the entries of the model. Returns false if the list already has them.
bool ShowEntriesIn(HWND list, const forms::EntryList& model, const EntryMessages& messages) {
  const std::vector<std::wstring> entries = EntriesOf(model);
  if (EntriesOf(list, messages) == entries) return false;
  SendMessageW(list, messages.clear, 0, 0);
  for (const std::wstring& entry : entries) {
    SendMessageW(list, messages.add, 0, reinterpret_cast<LPARAM>(entry.c_str()));
  }
  return true;
}

}  // namespace

bool IsCursorKey(WPARAM key) {
  return key == VK_DOWN || key == VK_UP || key == VK_NEXT || key == VK_PRIOR || key == VK_HOME;
}

ComboBoxView::ComboBoxView(forms::ComboBox& model, const Stage& stage)
    : ControlView(model, stage,
                  {WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | CBS_AUTOHSCROLL |
                                     (model.Style() == forms::ComboStyle::kDropDownList
                                          ? static_cast<DWORD>(CBS_DROPDOWNLIST)
                                          : static_cast<DWORD>(CBS_DROPDOWN))}),
      model_(model) {
  if (model.Style() == forms::ComboStyle::kDropDownList) return;
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  if (!GetComboBoxInfo(Window(), &info) || info.hwndItem == nullptr) return;
  edit_ = info.hwndItem;
  SetSubclass(edit_, EditProcedure, this);
}

ComboBoxView::~ComboBoxView() {
  if (edit_ != nullptr) DetachEdit();
}

void ComboBoxView::DetachEdit() {
  Reader().Clear(edit_);
  ForgetSubclassData(std::exchange(edit_, nullptr), EditProcedure);
}

// The edit control of a combo box isn't a control of the form, but texts are pasted into it in the same way.
LRESULT CALLBACK ComboBoxView::EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                             UINT_PTR, DWORD_PTR data) {
  auto* const view = reinterpret_cast<ComboBoxView*>(data);
  try {
    if (view != nullptr && HandleEditMessage(window, Lines::kOne, message, wParam)) return 0;
    if (message == WM_NCDESTROY && view != nullptr) view->DetachEdit();
  } catch (...) {
    return 0;  // There isn't enough memory.
  }
  if (message == WM_NCDESTROY) RemoveSubclass(window, EditProcedure);
  return CallNextProcedure(window, message, wParam, lParam);
}

forms::Size ComboBoxView::LeastSize() const {
  RECT area;
  GetWindowRect(Window(), &area);  // Windows derives the height of a closed combo box from its font
  return {WidthOf(kLeastCharacters), static_cast<int>(area.bottom - area.top)};
}

void ComboBoxView::Place(const forms::Area& area) {
  const auto lines = std::clamp(static_cast<int>(model_.ListCount()), 1, kOpenLines);
  const auto line = static_cast<int>(Send(CB_GETITEMHEIGHT, 0));
  ControlView::Place({area.left, area.top, area.width, area.height + (lines * line) + Scaled(2)});
}

void ComboBoxView::OnCommand(WORD code) {
  switch (code) {
    case CBN_SETFOCUS:
      ReportFocus();
      break;
    case CBN_EDITCHANGE:
      if (!HasHalfCharacter(edit_)) ReportText();
      break;
    case CBN_KILLFOCUS:
      if (edit_ != nullptr && HasHalfCharacter(edit_)) ReportText();
      break;
    case CBN_SELENDCANCEL:
      isDecided_ = false;
      Touch();
      AwaitChanges();
      break;
    case CBN_SELENDOK:
    case CBN_CLOSEUP:
      isDecided_ = isDecided_ || code == CBN_SELENDOK;
      AwaitChanges();
      break;
    case CBN_SELCHANGE:
      isDecided_ = isDecided_ || !IsOpen();
      AwaitChanges();
      break;
    default:
      break;
  }
}

void ComboBoxView::ReportText() {
  const std::wstring text = Typeable(WindowText(), Lines::kOne);
  Report([this, text = com::Utf8(text.data(), text.size())] { model_.UserType(text); });
}

bool ComboBoxView::IsInTheMiddle() const {
  return edit_ != nullptr && GetFocus() == edit_ && HasHalfCharacter(edit_);
}

void ComboBoxView::ShowSpoken(const Spoken& spoken) {
  ControlView::ShowSpoken(spoken);
  if (edit_ != nullptr) Reader().Set(edit_, spoken);  // The edit control has the focus.
}

void ComboBoxView::OnChanges() {
  if (IsOpen() || !std::exchange(isDecided_, false)) return;
  const auto entry = static_cast<std::int32_t>(Send(CB_GETCURSEL));
  if (entry >= 0) Report([this, entry] { model_.UserChoose(entry); });
}

std::optional<LRESULT> ComboBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // A mouse wheel that scrolls the page must not change a combo box that moves under the pointer.
  if (message != WM_MOUSEWHEEL || GetFocus() == Window() || (edit_ != nullptr && GetFocus() == edit_) ||
      IsOpen()) {
    return std::nullopt;
  }
  return SendMessageW(GetParent(Window()), message, wParam, lParam);
}

void ComboBoxView::Show() {
  if (IsOpen()) return Touch();  // not during a choice
  const bool hasNewEntries = ShowEntriesIn(Window(), model_, kOfCombo);
  if (hasNewEntries || static_cast<std::int32_t>(Send(CB_GETCURSEL)) != model_.ListIndex()) {
    Send(CB_SETCURSEL, static_cast<WPARAM>(model_.ListIndex()));
  }
  if (edit_ != nullptr) SetText(model_.Text());
}

ListBoxView::ListBoxView(forms::ListBox& model, const Stage& stage)
    : ControlView(
          model, stage,
          {WC_LISTBOXW,
           WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
               (model.MultiSelect() == forms::MultiSelect::kExtended ? static_cast<DWORD>(LBS_EXTENDEDSEL)
                                                                     : 0),
           WS_EX_CLIENTEDGE}),
      model_(model) {}

forms::Size ListBoxView::LeastSize() const { return {WidthOf(kLeastCharacters), HeightOf(2)}; }

std::vector<std::int32_t> ListBoxView::Selected() const {
  if (!HasSeveral()) {
    const auto entry = static_cast<std::int32_t>(Send(LB_GETCURSEL));
    return entry < 0 ? std::vector<std::int32_t>() : std::vector<std::int32_t>{entry};
  }
  std::vector<std::int32_t> entries(static_cast<std::size_t>(std::max<LRESULT>(Send(LB_GETSELCOUNT), 0)));
  Send(LB_GETSELITEMS, entries.size(), reinterpret_cast<LPARAM>(entries.data()));
  std::ranges::sort(entries);
  return entries;
}

void ListBoxView::OnCommand(WORD code) {
  if (code == LBN_SELCHANGE) Report([this, entries = Selected()] { model_.UserSelect(entries); });
}

std::optional<LRESULT> ListBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_KEYDOWN && message != WM_LBUTTONDOWN) return std::nullopt;
  const bool hasSelection = !Selected().empty();
  if (message == WM_KEYDOWN && IsCursorKey(wParam) && !hasSelection && model_.ListCount() > 0) {
    SelectAlone(0);
    return 0;
  }
  // Windows deselects the last entry only in lists with multiple selection.
  const bool isWithControl = message == WM_LBUTTONDOWN && (wParam & MK_CONTROL) != 0;
  if (isWithControl && !HasSeveral() && hasSelection &&
      Send(LB_ITEMFROMPOINT, 0, lParam) == Selected().front()) {
    SelectAlone(-1);
    return 0;
  }
  return std::nullopt;
}

void ListBoxView::SelectAlone(std::int32_t entry) {
  if (HasSeveral()) {
    Send(LB_SETSEL, TRUE, entry);
  } else {
    Send(LB_SETCURSEL, static_cast<WPARAM>(entry));
  }
  OnCommand(LBN_SELCHANGE);
}

void ListBoxView::Show() {
  ShowEntriesIn(Window(), model_, kOfList);
  ShowSelection();
}

void ListBoxView::ShowSelection() {
  std::vector<std::int32_t> selected;
  for (std::int32_t i = 0; i < model_.ListCount(); ++i) {
    if (model_.Selected(i)) selected.push_back(i);
  }
  if (selected == Selected()) return;
  if (!HasSeveral()) {
    Send(LB_SETCURSEL, static_cast<WPARAM>(selected.empty() ? -1 : selected.front()));
    return;
  }
  Send(LB_SETSEL, FALSE, -1);
  for (const std::int32_t entry : selected) Send(LB_SETSEL, TRUE, entry);
  if (!selected.empty()) Send(LB_SETCARETINDEX, static_cast<WPARAM>(selected.front()), FALSE);
}

}  // namespace plotsmith::windows
