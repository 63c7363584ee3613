#include "tests/qt/support/Robot.h"

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include "forms/script/Gestures.h"
#include "forms/script/ScriptError.h"
#include "qt/Texts.h"
#include "tests/qt/support/Windows.h"

namespace plotsmith::test {
namespace {

constexpr qint64 kPatience = 10000;  // The maximum time until a window opens, in milliseconds.
constexpr qint64 kPause = 30;        // milliseconds
constexpr const char* kBusyWindow = "frmBusyPS";

std::pair<std::string, std::string> VerbAndRest(const std::string& line) {
  const auto blank = line.find(' ');
  return {line.substr(0, blank), blank == line.npos ? "" : line.substr(blank + 1)};
}

void TypeFileName(QWidget& dialog, const std::string& name) {
  auto* const box = dialog.findChild<QLineEdit*>("fileNameEdit");
  // If the file exists, the dialog asks and waits for the answer during this key press. The timer lets the
  // robot answer.
  QTimer::singleShot(0, box, [box, name] {
    box->setText(qt::TextOf(name));
    QTest::keyClick(box, Qt::Key_Return);
  });
}

/// Returns the visible button with a text, or null.
QPushButton* FindButton(const QWidget& window, const std::string& text) {
  for (QPushButton* button : window.findChildren<QPushButton*>()) {
    const QString shown = button->text().remove('&').remove("...");
    if (button->isVisible() && qt::TextOf(shown) == text) return button;
  }
  return nullptr;
}

}  // namespace

bool PressButton(QWidget& window, const std::string& text) {
  QPushButton* const button = FindButton(window, text);
  if (button != nullptr) QTest::mouseClick(button, Qt::LeftButton);
  return button != nullptr;
}

Robot::Robot(const std::string& script, Actions actions)
    : lines_(LinesOf(script)), actions_(std::move(actions)), hand_([] { return FrontWindow(); }) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Work(); });
  sinceLine_.start();
  timer_.start(0);
}

std::string Robot::Failure() const {
  return failure_.empty() && next_ < lines_.size() ? "the program ended before: " + lines_[next_] : failure_;
}

void Robot::Work() {
  if (std::exchange(works_, true)) return;
  LookAround();
  if (!failure_.empty() || next_ == lines_.size()) {
    CloseAll();
  } else if (const std::string line = lines_[next_]; Play(line)) {
    ++next_;
    obstacle_.clear();
    sinceLine_.start();
  } else if (failure_.empty() && sinceLine_.hasExpired(kPatience)) {
    failure_ = line + " -> " + (obstacle_.empty() ? "in front is: " + lastSeen_ : obstacle_);
  }
  works_ = false;
}

void Robot::LookAround() {
  const QWidget* const front = FrontWindow();
  const std::string name = NameOf(front);
  const std::string text = name == "box" || name == "bar" ? TextIn(*front) : "";
  if (name.empty() || name == kBusyWindow)
    return;  // The time for which the busy window stays depends on the machine.
  if (std::exchange(lastSeen_, name + text) == name + text) return;
  seen_ += (seen_.empty() ? "" : " ") + name;
  if (!text.empty()) told_.push_back(text);
}

bool Robot::Play(const std::string& line) {
  const auto [verb, rest] = VerbAndRest(line);
  QWidget* const front = FrontWindow();
  const std::string name = NameOf(front);
  if (line == "do wait") return sinceLine_.hasExpired(kPause) && !name.empty() && name != kBusyWindow;
  if (verb == "do") {
    actions_.at(rest)();
    return true;
  }
  if (verb == "page") return name == rest;
  if (verb == "button") return front != nullptr && FindButton(*front, rest) != nullptr;
  if (verb == "quit") {
    BookWindow()->close();
    return true;
  }
  if (verb == "file" && name == "file") {
    TypeFileName(*front, rest);
    return true;
  }
  if (verb == "box" || verb == "bar") return name == verb && PressButton(*front, rest);
  return verb != "file" && PlayOnPage(line);
}

bool Robot::PlayOnPage(const std::string& line) {
  qt::FormWindow* const page = FrontPage();
  if (page == nullptr || page->Model().Name() == kBusyWindow) return false;
  try {
    forms::EventQueue unused;
    forms::MakeGesture(forms::ParseLine(line), page->Model(), hand_, unused);
  } catch (const forms::ScriptError& e) {
    obstacle_ = e.what();
    return false;
  }
  return true;
}

void Robot::CloseAll() {
  QWidget* const front = FrontWindow();
  const std::string name = NameOf(front);
  if (name == "box") {
    for (const char* button : {"Discard", "No", "Cancel", "OK"}) {
      if (PressButton(*front, button)) break;
    }
  } else if (name == "bar") {
    if (!PressButton(*front, "Discard")) PressButton(*front, "Close");
  } else if (front != nullptr && name != kBusyWindow) {
    front->close();
  }
}

}  // namespace plotsmith::test
