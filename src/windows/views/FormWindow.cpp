#include "windows/views/FormWindow.h"

#include <commctrl.h>
#include <string>
#include <utility>

#include "common/App.h"
#include "forms/Keys.h"
#include "windows/com/Texts.h"
#include "windows/views/ActivationContext.h"
#include "windows/views/Colors.h"
#include "windows/views/ControlNames.h"
#include "windows/views/KeyMessages.h"
#include "windows/views/PlainViews.h"

namespace plotsmith::windows {
namespace {

constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
constexpr DWORD kPlainExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

/// Returns true if the language of the user's locale is written from right to left.
bool IsRightToLeft() {
  if (!App.Desktop) return false;
  constexpr DWORD kFromRightToLeft = 1;
  DWORD layout = 0;
  GetLocaleInfoW(static_cast<LCID>(App.Desktop->UserDefaultLCID()),
                 LOCALE_IREADINGLAYOUT | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&layout),
                 sizeof layout / sizeof(wchar_t));
  return layout == kFromRightToLeft;
}

/// The extended style of a form's window. The children of a mirrored window are mirrored, too.
DWORD ExtendedStyle() {
  return IsRightToLeft() ? kPlainExtendedStyle | WS_EX_LAYOUTRTL : kPlainExtendedStyle;
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, HWND owner, Post post, forms::SecondPress& presses)
    : form_(form), post_(std::move(post)) {
  const ActivationContext context;
  // The window gets the resolution of the monitor on which it is created.
  const POINT middle = MiddleAround(owner);
  window_ = CreateWindowExW(ExtendedStyle(), ClassName(), com::Wide(form.Caption()).c_str(), kStyle, middle.x,
                            middle.y, 0, 0, owner, nullptr, OwnModule(), this);
  SetWindowName(window_, form.Name());
  views_ = std::make_unique<ControlViews>(form, Stage{window_, post_, annotations_}, presses);
  page_ = std::make_unique<ScrolledPage>(window_, form, *views_);
  page_->FitScreen(owner);
  form.hWnd = reinterpret_cast<std::intptr_t>(window_);
}

// Windows doesn't activate a disabled window. An earlier page may still keep the host's window disabled, and
// without this call Windows would bring another program to the front.
void FormWindow::GiveUpActivation() {
  const HWND owner = GetWindow(window_, GW_OWNER);
  if (owner != nullptr && GetActiveWindow() == window_) SetActiveWindow(owner);
}

FormWindow::~FormWindow() {
  disabledWindows_.reset();
  form_.hWnd = 0;
  // Messages that arrive from here on don't find the page or the views any more.
  if (window_ != nullptr) SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  page_.reset();
  views_.reset();
  if (window_ == nullptr) return;
  RemoveWindowName(window_);
  GiveUpActivation();
  DestroyWindow(std::exchange(window_, nullptr));
}

const wchar_t* FormWindow::ClassName() {
  // The class is unregistered with the module; otherwise a module that is loaded again couldn't register it.
  static const struct WindowClass {
    WindowClass() {
      WNDCLASSEXW own = {};
      own.cbSize = sizeof own;
      own.lpfnWndProc = Procedure;
      own.hInstance = OwnModule();
      own.hCursor = LoadCursorW(nullptr, IDC_ARROW);
      own.lpszClassName = L"PlotsmithForm";
      atom = RegisterClassExW(&own);
    }
    ~WindowClass() { UnregisterClassW(MAKEINTATOM(atom), OwnModule()); }
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

    ATOM atom = 0;
  } windowClass;
  return MAKEINTATOM(windowClass.atom);
}

void FormWindow::ShowOnScreen() {
  disabledWindows_.emplace();
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  UpdateWindow(window_);
}

void FormWindow::Update() {
  if (window_ == nullptr) return;
  const std::wstring caption = com::Wide(form_.Caption());
  std::wstring shown(caption.size() + 2, L'\0');
  shown.resize(
      static_cast<std::size_t>(GetWindowTextW(window_, shown.data(), static_cast<int>(shown.size()))));
  if (shown != caption) SetWindowTextW(window_, caption.c_str());
  for (const auto& view : *views_) view->Update();
  if (!form_.Visible()) {
    GiveUpActivation();
    ShowWindow(window_, SW_HIDE);
  } else if (IsWindowVisible(window_)) {
    UpdateFocus();
  }
}

void FormWindow::BecomeFront() {
  for (const auto& view : *views_) view->DiscardGestures();
  if (form_.Visible() && window_ != nullptr) SetActiveWindow(window_);
}

ControlView* FormWindow::FocusView() const {
  HWND window = GetFocus();
  while (window != nullptr && GetParent(window) != window_) window = GetAncestor(window, GA_PARENT);
  return ControlView::Of(window);
}

void FormWindow::UpdateFocus() {
  const forms::Control* const active = form_.ActiveControl();
  ControlView* const view = active == nullptr ? nullptr : views_->Find(*active);
  if (view == nullptr || view == FocusView()) return;
  if (GetActiveWindow() != window_) {
    lastFocus_ = view->Window();
    return;
  }
  view->TakeFocus();
  page_->Show(*view);
}

bool FormWindow::TakeMessage(MSG& message) {
  if (window_ == nullptr) return false;
  const bool isOurs = message.hwnd == window_ || IsChild(window_, message.hwnd);
  if (!isOurs) return false;
  if (message.message == WM_KEYDOWN && TakeKey(message)) return true;
  const ControlView* const focus = FocusView();
  if (message.message == WM_KEYDOWN && message.wParam == VK_RETURN && focus != nullptr &&
      forms::TakesEnter(&focus->Model())) {
    return false;  // The text box inserts a new line.
  }
  return IsDialogMessageW(window_, &message) != FALSE;
}

// An open list handles Enter and Escape itself.
bool FormWindow::TakeKey(const MSG& message) {
  const forms::KeyPress press = KeyPressOf(message);
  const ControlView* const focus = FocusView();
  const bool isInLines = focus != nullptr && forms::TakesEnter(&focus->Model());
  if (press.key == forms::Key::kOther || (press.key == forms::Key::kEnter && isInLines)) return false;
  if (focus != nullptr && SendMessageW(focus->Window(), CB_GETDROPPEDSTATE, 0, 0) == TRUE) return false;
  if (!forms::IsHeldKey(press, isInLines)) post_([this, key = press.key] { forms::UserKey(form_, key); });
  return true;
}

// No exception may leave a window procedure. Only a lack of memory can cause one; the message is then lost.
LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* const creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  auto* const form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr || form->window_ != window) return DefWindowProcW(window, message, wParam, lParam);
  try {
    return form->Handle(message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

LRESULT FormWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = HandleControl(message, wParam, lParam)) return *answer;
  if (page_ != nullptr) {
    if (const auto answer = page_->Handle(message, wParam, lParam)) return *answer;
  }
  switch (message) {
    case WM_CLOSE:
      post_([this] { form_.UserClose(); });  // The form decides, and destroys its window when it closes.
      return 0;
    case WM_DESTROY:  // The host has destroyed the window.
      RemoveWindowName(window_);
      form_.hWnd = 0;
      window_ = nullptr;
      disabledWindows_.reset();
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) {
        if (FocusView() != nullptr) lastFocus_ = GetFocus();
      } else if (ControlView* const view = ControlView::Of(lastFocus_)) {
        view->TakeFocus();
      } else {
        SetFocus(IsWindow(lastFocus_) ? lastFocus_ : window_);
      }
      return 0;
    case WM_NEXTDLGCTL:  // moves the focus to a window, or to the next or previous one
      SetFocus(LOWORD(lParam) != 0 ? reinterpret_cast<HWND>(wParam)
                                   : GetNextDlgTabItem(window_, GetFocus(), wParam != 0));
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      for (const auto& view : *views_) SendMessageW(view->Window(), message, wParam, lParam);
      RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      return 0;
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

/// Handles messages about controls.
std::optional<LRESULT> FormWindow::HandleControl(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (ControlView* const view = ControlView::Of(reinterpret_cast<HWND>(lParam)))
        view->OnCommand(HIWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      ControlView* const view = ControlView::Of(header.hwndFrom);
      return view == nullptr ? std::nullopt : view->OnNotify(header);
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (ControlView* const view = ControlView::Of(item.hwndItem)) view->OnDraw(item);
      return TRUE;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
      return ColorOf(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_ERASEBKGND:
      Erase(reinterpret_cast<HDC>(wParam));
      return TRUE;
    case WM_PRINTCLIENT:  // A themed control asks for its background.
      Erase(reinterpret_cast<HDC>(wParam));
      return 0;
    default:
      return std::nullopt;
  }
}

// The controls in a marked frame have the frame's colour, unless they have their own.
void FormWindow::Erase(HDC context) const {
  RECT area = {};
  GetClientRect(window_, &area);
  FillRect(context, &area, PaintOf(forms::kButtonFace).background);
  for (const auto& view : *views_) {
    const auto* const frame = dynamic_cast<const FrameView*>(view.get());
    if (frame == nullptr || frame->Model().BackColor() == forms::kButtonFace) continue;
    area = frame->InnerArea();
    FillRect(context, &area, PaintOf(frame->Model().BackColor()).background);
  }
}

// The parts of a combo box have its colour. An open list is not a child of the combo box, and keeps the
// system's colour.
LRESULT FormWindow::ColorOf(HDC context, HWND control) const {
  const ControlView* view = ControlView::Of(control);
  if (view == nullptr) view = ControlView::Of(GetAncestor(control, GA_PARENT));
  const Paint paint = PaintOf(view == nullptr ? forms::kWhite : view->Model().BackColor());
  const bool isOff = view != nullptr && !view->Model().Enabled();
  SetBkColor(context, paint.backColor);
  SetTextColor(context, isOff ? GetSysColor(COLOR_GRAYTEXT) : paint.textColor);
  return reinterpret_cast<LRESULT>(paint.background);
}

}  // namespace plotsmith::windows
