#pragma once

#include <functional>

#include "forms/Layout.h"

class QBoxLayout;
class QLayout;
class QWidget;

namespace plotsmith::qt {

/// Arranges the widgets of a form by its layout. `widgetOf` gives the widget of a control. Least sizes are in
/// characters and lines of each widget's font.
QLayout* BuildLayout(const forms::Layout& layout,
                     const std::function<QWidget*(const forms::Control&)>& widgetOf);

}  // namespace plotsmith::qt
