#pragma once

#include <QtWidgets/QTextBrowser>
#include <cstdint>

namespace plotsmith::qt {

/// The file with the first page, which lists all others.
inline constexpr const char* kFirstPage = "index.html";

/// Shows the help pages of a folder. If a page doesn't exist, it shows a message.
class HelpBrowser final : public QTextBrowser {
 public:
  /// Makes a browser for the pages in `folder`, which may be a folder of resources.
  explicit HelpBrowser(QString folder, QWidget* parent = nullptr);

  /// Returns the address of a file in the folder.
  QUrl AddressOf(const QString& file) const;
  /// Returns the address of a message that says that there is no topic with this number.
  static QUrl AddressOfUnknownTopic(std::int32_t number);

 protected:
  /// Loads a page or a picture. A missing page is replaced by a sentence that says so.
  QVariant loadResource(int type, const QUrl& name) override;
  /// Adapts the pages to a change of colours.
  void changeEvent(QEvent* event) override;

 private:
  /// Returns a page with one sentence, and with a link to the first page of the help if it exists.
  QString SentencePage(const QString& sentence) const;

  QString folder_;
};

}  // namespace plotsmith::qt
