#include "qt/forms/PlainViews.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

#include "pages/SamplePictures.h"
#include "qt/Texts.h"
#include "qt/forms/PicturePainter.h"

namespace plotsmith::qt {
namespace {

/// A group box whose title can be bold without its contents being so.
class TitledBox final : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  void SetTitleLook(bool bold, bool flat) {
    bold_ = bold;
    setFlat(flat);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QFont font = this->font();
    font.setBold(bold_);
    painter.setFont(font);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    option.fontMetrics = QFontMetrics(font);
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
  }

 private:
  bool bold_ = false;
};

class PictureWidget final : public QWidget {
 public:
  PictureWidget(pictures::Picture picture, QWidget* parent) : QWidget(parent), picture_(std::move(picture)) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setRetainSizeWhenHidden(true);  // The page must not change its size when its picture changes.
    setSizePolicy(policy);
  }
  QSize sizeHint() const override {
    return (QSizeF(picture_.dWidth, picture_.dHeight) * logicalDpiY() / kPointsPerInch).toSize();
  }
  QSize minimumSizeHint() const override { return sizeHint() / 2; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    PaintPicture(painter, picture_, rect());
  }

 private:
  static constexpr double kPointsPerInch = 72;
  pictures::Picture picture_;
};

}  // namespace

LabelView::LabelView(forms::Label& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), label_(new QLabel(parent)) {
  label_->setTextFormat(Qt::PlainText);
  SetUpWidget();
}

void LabelView::Show() { label_->setText(TextOf(model_.Caption())); }

FrameView::FrameView(forms::Frame& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), box_(new TitledBox(parent)) {
  SetUpWidget();
}

void FrameView::Show() {
  box_->setTitle(TextOf(model_.Caption()));
  static_cast<TitledBox*>(box_)->SetTitleLook(model_.FontBold(), model_.Appearance() == forms::Frame::kFlat);
}

ImageView::ImageView(forms::Image& model, QWidget* parent, const Post& post)
    : ControlView(model, post), picture_(new PictureWidget(SamplePicture(model.Name()), parent)) {
  SetUpWidget();
}

ProgressBarView::ProgressBarView(forms::ProgressBar& model, QWidget* parent, const Post& post)
    : ControlView(model, post), model_(model), bar_(new QProgressBar(parent)) {
  bar_->setRange(forms::ProgressBar::kMin, forms::ProgressBar::kMax);
  bar_->setTextVisible(false);
  SetUpWidget();
}

void ProgressBarView::Show() { bar_->setValue(model_.Value()); }

}  // namespace plotsmith::qt
