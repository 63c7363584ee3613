#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <iostream>
#include <memory>

#include "cli/Session.h"
#include "cli/wizard/ScriptDesktop.h"
#include "controller/CPlotsmithController.h"
#include "forms/script/ScriptPlayer.h"
#include "qt/forms/QtView.h"

/// @file
/// Takes pictures of the wizard's pages for the documentation: plotsmith_wizard_shots BOOK FOLDER SUFFIX LOOK
/// < SCRIPT. Scripts can contain the line "shot NAME", which writes FOLDER/NAME + SUFFIX.png. The busy window
/// is taken when it appears. LOOK is light or dark.
namespace plotsmith {
namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(53, 57, 63), QColor(43, 46, 51));
  palette.setColor(QPalette::Base, QColor(32, 34, 38));
  palette.setColor(QPalette::ToolTipBase, QColor(74, 70, 48));
  palette.setColor(QPalette::ToolTipText, QColor(240, 236, 220));
  palette.setColor(QPalette::Highlight, QColor(61, 122, 191));
  return palette;
}

/// The lines of standard input. A line "shot" is removed and executed at once.
class ShotLines final : public forms::LineSource {
 public:
  ShotLines(qt::QtView& windows, QString folder, QString suffix)
      : windows_(windows), folder_(std::move(folder)), suffix_(std::move(suffix)) {}

  std::optional<std::string> NextLine(const forms::ScriptState&) override {
    std::string line;
    if (!std::getline(std::cin, line)) return std::nullopt;
    if (!line.starts_with(kShot)) return line;
    QApplication::processEvents();
    Take(QString::fromStdString(line.substr(kShot.size())));
    return "";
  }

  void Take(const QString& name) const {
    windows_.Front()->grab().save(folder_ + '/' + name + suffix_ + ".png");
  }

 private:
  static constexpr std::string_view kShot = "shot ";
  qt::QtView& windows_;
  QString folder_, suffix_;
};

/// The windows of a script, without user input.
class Stage final : public forms::View {
 public:
  Stage(qt::QtView& windows, ShotLines& lines, std::shared_ptr<forms::ScriptPlayer> player)
      : windows_(windows), lines_(lines), player_(std::move(player)) {}
  void Open(forms::Form& form) override {
    player_->Open(form);
    windows_.Open(form);
    if (form.Name() == kBusyWindow) lines_.Take(kBusyWindow);  // The busy window doesn't wait for a line.
  }
  void Close(forms::Form& form) override {
    windows_.Close(form);
    player_->Close(form);
  }
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override {
    windows_.ShowChanges();
    player_->Wait(queue, atMost);
  }
  void HandleEvents(forms::EventQueue& queue) override { windows_.HandleEvents(queue); }

 private:
  static constexpr const char* kBusyWindow = "frmBusyPS";

  qt::QtView& windows_;
  ShotLines& lines_;
  std::shared_ptr<forms::ScriptPlayer> player_;
};

int TakeShots(const std::string& book, const QString& folder, const QString& suffix) {
  qt::QtView windows;
  ShotLines lines(windows, folder, suffix);
  const auto player = std::make_shared<forms::ScriptPlayer>(lines, [](const forms::FormState&) {});
  const auto desktop = std::make_shared<cli::ScriptDesktop>(player, cli::Outside::kScript);
  const cli::Session session(book, {}, {std::cin, std::cout, std::cerr}, desktop,
                             std::make_shared<Stage>(windows, lines, player));
  CPlotsmithController().RunPlotsmith(session.Host(), cli::kHostName, "");
  player->PlayRest();
  if (!player->Failed()) return 0;
  std::cerr << "line " << player->Failed()->line << ": " << player->Failed()->sentence << ".\n";
  return 1;
}

}  // namespace
}  // namespace plotsmith

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 5) {
    std::cerr << "usage: plotsmith_wizard_shots BOOK FOLDER SUFFIX light|dark < SCRIPT\n";
    return 2;
  }
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  if (std::string(argv[4]) == "dark") QApplication::setPalette(plotsmith::DarkPalette());
  return plotsmith::TakeShots(argv[1], argv[2], argv[3]);
}
