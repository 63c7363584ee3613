#include "qt/help/HelpBrowser.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtWidgets/QScrollBar>
#include <utility>

namespace plotsmith::qt {
namespace {

constexpr const char* kUnknownTopicScheme = "unknown-topic";

/// Returns the path of a file or of a resource.
QString PathOf(const QUrl& address) {
  return address.scheme() == "qrc" ? ":" + address.path() : address.toLocalFile();
}

}  // namespace

HelpBrowser::HelpBrowser(QString folder, QWidget* parent) : QTextBrowser(parent), folder_(std::move(folder)) {
  setAccessibleName("Help text");
}

QUrl HelpBrowser::AddressOf(const QString& file) const {
  const QString path = folder_ + "/" + file;
  return path.startsWith(':') ? QUrl("qrc" + path) : QUrl::fromLocalFile(path);
}

QUrl HelpBrowser::AddressOfUnknownTopic(std::int32_t number) {
  return QUrl(QString("%1:%2").arg(kUnknownTopicScheme).arg(number));
}

QString HelpBrowser::SentencePage(const QString& sentence) const {
  QString page = "<p>" + sentence.toHtmlEscaped() + "</p>";
  if (QFile::exists(PathOf(AddressOf(kFirstPage)))) {
    page += QString("<p><a href=\"%1\">All topics</a></p>").arg(AddressOf(kFirstPage).toString());
  }
  return page;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::HtmlResource) return QTextBrowser::loadResource(type, name);
  if (name.scheme() == kUnknownTopicScheme) {
    return SentencePage("The help has no topic with the number " + name.path() + ".");
  }
  const QString path = PathOf(name);
  if (QFile::exists(path)) return QTextBrowser::loadResource(type, name);
  return SentencePage("The help page " + QFileInfo(path).fileName() + " isn't in the folder " + folder_ +
                      ".");
}

// Loads the page again, because the colour of links is fixed when a page is loaded.
void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || source().isEmpty()) return;
  const int place = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(place);
}

}  // namespace plotsmith::qt
