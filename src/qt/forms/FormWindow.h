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
  /// Makes a window. It stays in front of `owner`, which may be null. `presses` is shared by all windows and
  /// must outlive them.
  FormWindow(forms::Form& form, QWidget* owner, Post post, forms::SecondPress& presses);
  ~FormWindow() override;

  /// The form.
  forms::Form& Model() const { return form_; }
  /// Shows the changes of the form.
  void Update();
  /// Activates the window when it is the front window again. Discards the actions on it that were not
  /// performed yet.
  void BecomeFront();
  /// Returns the widget of a control, or null for an invisible control.
  QWidget* WidgetOf(const forms::Control& control) const;

 protected:
  /// Tells the form that the user closes the window, which stays open until the form closes it.
  void closeEvent(QCloseEvent* event) override;
  /// Handles keys while none of the controls has the focus.
  void keyPressEvent(QKeyEvent* event) override;
  /// Reports the focus of the widgets and some of their keys to the form.
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void MakeViews();
  void SetTabOrders();
  void FitScreen();
  void UpdateFocus();
  /// Returns the control of a widget, or null for other objects.
  forms::Control* ControlOf(const QObject* object) const;
  bool TakeKey(const QWidget& widget, const QKeyEvent& event);
  bool IsSecondPress(const QMouseEvent& event);

  forms::Form& form_;
  Post post_;
  forms::SecondPress& presses_;
  QScrollArea* scroll_;
  std::vector<std::unique_ptr<ControlView>> views_;
  bool movesFocus_ = false;  ///< Whether the model is moving the focus now.
};

}  // namespace plotsmith::qt
