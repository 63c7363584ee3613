#pragma once

#include <QtWidgets/QScrollArea>
#include <QtWidgets/QWidget>
#include <memory>
#include <vector>

#include "forms/Form.h"
#include "forms/SecondPress.h"
#include "qt/forms/ControlView.h"

class QMouseEvent;
class QKeyEvent;

namespace plotsmith::qt {

/// The window of a form.
class FormWindow final : public QWidget {
 public:
  /// `owner` is the window that this one stays in front of; null if there is none. `presses` is shared by
  /// all windows, and outlives them.
  FormWindow(forms::Form& form, QWidget* owner, Post post, forms::SecondPress& presses);
  ~FormWindow() override;

  forms::Form& Model() const { return form_; }
  /// Shows the state of the form, where it has changed.
  void Update();
  /// The window is in front again. Gestures on it were dropped while it wasn't.
  void ComeBack();
  /// The widget of a control; null for a control that isn't seen.
  QWidget* WidgetOf(const forms::Control& control) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  /// Keys go to the window itself while none of its controls has the focus.
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void MakeViews();
  void SetTabOrders();
  void FitScreen();
  void UpdateFocus();
  /// The control whose widget this is; null for other objects.
  forms::Control* ControlOf(const QObject* object) const;
  bool TakeKey(const QWidget& widget, const QKeyEvent& event);
  bool IsSecondPress(const QMouseEvent& event);

  forms::Form& form_;
  Post post_;
  forms::SecondPress& presses_;
  QScrollArea* scroll_;
  std::vector<std::unique_ptr<ControlView>> views_;
  bool movesFocus_ = false;  ///< the focus moves because the model says so
};

}  // namespace plotsmith::qt
