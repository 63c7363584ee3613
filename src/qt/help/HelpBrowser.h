#pragma once

#include <QtWidgets/QTextBrowser>
#include <cstdint>

namespace plotsmith::qt {

/// Shows the pages of the help from one folder. Where a page isn't there it shows a sentence that says so.
class HelpBrowser final : public QTextBrowser {
 public:
  explicit HelpBrowser(QString folder, QWidget* parent = nullptr);

  /// The address of a file of the folder.
  QUrl AddressOf(const QString& file) const;
  /// The address of a sentence which says that there is no topic of this number.
  static QUrl AddressOfUnknownTopic(std::int32_t number);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void changeEvent(QEvent* event) override;

 private:
  /// A page with one sentence, and a link to the first page of the help if there is one.
  QString SentencePage(const QString& sentence) const;

  QString folder_;
};

}  // namespace plotsmith::qt
