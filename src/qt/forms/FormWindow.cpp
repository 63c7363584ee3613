#include "qt/forms/FormWindow.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QStyleHints>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>
#include <utility>

#include "qt/Texts.h"
#include "qt/forms/HeldKeys.h"
#include "qt/forms/LayoutBuilder.h"

namespace plotsmith::qt {
namespace {

constexpr Qt::WindowFlags kDialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

/// Returns the frame that the window manager gives a window with this owner, which may be null. The frame is
/// unknown until the window is shown, but it is about the same as the owner's.
QMargins FrameOf(const QWidget* owner) {
  if (owner == nullptr) return {};
  const QRect inside = owner->window()->geometry(), outside = owner->window()->frameGeometry();
  return {inside.left() - outside.left(), inside.top() - outside.top(), outside.right() - inside.right(),
          outside.bottom() - inside.bottom()};
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, QWidget* owner, Post post, forms::SecondPress& presses)
    : QWidget(owner, kDialogFlags),
      form_(form),
      post_(std::move(post)),
      presses_(presses),
      scroll_(new QScrollArea(this)) {
  setObjectName(TextOf(form.Name()));
  setFont(FontOf(form.Font()));
  MakeViews();
  Update();
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(scroll_);
  QLayout* const layout =
      BuildLayout(form.Layout(), [this](const forms::Control& control) { return WidgetOf(control); });
  const int margin = fontMetrics().height() / 2;
  layout->setContentsMargins(margin, margin, margin, margin);
  scroll_->widget()->setLayout(layout);
  SetTabOrders();
  FitScreen();
  form.hWnd = static_cast<std::intptr_t>(winId());
}

FormWindow::~FormWindow() { form_.hWnd = 0; }

void FormWindow::MakeViews() {
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidgetResizable(true);
  scroll_->setWidget(new QWidget);
  const Post post = [this](std::function<void()> gesture) { post_(std::move(gesture)); };
  for (forms::Control* control : form_.Controls()) {
    QWidget* parent = control->Container() == nullptr ? nullptr : WidgetOf(*control->Container());
    auto view = MakeControlView(*control, parent == nullptr ? scroll_->widget() : parent, post);
    if (view == nullptr) continue;
    view->Widget().installEventFilter(this);
    views_.push_back(std::move(view));
  }
}

QWidget* FormWindow::WidgetOf(const forms::Control& control) const {
  for (const auto& view : views_) {
    if (&view->Model() == &control) return &view->Widget();
  }
  return nullptr;
}

forms::Control* FormWindow::ControlOf(const QObject* object) const {
  for (const auto& view : views_) {
    if (&view->Widget() == object) return &view->Model();
  }
  return nullptr;
}

void FormWindow::SetTabOrders() {
  QWidget* previous = nullptr;
  for (const auto& view : views_) {
    QWidget& widget = view->Widget();
    if (widget.focusPolicy() == Qt::NoFocus) continue;
    if (previous != nullptr) setTabOrder(previous, &widget);
    previous = &widget;
  }
}

// Makes a page that is larger than the screen with its frame scrollable.
void FormWindow::FitScreen() {
  const QSize wanted = scroll_->widget()->sizeHint();
  const QMargins frame = FrameOf(parentWidget());
  const QRect available = screen()->availableGeometry().marginsRemoved(frame);
  setMinimumSize(scroll_->widget()->minimumSizeHint().boundedTo(available.size()));
  resize(wanted.boundedTo(available.size()));
  const QRect middle = parentWidget() == nullptr ? available : parentWidget()->window()->geometry();
  QRect place = rect();
  place.moveCenter(middle.center());
  place.moveLeft(std::max(available.left(), std::min(place.left(), available.right() - place.width())));
  place.moveTop(std::max(available.top(), std::min(place.top(), available.bottom() - place.height())));
  move(place.topLeft() - QPoint(frame.left(), frame.top()));  // This is the place of the frame.
}

void FormWindow::Update() {
  setWindowTitle(TextOf(form_.Caption()));
  for (const auto& view : views_) view->Update();
  if (!form_.Visible()) {
    hide();
  } else if (isVisible()) {
    UpdateFocus();
  }
}

void FormWindow::BecomeFront() {
  for (const auto& view : views_) view->DiscardGestures();
  if (form_.Visible()) activateWindow();
}

void FormWindow::UpdateFocus() {
  const forms::Control* const active = form_.ActiveControl();
  QWidget* const widget = active == nullptr ? nullptr : WidgetOf(*active);
  if (widget == nullptr || widget == focusWidget()) return;
  movesFocus_ = true;
  widget->setFocus(Qt::OtherFocusReason);
  scroll_->ensureWidgetVisible(widget);
  movesFocus_ = false;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();  // The form decides. The window closes when the form does.
  post_([this] { form_.UserClose(); });
}

bool FormWindow::eventFilter(QObject* object, QEvent* event) {
  forms::Control* const control = ControlOf(object);
  if (control == nullptr) return false;
  switch (event->type()) {
    case QEvent::FocusIn: {
      scroll_->ensureWidgetVisible(static_cast<QWidget*>(object));
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      const bool isReturn = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
      if (!movesFocus_ && !isReturn) post_([control] { control->UserFocus(); });
      return false;
    }
    case QEvent::KeyPress:
      return TakeKey(static_cast<QWidget&>(*object), static_cast<QKeyEvent&>(*event));
    case QEvent::Wheel: {
      // The wheel scrolls the page and must not change a combo box below the pointer.
      const auto* box = qobject_cast<QComboBox*>(object);
      if (box == nullptr || box->hasFocus()) return false;
      event->ignore();
      return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return qobject_cast<QPushButton*>(object) != nullptr &&
             IsSecondPress(static_cast<QMouseEvent&>(*event));
    default:
      return false;
  }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (!TakeKey(*this, *event)) QWidget::keyPressEvent(event);
}

bool FormWindow::TakeKey(const QWidget& widget, const QKeyEvent& event) {
  const forms::Key key = KeyPressOf(event).key;
  const bool isInLines = qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
  if (key == forms::Key::kOther || (key == forms::Key::kEnter && isInLines)) return false;
  post_([this, key] { forms::UserKey(form_, key); });
  return true;
}

bool FormWindow::IsSecondPress(const QMouseEvent& event) {
  const QPoint place = event.globalPosition().toPoint();
  const bool isSecond =
      presses_.Note({event.timestamp(), place.x(), place.y()},
                    {static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval()),
                     QGuiApplication::styleHints()->mouseDoubleClickDistance()});
  return isSecond || event.type() == QEvent::MouseButtonDblClick;
}

}  // namespace plotsmith::qt
