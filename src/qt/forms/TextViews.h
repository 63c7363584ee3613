#pragma once

#include <memory>

#include "forms/TextBox.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

/// A box for one line, or for several ones.
std::unique_ptr<ControlView> MakeTextBoxView(forms::TextBox& model, QWidget* parent, const Post& post);

/// The text as a box for one line takes it. A line break that was pasted, or a character that can't be typed,
/// becomes a blank.
QString OneLine(QString text);

}  // namespace plotsmith::qt
