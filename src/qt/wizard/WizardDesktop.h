#pragma once

#include <QtCore/QElapsedTimer>
#include <memory>
#include <string>

#include "cli/ConsoleDesktop.h"
#include "qt/forms/QtView.h"

namespace plotsmith::qt {

class HelpWindow;

/// The desktop of a person: message boxes are windows, and help is a window too.
class WizardDesktop final : public cli::ConsoleDesktop {
 public:
  explicit WizardDesktop(std::shared_ptr<QtView> pages);
  ~WizardDesktop() override;

  /// In front of the page that is open.
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  /// The help is the program's own, so `file` isn't asked for.
  void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) override;
  /// The system asks for the time in the middle of its work, wherever it could yield. Often enough for a
  /// person, but no more often, windows may work then.
  double Timer() override;
  void SetMousePointer(std::int32_t pointer) override;

  /// The window that messages stay in front of while no page is open; null for none.
  void SetOwner(QWidget* owner) { owner_ = owner; }
  /// Whether a question was answered with OK since the last call of Forget. The system has one question only,
  /// which precedes a deletion.
  bool Confirmed() const { return confirmed_; }
  void Forget() { confirmed_ = false; }
  /// The window of the help, which is made when it is first asked for.
  HelpWindow& Help();

 private:
  QWidget* Owner() const;

  std::shared_ptr<QtView> pages_;
  QWidget* owner_ = nullptr;
  std::unique_ptr<HelpWindow> help_;
  bool confirmed_ = false;
  bool yields_ = false;
  QElapsedTimer sinceYield_;
};

}  // namespace plotsmith::qt
