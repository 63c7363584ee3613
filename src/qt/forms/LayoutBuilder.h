#pragma once

#include <functional>

#include "forms/Layout.h"

class QBoxLayout;
class QLayout;
class QWidget;

namespace plotsmith::qt {

/// Arranges the widgets of a form according to its layout. `widgetOf` returns the widget of a control.
/// Minimum sizes are in characters and lines of the widget's font.
QLayout* BuildLayout(const forms::Layout& layout,
                     const std::function<QWidget*(const forms::Control&)>& widgetOf);

}  // namespace plotsmith::qt
