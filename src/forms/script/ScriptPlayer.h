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

/// A view without a screen, on which a script takes the place of the hands. After the first line that can't
/// be done it plays no more: from then on it closes every form as a hand would, and answers questions with
/// Cancel. At the end of the script it closes what is still open.
class ScriptPlayer final : public View {
 public:
  /// Where and why the script failed.
  struct Failure {
    std::size_t line;      ///< from 1
    std::string sentence;  ///< without a full stop
  };
  using Show = std::function<void(const FormState& state)>;

  /// `lines` must outlive the player. `show` prints a form's state.
  ScriptPlayer(LineSource& lines, Show show, std::unique_ptr<Hand> hand = std::make_unique<ModelHand>());

  void Open(Form& form) override { open_.push_back(&form); }
  void Close(Form&) override { open_.pop_back(); }
  void Wait(EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(EventQueue&) override {}

  /// A message box came up.
  void Heard(std::string_view text);
  /// An OK/Cancel question came up: whether the script answers OK.
  bool Answer(std::string_view text);
  /// Plays what is left of the script when the run is over and no form is open.
  void PlayRest();

  /// The form on the screen that is in front of all others; null while there is none.
  const Form* Front() const;
  /// Absent as long as all is well.
  const std::optional<Failure>& Failed() const { return failure_; }
  /// The form that was open at the end of the script, as it was then; absent if the run was over before.
  const std::optional<FormState>& LastState() const { return lastState_; }

 private:
  /// Plays the next line, with the form that waits if there is one; false at the end of the script.
  bool PlayLine(Form* form, EventQueue* queue);
  void Play(const Words& words, Form* form, EventQueue* queue);
  void PlayPage(const Words& words, const Form* form) const;
  void PlayAnswer(const Words& words);
  void PlayExpect(const Words& words, const Form* form);
  static void ExpectText(std::deque<std::string>& heard, const char* kind, const std::string& text);
  static void ExpectProperty(const Form& form, const std::string& property, const std::string& value);
  /// A ScriptError if a message box came up that no line has expected.
  void CheckMessages() const;
  void Fail(const std::string& sentence);

  LineSource& lines_;
  Show show_;
  std::unique_ptr<Hand> hand_;
  std::vector<Form*> open_;
  std::size_t line_ = 0;
  bool ended_ = false;
  std::deque<std::string> messages_;   ///< not expected yet
  std::deque<std::string> questions_;  ///< not expected yet
  std::deque<bool> answers_;           ///< given in advance; true is OK
  std::optional<Failure> failure_;
  std::optional<FormState> lastState_;
};

}  // namespace plotsmith::forms
