#include "forms/script/ScriptPlayer.h"

#include <algorithm>
#include <utility>

#include "forms/TextBox.h"
#include "forms/script/Gestures.h"
#include "forms/script/ScriptError.h"
#include "forms/script/Wording.h"

namespace plotsmith::forms {
namespace {

constexpr const char* kNoPage = "the run is over, and no page is open";

/// Returns the number of a colour in the format "0x8000000F", or nothing.
std::optional<unsigned long> ColorIn(const std::string& text) {
  const bool isHex = text.size() > 2 && text.size() <= 10 && text[0] == '0' &&
                     (text[1] == 'x' || text[1] == 'X') &&
                     text.find_first_not_of("0123456789abcdefABCDEF", 2) == text.npos;
  if (!isHex) return std::nullopt;
  return std::stoul(text.substr(2), nullptr, 16);
}

bool IsSameValue(const std::string& property, const std::string& actual, const std::string& expected) {
  if (property != "BackColor") return WithLineEnds(actual, "\n") == WithLineEnds(expected, "\n");
  const auto color = ColorIn(expected);
  if (!color) throw ScriptError("a colour is written as 0x8000000F, and " + Named(expected) + " isn't one");
  return *color == ColorIn(actual);
}

}  // namespace

ScriptPlayer::ScriptPlayer(LineSource& lines, Show show, std::unique_ptr<Hand> hand)
    : lines_(lines), show_(std::move(show)), hand_(std::move(hand)) {
  hand_->Refused = [this](const std::string& sentence) { Fail(sentence); };
}

void ScriptPlayer::Wait(EventQueue& queue, std::optional<std::chrono::milliseconds>) {
  Form& form = *open_.back();
  while (queue.IsEmpty() && !failure_ && PlayLine(&form, &queue)) {
  }
  if (!queue.IsEmpty()) return;
  if (!failure_ && !lastState_) lastState_ = StateOf(form);
  hand_->Close(queue, form);
}

void ScriptPlayer::PlayRest() {
  while (!failure_ && PlayLine(nullptr, nullptr)) {
  }
  if (failure_) return;
  // Closing the last form may have shown a message after the end of the script.
  try {
    CheckMessages();
  } catch (const ScriptError& e) {
    Fail(e.what());
  }
}

bool ScriptPlayer::PlayLine(Form* form, EventQueue* queue) {
  if (ended_) return false;
  try {
    const auto line = lines_.NextLine({form, messages_});
    if (!line) {
      ended_ = true;
      CheckMessages();
      return false;
    }
    ++line_;
    const Words words = ParseLine(*line);
    if (!words.empty()) Play(words, form, queue);
  } catch (const ScriptError& e) {
    Fail(e.what());
  }
  return true;
}

void ScriptPlayer::Play(const Words& words, Form* form, EventQueue* queue) {
  const std::string& verb = words.front().text;
  if (verb == "page") {
    PlayPage(words, form);
  } else if (verb == "answer") {
    PlayAnswer(words);
  } else if (verb == "expect") {
    PlayExpect(words, form);
  } else if (form == nullptr) {
    throw ScriptError(kNoPage);
  } else if (IsGesture(words)) {
    MakeGesture(words, *form, *hand_, *queue);
  } else {
    show_(StateOf(*form));
  }
}

void ScriptPlayer::PlayPage(const Words& words, const Form* form) const {
  CheckMessages();
  const std::string& name = words[1].text;
  if (name == (form == nullptr ? "none" : form->Name())) return;
  throw ScriptError(form == nullptr ? kNoPage : "the page that is open is " + form->Name());
}

void ScriptPlayer::PlayAnswer(const Words& words) {
  const std::string& answer = words[1].text;
  if (answer != "ok" && answer != "cancel") {
    throw ScriptError("a question can't be answered with " + Named(answer) + "; there are ok and cancel");
  }
  answers_.push_back(answer == "ok");
}

void ScriptPlayer::PlayExpect(const Words& words, const Form* form) {
  const std::string &what = words[1].text, &value = words[2].text;
  if (what == "message") {
    ExpectText(messages_, "message", value);
  } else if (what == "question") {
    ExpectText(questions_, "question", value);
  } else if (form == nullptr) {
    throw ScriptError(kNoPage);
  } else {
    ExpectProperty(*form, what, value);
  }
}

void ScriptPlayer::ExpectText(std::deque<std::string>& heard, const char* kind, const std::string& text) {
  if (heard.empty()) throw ScriptError(std::string("there was no ") + kind + " " + Named(text));
  const std::string actual = std::exchange(heard.front(), {});
  heard.pop_front();
  if (actual != WithLineEnds(text, "\n")) {
    throw ScriptError(std::string("the ") + kind + " is " + Named(actual) + ", not " + Named(text));
  }
}

void ScriptPlayer::ExpectProperty(const Form& form, const std::string& property, const std::string& value) {
  const auto point = property.rfind('.');
  if (point == property.npos) {
    throw ScriptError("what is expected is a message, a question or CONTROL.PROPERTY, not " +
                      Named(property));
  }
  const ControlState state = StateOf(ControlOf(form, property.substr(0, point)));
  const std::string name = property.substr(point + 1);
  const auto properties = PropertiesOf(state);
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&](const auto& candidate) { return candidate.first == name; });
  if (found == properties.end()) {
    std::vector<std::string> names;
    for (const auto& candidate : properties) names.push_back(candidate.first);
    throw ScriptError(state.name + " has no property " + Named(name) + "; it has " + Listed(names));
  }
  if (!IsSameValue(name, found->second, value)) {
    throw ScriptError(property + " is " + Named(found->second) + ", not " + Named(value));
  }
}

void ScriptPlayer::CheckMessages() const {
  if (!messages_.empty()) {
    throw ScriptError("there was a message that no line expects: " + Named(messages_.front()));
  }
}

void ScriptPlayer::AddMessage(std::string_view text) { messages_.push_back(WithLineEnds(text, "\n")); }

bool ScriptPlayer::Answer(std::string_view text) {
  questions_.push_back(WithLineEnds(text, "\n"));
  if (failure_) return false;
  if (answers_.empty()) {
    Fail("the question " + Named(text) +
         " has no answer; a line 'answer ok' or 'answer cancel' gives it in advance");
    return false;
  }
  const bool answer = answers_.front();
  answers_.pop_front();
  return answer;
}

const Form* ScriptPlayer::Front() const {
  const auto found =
      std::find_if(open_.rbegin(), open_.rend(), [](const Form* form) { return form->Visible(); });
  return found == open_.rend() ? nullptr : *found;
}

void ScriptPlayer::Fail(const std::string& sentence) {
  if (!failure_) failure_ = Failure{line_, sentence};
}

}  // namespace plotsmith::forms
