#include "windows/views/PlainViews.h"

#include <commctrl.h>
#include <oleacc.h>

#include "pages/SamplePictures.h"
#include "windows/com/Texts.h"
#include "windows/views/Colors.h"
#include "windows/views/PicturePainter.h"

namespace plotsmith::windows {
namespace {

// Lengths at 96 dots per inch.
constexpr int kTitleMargin = 12, kFrameMargin = 9;
constexpr int kBarHeight = 17;
constexpr int kLabelMargin = 2;
constexpr double kPointsPerInch = 72;

}  // namespace

LabelView::LabelView(forms::Label& model, const Stage& stage)
    : ControlView(model, stage, {WC_STATICW, SS_LEFT | SS_NOPREFIX}), model_(model) {}

// In some fonts a last "t" or "f" is painted past the width of the text.
forms::Size LabelView::LeastSize() const {
  const SIZE text = TextSize(Font(), com::Wide(model_.Caption()));
  return {static_cast<int>(text.cx) + Scaled(kLabelMargin), static_cast<int>(text.cy)};
}

FrameView::FrameView(forms::Frame& model, const Stage& stage)
    : ControlView(model, stage, {WC_BUTTONW, BS_GROUPBOX, WS_EX_TRANSPARENT}), model_(model) {}

// The title always has room for bold text.
forms::Size FrameView::LeastSize() const {
  const SIZE text = TextSize(Font(), com::Wide(model_.Caption()));
  return {static_cast<int>(text.cx) * 5 / 4 + 2 * Scaled(kTitleMargin), static_cast<int>(text.cy)};
}

forms::Edges FrameView::Edges() const {
  const int margin = Scaled(kFrameMargin);
  return {margin, static_cast<int>(CharacterSize(Font()).cy) + margin / 2, margin, margin};
}

RECT FrameView::InnerArea() const {
  RECT area = {};
  GetWindowRect(Window(), &area);
  MapWindowPoints(nullptr, GetParent(Window()), reinterpret_cast<POINT*>(&area), 2);
  area.top += CharacterSize(Font()).cy / 2;
  return area;
}

void FrameView::Show() {
  SetText(model_.Caption());
  const LONG_PTR style = GetWindowLongPtrW(Window(), GWL_STYLE);
  const bool isFlat = model_.Appearance() == forms::Frame::kFlat;
  const LONG_PTR wanted = isFlat ? style | BS_FLAT : style & ~static_cast<LONG_PTR>(BS_FLAT);
  if (style != wanted) SetWindowLongPtrW(Window(), GWL_STYLE, wanted);
  if (std::exchange(shownColor_, model_.BackColor()) == model_.BackColor() && style == wanted) return;
  RECT area;
  GetWindowRect(Window(), &area);
  MapWindowPoints(nullptr, GetParent(Window()), reinterpret_cast<POINT*>(&area), 2);
  RedrawWindow(GetParent(Window()), &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

ImageView::ImageView(forms::Image& model, const Stage& stage)
    : ControlView(model, stage, {WC_STATICW, SS_OWNERDRAW}),
      model_(model),
      picture_(SamplePicture(model.Name())) {
  // Charts are not mirrored in right-to-left languages.
  const LONG_PTR style = GetWindowLongPtrW(Window(), GWL_EXSTYLE);
  SetWindowLongPtrW(Window(), GWL_EXSTYLE, style & ~static_cast<LONG_PTR>(WS_EX_LAYOUTRTL));
}

// A picture may be shown smaller than its natural size.
forms::Size ImageView::LeastSize() const {
  const double scale = Scaled(USER_DEFAULT_SCREEN_DPI) / kPointsPerInch * 3 / 4;
  return {static_cast<int>(picture_.dWidth * scale), static_cast<int>(picture_.dHeight * scale)};
}

void ImageView::OnDraw(const DRAWITEMSTRUCT& item) {
  const forms::Control* const frame = model_.Container();
  const Paint paint = PaintOf(frame == nullptr ? forms::kButtonFace : frame->BackColor());
  PaintPicture(item.hDC, picture_, item.rcItem, paint.background);
}

LONG ImageView::Role() const { return ROLE_SYSTEM_GRAPHIC; }

ProgressBarView::ProgressBarView(forms::ProgressBar& model, const Stage& stage)
    : ControlView(model, stage, {PROGRESS_CLASSW, 0}), model_(model) {
  Send(PBM_SETRANGE32, forms::ProgressBar::kMin, forms::ProgressBar::kMax);
}

forms::Size ProgressBarView::LeastSize() const { return {Scaled(kBarHeight) * 6, Scaled(kBarHeight)}; }

void ProgressBarView::Show() { Send(PBM_SETPOS, static_cast<WPARAM>(model_.Value())); }

}  // namespace plotsmith::windows
