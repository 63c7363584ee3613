#pragma once

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

#include "forms/Plain.h"
#include "qt/forms/ControlView.h"

namespace plotsmith::qt {

/// The view of a label.
class LabelView final : public ControlView {
 public:
  /// Makes the label for `model`. `post` queues the user's actions.
  LabelView(forms::Label& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *label_; }

 protected:
  void Show() override;

 private:
  forms::Label& model_;
  QLabel* label_;
};

/// The view of a frame. The views of the controls inside are its children.
class FrameView final : public ControlView {
 public:
  /// Makes the frame for `model`. `post` queues the user's actions.
  FrameView(forms::Frame& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *box_; }

 protected:
  void Show() override;

 private:
  forms::Frame& model_;
  QGroupBox* box_;
};

/// The view of a sample picture. The control's name identifies the picture.
class ImageView final : public ControlView {
 public:
  /// Makes the picture for `model`. `post` queues the user's actions.
  ImageView(forms::Image& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *picture_; }

 protected:
  void Show() override {}

 private:
  QWidget* picture_;
};

/// The view of a progress bar.
class ProgressBarView final : public ControlView {
 public:
  /// Makes the progress bar for `model`. `post` queues the user's actions.
  ProgressBarView(forms::ProgressBar& model, QWidget* parent, const Post& post);
  QWidget& Widget() override { return *bar_; }

 protected:
  void Show() override;

 private:
  forms::ProgressBar& model_;
  QProgressBar* bar_;
};

}  // namespace plotsmith::qt
