#pragma once

#include <QtCore/QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace plotsmith::qt {

/// A help page, from its row in topics.tsv.
struct HelpTopic {
  /// The number with which a page of the wizard opens it; absent for other pages.
  std::optional<std::int32_t> number;
  QString file;   ///< The file name, such as "topic1-select-action.html".
  QString title;  ///< The title of the page.
};

/// Reads the list of help pages in a folder, in reading order. The first page lists all others. The list is
/// empty if the folder has no topics.tsv.
std::vector<HelpTopic> ReadHelpTopics(const QString& folder);

}  // namespace plotsmith::qt
