#pragma once

#include <QtCore/QString>
#include <QtWidgets/QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "forms/Control.h"

/// Windows for forms, on Qt Widgets. A view shows the state of the model and reports what hands do. It
/// decides nothing: the model refuses a gesture or performs it, and the view then shows what came of it.
namespace plotsmith::qt {

/// Takes a gesture down. It is performed later, outside of Qt's callbacks.
using Post = std::function<void(std::function<void()> gesture)>;

/// A text of the model, which is UTF-8, and back.
///@{
inline QString TextOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string TextOf(const QString& text) { return text.toStdString(); }
///@}

/// A widget that shows one control. The widget's object name is the control's full name. Its owner is the
/// widget's parent.
class ControlView {
 public:
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  forms::Control& Model() const { return model_; }
  virtual QWidget& Widget() = 0;
  /// Shows the state of the control, if it has changed since the last time or a hand has touched the widget.
  void Update();
  /// Gestures that were reported and not performed by now never will be.
  void ForgetGestures();

 protected:
  ControlView(forms::Control& model, Post post) : model_(model), post_(std::move(post)) {}

  /// Puts what the kind of control has of its own on the widget, without reporting that as a gesture.
  virtual void Show() = 0;
  /// Reports a gesture.
  void Report(std::function<void()> gesture);
  /// Gives the widget the name, the role of the colours, and what all kinds share. Called once the widget is
  /// made.
  void Dress();

 private:
  void ShowColors();
  void ShowFont();

  forms::Control& model_;
  Post post_;
  std::uint64_t shown_ = 0;
  bool touched_ = true;
  int waiting_ = 0;  ///< gestures that were reported and not performed yet
};

/// The view for a control; null for a kind that isn't seen, such as a timer.
std::unique_ptr<ControlView> MakeControlView(forms::Control& control, QWidget* parent, const Post& post);

/// The font of the program, as a form or a control wants it. The model's fonts are made for a system whose
/// own size is 8 points, so sizes are in proportion to that, and its designed typeface means the program's.
QFont FontOf(const forms::Font& font);

}  // namespace plotsmith::qt
