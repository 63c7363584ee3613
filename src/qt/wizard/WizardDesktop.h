#pragma once

#include <QtCore/QElapsedTimer>
#include <memory>
#include <string>

#include "cli/ConsoleDesktop.h"
#include "qt/forms/QtView.h"

namespace plotsmith::qt {

class HelpWindow;

/// A desktop with windows for message boxes and help.
class WizardDesktop final : public cli::ConsoleDesktop {
 public:
  /// Makes a desktop whose message boxes are modal to the windows of `pages`.
  explicit WizardDesktop(std::shared_ptr<QtView> pages);
  ~WizardDesktop() override;

  /// Shows a message box in front of the open page.
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  /// Shows a topic of the built-in help. `file` isn't used.
  void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) override;
  /// Returns the time. The system calls this during its work wherever it can yield, so this also updates the
  /// windows from time to time.
  double Timer() override;
  void SetMousePointer(std::int32_t pointer) override;

  /// Sets the window that messages stay in front of if no page is open; null for none.
  void SetOwner(QWidget* owner) { owner_ = owner; }
  /// The help window, which is made at the first call.
  HelpWindow& Help();

 private:
  QWidget* Owner() const;

  std::shared_ptr<QtView> pages_;
  QWidget* owner_ = nullptr;
  std::unique_ptr<HelpWindow> help_;
  bool yields_ = false;
  QElapsedTimer sinceYield_;
};

}  // namespace plotsmith::qt
