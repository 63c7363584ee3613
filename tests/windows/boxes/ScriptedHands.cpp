#include "tests/windows/boxes/ScriptedHands.h"

#include <map>
#include <optional>
#include <vector>

#include "cli/FormPrinter.h"
#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"
#include "windows/views/ControlNames.h"

namespace plotsmith::test {
namespace {

using forms::Control;
using forms::ControlState;

constexpr UINT kTickInterval = 10;  // milliseconds

ScriptedHands* theHands = nullptr;  // A timer has no user data.

/// A form with the controls of a window and their states, for the script.
class SeenForm final : public forms::Form {
 public:
  explicit SeenForm(const forms::FormState& state) : Form(state.name.c_str()) {
    std::map<std::string, Control*> frames = {{"", nullptr}};
    for (const ControlState& seen : state.controls) {
      if (seen.kind == "Frame") frames[seen.name] = &Add<forms::Frame>(seen, nullptr, *seen.caption);
    }
    for (const ControlState& seen : state.controls) {
      if (Control* control = Make(seen, frames.at(seen.container))) {
        control->SetVisible(seen.visible);
        control->SetEnabled(seen.enabled);
        control->SetBackColor(seen.backColor);
      }
    }
  }

 private:
  template <class Kind, class... Arguments>
  Kind& Add(const ControlState& seen, Control* container, Arguments... arguments) {
    auto control = std::make_unique<Kind>(*this, seen.name.c_str(), container, std::move(arguments)...);
    Kind& added = *control;
    controls_.push_back(std::move(control));
    return added;
  }

  Control* Make(const ControlState& seen, Control* container) {
    if (seen.kind == "Label") return &Add<forms::Label>(seen, container, *seen.caption);
    if (seen.kind == "CommandButton") return &Add<forms::CommandButton>(seen, container, *seen.caption);
    if (seen.kind == "OptionButton") return &AddOption(seen, container);
    if (seen.kind == "CheckBox") {
      auto& box = Add<forms::CheckBox>(seen, container, *seen.caption);
      box.SetValue(*seen.value ? forms::CheckBox::kChecked : forms::CheckBox::kUnchecked);
      return &box;
    }
    if (seen.kind == "TextBox") {
      auto& box = Add<forms::TextBox>(seen, container);
      const HWND window = ControlWindow(FindWindowW(L"PlotsmithForm", nullptr), seen.name);
      box.SetMultiLine((GetWindowLongPtrW(window, GWL_STYLE) & ES_MULTILINE) != 0);
      box.SetText(*seen.text);
      return &box;
    }
    if (seen.kind == "ComboBox") return &AddCombo(seen, container);
    if (seen.kind == "ListBox") {
      auto& list = Add<forms::ListBox>(seen, container, forms::MultiSelect::kExtended);
      for (const std::string& entry : *seen.list) list.AddItem(entry);
      for (const std::int32_t entry : *seen.selected) list.SetSelected(entry, true);
      return &list;
    }
    return seen.kind == "VSFlexGrid" ? &AddGrid(seen, container) : nullptr;
  }

  /// "optType(1)" is member 1 of the array optType.
  Control& AddOption(const ControlState& seen, Control* container) {
    const auto parenthesis = seen.name.find('(');
    auto option = std::make_unique<forms::OptionButton>(*this, seen.name.substr(0, parenthesis).c_str(),
                                                        std::stoi(seen.name.substr(parenthesis + 1)),
                                                        container, *seen.caption);
    if (*seen.value) option->SetValue(true);
    controls_.push_back(std::move(option));
    return *controls_.back();
  }

  Control& AddCombo(const ControlState& seen, Control* container) {
    const HWND window = ControlWindow(FindWindowW(L"PlotsmithForm", nullptr), seen.name);
    const bool canBeTyped = (GetWindowLongPtrW(window, GWL_STYLE) & 3) == CBS_DROPDOWN;
    auto& combo = Add<forms::ComboBox>(
        seen, container, canBeTyped ? forms::ComboStyle::kDropDownCombo : forms::ComboStyle::kDropDownList);
    for (const std::string& entry : *seen.list) combo.AddItem(entry);
    combo.SetListIndex(*seen.listIndex);
    if (canBeTyped && *seen.listIndex < 0) combo.SetText(*seen.text);
    return combo;
  }

  Control& AddGrid(const ControlState& seen, Control* container) {
    const auto columns = static_cast<std::int32_t>(seen.rows->empty() ? 1 : seen.rows->front().size());
    auto& grid =
        Add<forms::VSFlexGrid>(seen, container, forms::MultiSelect::kExtended, columns, seen.fixedRows);
    grid.SetRows(static_cast<std::int32_t>(seen.rows->size()));
    for (std::int32_t row = 0; row < grid.Rows(); ++row) {
      for (std::int32_t column = 0; column < columns; ++column) {
        grid.SetTextMatrix(row, column,
                           (*seen.rows)[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
      }
    }
    for (const std::int32_t row : *seen.selected) grid.SetIsSelected(row, true);
    return grid;
  }

  std::vector<std::unique_ptr<Control>> controls_;
};

BOOL CALLBACK FindForm(HWND window, LPARAM found) {
  wchar_t name[32];
  GetClassNameW(window, name, 32);
  const bool waits =
      std::wstring_view(name) == L"PlotsmithForm" && IsWindowVisible(window) && IsWindowEnabled(window);
  if (waits) *reinterpret_cast<HWND*>(found) = window;
  return waits ? FALSE : TRUE;
}

}  // namespace

HWND WaitingForm() {
  HWND window = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindForm, reinterpret_cast<LPARAM>(&window));
  return window != nullptr && windows::WindowName(window) != "frmBusyPS" ? window : nullptr;
}

ScriptedHands::ScriptedHands(const std::string& script)
    : text_(script),
      lines_(text_),
      player_(
          lines_, [this](const forms::FormState&) { Show(); },
          std::make_unique<WindowsHand>([this] { return front_; },
                                        [this](forms::EventQueue& queue) {
                                          queue.Post(SeenForm({}), [] {
                                          });  // the messages are handled when this timer has ticked
                                        })) {
  SetDoubleClickTime(1);  // milliseconds; scripts press buttons faster than a user
  theHands = this;
  timer_ = SetTimer(nullptr, 0, kTickInterval, Tick);
}

ScriptedHands::~ScriptedHands() {
  KillTimer(nullptr, timer_);
  theHands = nullptr;
}

void CALLBACK ScriptedHands::Tick(HWND, UINT, UINT_PTR, DWORD) {
  if (theHands != nullptr) theHands->PlayLines();
}

void ScriptedHands::PlayLines() {
  front_ = WaitingForm();
  if (front_ == nullptr) return;
  SeenForm seen(StateOfWindow(front_));
  forms::EventQueue queue;
  player_.Open(seen);
  player_.Wait(queue, std::nullopt);
  player_.Close(seen);
}

int ScriptedHands::AnswerBox(const std::string& text, bool isQuestion) {
  if (isQuestion) return player_.Answer(text) ? IDOK : IDCANCEL;
  player_.AddMessage(text);
  return IDOK;
}

void ScriptedHands::Show() {
  if (shown_.tellp() > 0) shown_ << "\n";
  cli::PrintForm(shown_, StateOfWindow(front_));
}

std::string ScriptedHands::Finish() {
  player_.PlayRest();
  const auto& failure = player_.Failed();
  return failure ? "line " + std::to_string(failure->line) + ": " + failure->sentence : "";
}

}  // namespace plotsmith::test
