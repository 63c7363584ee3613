#pragma once

#include <QtCore/QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace plotsmith::qt {

/// A page of the help, by its row in topics.tsv.
struct HelpTopic {
  std::optional<std::int32_t> number;  ///< that a page of the wizard opens; absent for all other pages
  QString file;                        ///< "topic1-select-action.html"
  QString title;
};

/// The pages of the help in a folder, in the order in which they are read. The first one lists all others.
/// Empty if the folder has no topics.tsv.
std::vector<HelpTopic> ReadHelpTopics(const QString& folder);

}  // namespace plotsmith::qt
