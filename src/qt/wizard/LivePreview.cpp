#include "qt/wizard/LivePreview.h"

#include <utility>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/TextBox.h"

namespace plotsmith::qt {
namespace {

constexpr int kPause = 150;  // milliseconds

/// Returns the user's input in a control.
std::string InputOf(const forms::Control& control) {
  if (const auto* text = dynamic_cast<const forms::TextBox*>(&control)) return text->Text();
  if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control)) return combo->Text();
  if (const auto* box = dynamic_cast<const forms::CheckBox*>(&control)) return std::to_string(box->Value());
  if (const auto* option = dynamic_cast<const forms::OptionButton*>(&control))
    return option->Value() ? "1" : "0";
  std::string selected;
  if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
    for (std::int32_t i = 0; i < list->ListCount(); ++i) selected += list->Selected(i) ? '1' : '0';
  }
  return selected;
}

std::string InputOf(const forms::Form& form) {
  std::string all = std::to_string(form.Id());
  for (const forms::Control* control : form.Controls()) all += '\0' + InputOf(*control);
  return all;
}

}  // namespace

LivePreview::LivePreview(QtView& pages, std::shared_ptr<xlsx::Application> host, QWidget* owner)
    : pages_(pages),
      host_(std::move(host)),
      window_(owner),
      worker_([this](Preview preview) { window_.Show(std::move(preview)); }) {
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  QObject::connect(&pause_, &QTimer::timeout, &window_, [this] { Begin(); });
  window_.Resized = [this] { StartAgain(); };
}

LayoutPage* LivePreview::Page() const {
  FormWindow* const front = pages_.Front();
  return front != nullptr && front->isVisible() ? dynamic_cast<LayoutPage*>(&front->Model()) : nullptr;
}

void LivePreview::StartAgain() {
  worker_.Stop();
  seen_.clear();
  Update();
}

void LivePreview::Update() {
  const LayoutPage* const page = Page();
  if (page == nullptr) {
    worker_.Stop();
    pause_.stop();
    seen_.clear();
    window_.Clear();
    window_.hide();
    return;
  }
  if (!PreviewWorker::IsPossible() || window_.WasClosed()) return;
  std::string input = InputOf(*page);
  if (input == seen_) return;
  seen_ = std::move(input);
  worker_.Stop();
  pause_.start();
}

void LivePreview::Begin() {
  LayoutPage* const page = Page();
  if (page == nullptr) return;
  // The page is busy or shows a message, so wait.
  if (!pages_.IsWaiting()) return pause_.start();
  window_.ShowBeside(*pages_.Front());
  if (!window_.isVisible()) return;
  const QSize room = window_.Room();
  worker_.Start([page, host = host_, room] { return RunPreview(*page, host, room); });
}

void LivePreview::Restart() { window_.Reopen(); }

}  // namespace plotsmith::qt
