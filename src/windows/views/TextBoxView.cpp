#include "windows/views/TextBoxView.h"

#include <commctrl.h>

#include "windows/com/Texts.h"

namespace plotsmith::windows {
namespace {

constexpr int kTextMargin = 7;  // above and below the text, at 96 dots per inch
constexpr int kLeastCharacters = 8;

DWORD StyleOf(const forms::TextBox& model) {
  const DWORD alignment = model.Alignment() == forms::Alignment::kCenter ? ES_CENTER : ES_LEFT;
  return model.MultiLine() ? alignment | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL
                           : alignment | ES_AUTOHSCROLL;
}

}  // namespace

TextBoxView::TextBoxView(forms::TextBox& model, const Stage& stage)
    : ControlView(model, stage, {WC_EDITW, StyleOf(model) | WS_TABSTOP, WS_EX_CLIENTEDGE}),
      model_(model),
      lines_(model.MultiLine() ? Lines::kSeveral : Lines::kOne) {}

forms::Size TextBoxView::LeastSize() const {
  return {WidthOf(kLeastCharacters), static_cast<int>(CharacterSize(Font()).cy) + Scaled(kTextMargin)};
}

void TextBoxView::OnCommand(WORD code) {
  const bool isHalf = HasHalfCharacter(Window());
  const bool isTold = code == EN_CHANGE ? !isHalf : code == EN_KILLFOCUS && isHalf;
  if (!isTold) return;
  const std::wstring text = Typeable(WindowText(), lines_);
  Report([this, text = com::Utf8(text.data(), text.size())] { model_.UserType(text); });
}

bool TextBoxView::IsInTheMiddle() const { return GetFocus() == Window() && HasHalfCharacter(Window()); }

void TextBoxView::Show() {
  Send(EM_SETLIMITTEXT, model_.Limit());  // 0 means the maximum
  const std::wstring text = com::Wide(model_.Text());
  if (WindowText() == text) return;
  DWORD cursor = 0;
  Send(EM_GETSEL, 0, reinterpret_cast<LPARAM>(&cursor));
  Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
  Send(EM_SETSEL, cursor, cursor);
}

std::optional<LRESULT> TextBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM) {
  // Tab leaves a box of several lines, too.
  if (message == WM_GETDLGCODE && lines_ == Lines::kSeveral) return DLGC_WANTCHARS | DLGC_WANTARROWS;
  return HandleEditMessage(Window(), lines_, message, wParam) ? std::optional<LRESULT>(0) : std::nullopt;
}

}  // namespace plotsmith::windows
