#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QTextBlock>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTextBrowser>
#include <gtest/gtest.h>
#include <memory>
#include <set>

#include "forms/Buttons.h"
#include "forms/ModalLoop.h"
#include "qt/help/HelpWindow.h"
#include "tests/support/HandView.h"
#include "tests/support/Paths.h"

namespace plotsmith::qt {
namespace {

using S = std::string;

class HelpWindowTest : public testing::Test {
 protected:
  QTextBrowser& Text() { return *window_.findChild<QTextBrowser*>("helpText"); }
  QListWidget& List() { return *window_.findChild<QListWidget*>("topicList"); }
  QLineEdit& FindText() { return *window_.findChild<QLineEdit*>("findText"); }
  S FindResult() { return window_.findChild<QLabel*>("findResult")->text().toStdString(); }
  S File() { return Text().source().fileName().toStdString(); }
  S Title() { return window_.windowTitle().toStdString(); }
  S Selected() { return Text().textCursor().selectedText().toStdString(); }
  /// Shows a topic and waits until the window accepts keys.
  void OpenTopic(std::int32_t number) {
    window_.ShowTopic(number);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }
  /// Sends a key to the widget with the focus.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focus = window_.focusWidget();
    QTest::keyClick(focus == nullptr ? &window_ : focus, key, modifiers);
  }
  void Type(const QString& text) { QTest::keyClicks(&FindText(), text); }

  HelpWindow window_;
};

TEST_F(HelpWindowTest, EachPageHasItsPictures) {
  const auto topics = ReadHelpTopics(QString(test::kSourceFolder) + "/docs/help");
  ASSERT_EQ(topics.size(), 13u);
  std::set<std::int32_t> numbers;
  for (const HelpTopic& topic : topics) {
    SCOPED_TRACE(topic.file.toStdString());
    if (topic.number) {
      numbers.insert(*topic.number);
      window_.ShowTopic(*topic.number);
    } else {
      window_.ShowFirstPage();
      List().setCurrentRow(static_cast<int>(&topic - topics.data()));
    }
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(File(), topic.file.toStdString());
    EXPECT_EQ(List().currentItem()->text(), topic.title);
    EXPECT_EQ(Text().document()->firstBlock().text(), topic.title);
    const bool isFirst = &topic == &topics.front();
    EXPECT_EQ(Title(), (isFirst ? S() : topic.title.toStdString() + " - ") + "Plotsmith Help");
    int pictures = 0;
    for (auto block = Text().document()->begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const auto format = part.fragment().charFormat().toImageFormat();
        if (!format.isValid()) continue;
        const QUrl address = Text().source().resolved(QUrl(format.name()));
        const bool isMade = QFile::exists(test::kSourceFolder + address.path());
        const bool isBuiltIn = QFile::exists(":" + address.path());
        EXPECT_EQ(isBuiltIn, isMade) << format.name().toStdString();
        EXPECT_EQ(QImage(":" + address.path()).isNull(), !isBuiltIn);
        ++pictures;
      }
    }
    EXPECT_EQ(pictures > 0, topic.number.has_value());
  }
  EXPECT_EQ(numbers, (std::set<std::int32_t>{1, 2, 3, 4, 5, 6, 7, 8, 18}));
}

TEST_F(HelpWindowTest, MissingPagesAreReported) {
  window_.ShowTopic(42);
  EXPECT_EQ(Text().toPlainText().toStdString(), "The help has no topic with the number 42.\nAll topics");
  EXPECT_EQ(List().currentRow(), -1);
  EXPECT_EQ(Title(), "Plotsmith Help");
  const QTemporaryDir folder;
  HelpWindow empty(folder.path());
  empty.ShowTopic(1);
  auto& text = *empty.findChild<QTextBrowser*>("helpText");
  EXPECT_EQ(text.toPlainText().toStdString(), "The help has no topic with the number 1.");
  empty.ShowFirstPage();
  EXPECT_EQ(text.toPlainText(), "The help page index.html isn't in the folder " + folder.path() + ".");
  QFile table(folder.filePath("topics.tsv"));
  ASSERT_TRUE(table.open(QIODevice::WriteOnly));
  table.write("number\tfile\ttitle\n\tindex.html\tHelp\n7\tgone.html\tGone\n");
  table.close();
  HelpWindow halved(folder.path());
  halved.ShowTopic(7);
  EXPECT_EQ(halved.findChild<QTextBrowser*>("helpText")->toPlainText(),
            "The help page gone.html isn't in the folder " + folder.path() + ".");
}

TEST_F(HelpWindowTest, KeysMoveThroughTheTopics) {
  OpenTopic(6);
  Key(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(File(), "index.html");
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(File(), "topic6-pie-layout.html");
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(File(), "index.html");
  QTest::keyClick(&List(), Qt::Key_Down);
  EXPECT_EQ(File(), "topic1-select-action.html");
  // The first link of a topic leads to the list of topics.
  Text().setFocus();
  Key(Qt::Key_Tab);
  Key(Qt::Key_Return);
  EXPECT_EQ(File(), "index.html");
  Key(Qt::Key_T, Qt::ControlModifier);
  EXPECT_FALSE(List().isVisible());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(window_.isVisible());
  OpenTopic(18);
  EXPECT_TRUE(window_.isVisible());
  EXPECT_EQ(File(), "topic18-strategic-bucket-layout.html");
}

TEST_F(HelpWindowTest, TheSearchContinuesAtTheBeginning) {
  OpenTopic(6);
  EXPECT_FALSE(FindText().isVisible());
  Key(Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(FindText().hasFocus());
  Type("slice rep");
  EXPECT_EQ(Selected(), "Slice Rep");
  const int first = Text().textCursor().position();
  Key(Qt::Key_Return);
  const int second = Text().textCursor().position();
  EXPECT_GT(second, first);
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Text().textCursor().position(), first);
  Key(Qt::Key_F3, Qt::ShiftModifier);
  const int last = Text().textCursor().position();
  EXPECT_GT(last, second) << "the search continues at the other end";
  Key(Qt::Key_F3);
  EXPECT_EQ(Text().textCursor().position(), first);
  Type("tile");
  EXPECT_EQ(FindResult(), "This topic doesn't have the text.");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(FindText().isVisible());
  EXPECT_TRUE(window_.isVisible());
  EXPECT_TRUE(Text().hasFocus());
}

/// A page with a Help button.
class HelpedForm final : public forms::Form {
 public:
  HelpedForm() : Form("frmHelped") {}
  forms::CommandButton cmdHelp{*this, "cmdHelp", nullptr, "&Help"};
};

TEST_F(HelpWindowTest, ItTakesInputWhileAPageIsOpen) {
  S read;
  const auto view = std::make_shared<test::HandView>();
  const auto press = [](forms::Form& page) { dynamic_cast<HelpedForm&>(page).cmdHelp.UserPress(); };
  const auto look = [&](forms::Form&) {
    QCoreApplication::processEvents();
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(window_.windowModality(), Qt::NonModal);
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier,
                      List().visualItemRect(List().item(0)).center());
    read = File();
  };
  view->gestures = {press, look};
  forms::ModalLoop loop(view);
  const auto page = std::make_shared<HelpedForm>();
  page->cmdHelp.Click = [this] { window_.ShowTopic(8); };
  loop.ShowModal(page);
  EXPECT_EQ(read, "index.html");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_FALSE(window_.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(HelpWindowTest, ColorsAreThoseOfThePalette) {
  const QPalette before = QApplication::palette();
  window_.ShowTopic(4);
  for (const auto& [base, text, link] :
       {std::tuple{QColor(250, 250, 240), QColor(10, 20, 30), QColor(0, 0, 200)},
        {QColor(20, 22, 26), QColor(230, 230, 220), QColor(120, 190, 255)}}) {
    QPalette palette = before;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Link, link);
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
    QImage image = Text().viewport()->grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() - 2, 2), base);
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y) | 0xFF000000u);
    }
    EXPECT_TRUE(colors.contains(text.rgb())) << "the text";
    EXPECT_TRUE(colors.contains(link.rgb())) << "the links";
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace plotsmith::qt
