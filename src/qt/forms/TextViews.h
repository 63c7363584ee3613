#pragma once

#include <memory>

#include "forms/TextBox.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

/// Makes the view of a text box with one line or with several lines.
std::unique_ptr<ControlView> MakeTextBoxView(forms::TextBox& model, QWidget* parent, const Post& post);

/// Returns the text for a single-line box. Line breaks and characters that can't be typed become blanks.
QString OneLine(QString text);

}  // namespace plotsmith::qt
