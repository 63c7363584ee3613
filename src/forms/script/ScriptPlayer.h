#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/ModalLoop.h"
#include "forms/script/FormState.h"
#include "forms/script/Hand.h"
#include "forms/script/LineSource.h"
#include "forms/script/ScriptLine.h"

namespace plotsmith::forms {

/// A view without a screen, in which a script replaces the user. After the first line that fails, the player
/// executes no more lines: it closes every form as a user would, and answers questions with Cancel. At the
/// end of the script it closes all open forms.
class ScriptPlayer final : public View {
 public:
  /// The line at which the script failed, and the reason.
  struct Failure {
    std::size_t line;      ///< The line number, from 1.
    std::string sentence;  ///< The reason, without a full stop.
  };
  /// A function that prints the state of a form.
  using Show = std::function<void(const FormState& state)>;

  /// Makes a player. `lines` must outlive it. `show` prints the state of a form.
  ScriptPlayer(LineSource& lines, Show show, std::unique_ptr<Hand> hand = std::make_unique<ModelHand>());

  void Open(Form& form) override { open_.push_back(&form); }
  void Close(Form&) override { open_.pop_back(); }
  void Wait(EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(EventQueue&) override {}

  /// Reports a message box to the player.
  void AddMessage(std::string_view text);
  /// Reports a question with OK and Cancel to the player. Returns true if the script answers OK.
  bool Answer(std::string_view text);
  /// Executes the rest of the script after the run, when no form is open.
  void PlayRest();

  /// The front form, or null if no form is open.
  const Form* Front() const;
  /// The failure, or nothing if no line has failed.
  const std::optional<Failure>& Failed() const { return failure_; }
  /// The state of the form that was open at the end of the script. It is absent if the run ended earlier.
  const std::optional<FormState>& LastState() const { return lastState_; }

 private:
  /// Executes the next line on the form that waits, if any. Returns false at the end of the script.
  bool PlayLine(Form* form, EventQueue* queue);
  void Play(const Words& words, Form* form, EventQueue* queue);
  void PlayPage(const Words& words, const Form* form) const;
  void PlayAnswer(const Words& words);
  void PlayExpect(const Words& words, const Form* form);
  static void ExpectText(std::deque<std::string>& heard, const char* kind, const std::string& text);
  static void ExpectProperty(const Form& form, const std::string& property, const std::string& value);
  /// Throws ScriptError if there was a message box that no line has expected.
  void CheckMessages() const;
  void Fail(const std::string& sentence);

  LineSource& lines_;
  Show show_;
  std::unique_ptr<Hand> hand_;
  std::vector<Form*> open_;
  std::size_t line_ = 0;
  bool ended_ = false;
  std::deque<std::string> messages_;   ///< Not expected yet.
  std::deque<std::string> questions_;  ///< Not expected yet.
  std::deque<bool> answers_;           ///< Given in advance; true means OK.
  std::optional<Failure> failure_;
  std::optional<FormState> lastState_;
};

}  // namespace plotsmith::forms
