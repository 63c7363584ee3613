#include "windows/views/ButtonViews.h"

#include <algorithm>
#include <commctrl.h>
#include <windowsx.h>

#include "windows/com/Texts.h"

namespace plotsmith::windows {
namespace {

// Lengths at 96 dots per inch.
constexpr int kButtonWidth = 75, kButtonHeight = 23, kButtonMargin = 10;
constexpr int kMark = 13, kMarkGap = 6;

}  // namespace

CommandButtonView::CommandButtonView(forms::CommandButton& model, const Stage& stage,
                                     forms::SecondPress& presses)
    : ControlView(model, stage, {WC_BUTTONW, WS_TABSTOP | BS_PUSHBUTTON | BS_NOTIFY}),
      model_(model),
      presses_(presses) {}

// The identifier tells tools which button Escape presses.
void CommandButtonView::Show() {
  SetText(model_.Caption());
  SetWindowLongPtrW(Window(), GWLP_ID, model_.Cancel() ? IDCANCEL : 0);
  const DWORD style = model_.Default() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  const auto shown = static_cast<DWORD>(GetWindowLongPtrW(Window(), GWL_STYLE)) & BS_TYPEMASK;
  if (shown != style) Send(BM_SETSTYLE, style, TRUE);
}

forms::Size CommandButtonView::LeastSize() const {
  const SIZE text = TextSize(Font(), com::Wide(model_.Caption()));
  const int margin = Scaled(kButtonMargin);
  return {std::max(Scaled(kButtonWidth), static_cast<int>(text.cx) + 2 * margin),
          std::max(Scaled(kButtonHeight), static_cast<int>(text.cy) + margin)};
}

void CommandButtonView::OnCommand(WORD code) {
  if (code == BN_CLICKED) Report([this] { model_.UserPress(); });
}

std::optional<LRESULT> CommandButtonView::OnMessage(UINT message, WPARAM, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_BUTTON;  // Only the model decides which button is the default one.
    case BM_CLICK:         // from a program or a screen reader without a mouse: each message is one press
      OnCommand(BN_CLICKED);
      return 0;
    case WM_LBUTTONDBLCLK:
      IsSecondPress(lParam);
      return 0;
    case WM_LBUTTONDOWN:
      return IsSecondPress(lParam) ? std::optional<LRESULT>(0) : std::nullopt;
    default:
      return std::nullopt;
  }
}

bool CommandButtonView::IsSecondPress(LPARAM place) const {
  POINT point = {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  ClientToScreen(Window(), &point);
  const auto time = static_cast<DWORD>(GetMessageTime());
  return presses_.Note({time, static_cast<int>(point.x), static_cast<int>(point.y)},
                       {GetDoubleClickTime(), GetSystemMetrics(SM_CXDOUBLECLK)});
}

// The style isn't an "auto" style, because the model sets the mark.
MarkView::MarkView(forms::CaptionControl& model, const Stage& stage, DWORD style)
    : ControlView(model, stage, {WC_BUTTONW, style | BS_NOTIFY}), model_(model) {}

forms::Size MarkView::LeastSize() const {
  const SIZE text = TextSize(Font(), com::Wide(model_.Caption()));
  const int mark = Scaled(kMark);
  const int beside =
      model_.Caption().empty() ? Scaled(2) : Scaled(kMarkGap) + static_cast<int>(text.cx) + Scaled(2);
  return {mark + beside, std::max(mark + Scaled(4), static_cast<int>(text.cy) + Scaled(2))};
}

void MarkView::ShowMark(bool isMarked) {
  SetText(model_.Caption());
  const WPARAM check = isMarked ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(Send(BM_GETCHECK)) != check) Send(BM_SETCHECK, check);
}

// Windows sends a click of an option when it gets the focus.
void MarkView::OnCommand(WORD code) {
  if (code == BN_CLICKED && !IsTakingFocus()) ReportClick();
}

CheckBoxView::CheckBoxView(forms::CheckBox& model, const Stage& stage)
    : MarkView(model, stage, WS_TABSTOP | BS_CHECKBOX), model_(model) {}

void CheckBoxView::ReportClick() {
  Report([this] { model_.UserToggle(model_.Value() != forms::CheckBox::kChecked); });
}

OptionButtonView::OptionButtonView(forms::OptionButton& model, const Stage& stage)
    : MarkView(model, stage, BS_RADIOBUTTON), model_(model) {}

void OptionButtonView::Show() {
  ShowMark(model_.Value());
  const LONG_PTR style = GetWindowLongPtrW(Window(), GWL_STYLE);
  const LONG_PTR wanted =
      model_.IsTabStop() ? style | WS_TABSTOP : style & ~static_cast<LONG_PTR>(WS_TABSTOP);
  if (style != wanted) SetWindowLongPtrW(Window(), GWL_STYLE, wanted);
}

void OptionButtonView::ReportClick() {
  Report([this] { model_.UserChoose(); });
}

std::optional<LRESULT> OptionButtonView::OnMessage(UINT message, WPARAM wParam, LPARAM) {
  if (message == WM_GETDLGCODE) return DLGC_BUTTON | DLGC_RADIOBUTTON | DLGC_WANTARROWS;
  if (message != WM_KEYDOWN) return std::nullopt;
  const bool isNext = wParam == VK_DOWN || wParam == VK_RIGHT;
  if (!isNext && wParam != VK_UP && wParam != VK_LEFT) return std::nullopt;
  Report([this, isNext] { model_.Neighbor(isNext).UserChoose(); });
  return 0;
}

}  // namespace plotsmith::windows
