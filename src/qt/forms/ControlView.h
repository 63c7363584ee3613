#pragma once

#include <QtWidgets/QWidget>
#include <cstdint>
#include <functional>
#include <memory>

#include "forms/Control.h"
#include "forms/PendingGestures.h"

/// Windows for forms, made with Qt Widgets. A view shows the state of the model and reports the actions of
/// the user. The model performs or refuses an action, and the view then shows the result.
namespace plotsmith::qt {

using forms::Post;

/// The view of a control. The object name of its widget is the control's full name. The parent of the widget
/// owns it.
class ControlView {
 public:
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  /// The control.
  forms::Control& Model() const { return model_; }
  /// The widget that shows the control.
  virtual QWidget& Widget() = 0;
  /// Shows the state of the control if it has changed since the last update or the user has changed the
  /// widget.
  void Update();
  /// Discards the actions that were reported but not performed.
  void DiscardGestures();

 protected:
  /// Connects a view with its control. `post` queues the user's actions.
  ControlView(forms::Control& model, Post post) : model_(model), post_(std::move(post)) {}

  /// Shows the properties of this kind of control on the widget, without reporting this as an action.
  virtual void Show() = 0;
  /// Reports an action of the user.
  void Report(std::function<void()> gesture);
  /// Sets the object name, the colour roles and the common properties of the widget. Call this after the
  /// widget is made.
  void SetUpWidget();

 private:
  void ShowColors();
  void ShowFont();

  forms::Control& model_;
  Post post_;
  std::uint64_t shown_ = 0;
  bool touched_ = true;
  int waiting_ = 0;  ///< The number of actions that were reported but not performed.
};

/// Makes the view of a control, or returns null for an invisible kind, such as a timer.
std::unique_ptr<ControlView> MakeControlView(forms::Control& control, QWidget* parent, const Post& post);

/// Returns the program's font with the properties of a form's or control's font. The model's fonts assume a
/// system font of 8 points, so sizes are scaled relative to that, and the designed typeface becomes the
/// program's.
QFont FontOf(const forms::Font& font);

}  // namespace plotsmith::qt
