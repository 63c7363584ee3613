#include "windows/views/ControlView.h"

#include <utility>

#include "windows/com/Texts.h"
#include "windows/views/ActivationContext.h"
#include "windows/views/ControlNames.h"
#include "windows/views/Flag.h"
#include "windows/views/Subclasses.h"

namespace plotsmith::windows {
namespace {

constexpr UINT kNews = WM_APP + 1;
constexpr int kTextBorders = 8;  // at 96 dots per inch
constexpr int kLineGap = 2;      // between two lines of a list

}  // namespace

ControlView::ControlView(forms::Control& model, const Stage& stage, const WindowKind& kind)
    : model_(model), stage_(stage) {
  window_ = CreateWindowExW(kind.extendedStyle, kind.className, L"", kind.style | WS_CHILD, 0, 0, 0, 0,
                            stage.window, nullptr, OwnModule(), nullptr);
  SetWindowName(window_, model.FullName());
  SetSubclass(window_, Procedure, this);
}

// The form's window destroys this window, unless it was destroyed before.
ControlView::~ControlView() {
  if (window_ != nullptr) DetachWindow();
}

void ControlView::DetachWindow() {
  const HWND window = std::exchange(window_, nullptr);
  stage_.annotations.Clear(window);
  RemoveWindowName(window);
  ForgetSubclassData(window, Procedure);
}

ControlView* ControlView::Of(HWND window) {
  return static_cast<ControlView*>(SubclassData(window, Procedure));
}

// No exception may leave a window procedure. Only a lack of memory can cause one; the message is then lost.
LRESULT CALLBACK ControlView::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR data) {
  auto* const view = reinterpret_cast<ControlView*>(data);
  try {
    if (message == WM_NCDESTROY) {
      if (view != nullptr) view->DetachWindow();  // The host has destroyed the window.
      RemoveSubclass(window, Procedure);
    } else if (view != nullptr) {
      return view->Handle(message, wParam, lParam);
    }
    return CallNextProcedure(window, message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

LRESULT ControlView::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kNews) {
    awaitsNews_ = false;
    OnChanges();
    return 0;
  }
  if (const auto answer = OnMessage(message, wParam, lParam)) return *answer;
  const HWND window = window_;
  if (message == WM_SETFOCUS) {
    ReportFocus();
    const Flag flag(isTakingFocus_);
    return CallNextProcedure(window, message, wParam, lParam);
  }
  return CallNextProcedure(window, message, wParam, lParam);
}

void ControlView::Report(std::function<void()> gesture) {
  if (isShowing_) return;
  ++waiting_;
  stage_.post([this, gesture = std::move(gesture)] {
    --waiting_;
    touched_ = true;
    gesture();
  });
}

void ControlView::ReportFocus() {
  if (movesFocus_) return;
  stage_.post([this] { model_.UserFocus(); });
}

void ControlView::AwaitChanges() {
  if (isShowing_ || std::exchange(awaitsNews_, true)) return;
  PostMessageW(window_, kNews, 0, 0);
}

void ControlView::DiscardGestures() {
  waiting_ = 0;
  touched_ = true;
}

void ControlView::BeginGroup() {
  SetWindowLongPtrW(window_, GWL_STYLE, GetWindowLongPtrW(window_, GWL_STYLE) | WS_GROUP);
}

void ControlView::TakeFocus() {
  const Flag flag(movesFocus_);
  SetFocus(window_);
}

void ControlView::UseFonts(Fonts& fonts) {
  fonts_ = &fonts;
  dpi_ = fonts.Dpi();
  touched_ = true;
  if (window_ == nullptr) return;
  {
    const Flag flag(isShowing_);
    ShowFont();  // at once: the old fonts may be deleted, and Update waits while a gesture is pending
  }
  Update();
}

void ControlView::Update() {
  if (window_ == nullptr) return;
  if (waiting_ > 0 || awaitsNews_ || IsInTheMiddle()) return;  // The window is ahead of the model.
  if (model_.Changes() == shown_ && !std::exchange(touched_, false)) return;
  touched_ = false;
  shown_ = model_.Changes();
  const Flag flag(isShowing_);
  const bool isVisible = (GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
  if ((IsWindowEnabled(window_) != FALSE) != model_.Enabled()) EnableWindow(window_, model_.Enabled());
  if (isVisible != model_.Visible()) ShowWindow(window_, model_.Visible() ? SW_SHOWNA : SW_HIDE);
  ShowFont();
  Show();
  Spoken spoken{model_.AccessibleName(), model_.AccessibleDescription(), Role()};
  if (spoken_ != spoken) ShowSpoken(spoken_.emplace(std::move(spoken)));
}

void ControlView::ShowSpoken(const Spoken& spoken) { stage_.annotations.Set(window_, spoken); }

void ControlView::ShowFont() {
  if (fonts_ == nullptr || dynamic_cast<forms::FontControl*>(&model_) == nullptr) return;
  forms::Font wanted = model_.Font();
  wanted.Bold = wanted.Bold || IsBold();
  const HFONT font = fonts_->Find(wanted);
  if (font == font_) return;
  font_ = font;
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

std::wstring ControlView::WindowText() const {
  std::wstring text(static_cast<std::size_t>(Send(WM_GETTEXTLENGTH)), L'\0');
  text.resize(
      static_cast<std::size_t>(Send(WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

void ControlView::SetText(const std::string& text) {
  const std::wstring wanted = com::Wide(text);
  if (WindowText() != wanted) Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wanted.c_str()));
}

int ControlView::WidthOf(int characters) const {
  return (characters * CharacterSize(font_).cx) + Scaled(kTextBorders);
}

int ControlView::HeightOf(int lines) const {
  return (lines * (CharacterSize(font_).cy + Scaled(kLineGap))) + Scaled(kTextBorders / 2);
}

void ControlView::Place(const forms::Area& area) {
  SetWindowPos(window_, nullptr, area.left, area.top, area.width, area.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace plotsmith::windows
