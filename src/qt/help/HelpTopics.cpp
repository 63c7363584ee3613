#include "qt/help/HelpTopics.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

namespace plotsmith::qt {

std::vector<HelpTopic> ReadHelpTopics(const QString& folder) {
  std::vector<HelpTopic> topics;
  QFile table(folder + "/topics.tsv");
  if (!table.open(QIODevice::ReadOnly | QIODevice::Text)) return topics;
  table.readLine();  // Skip the column headings.
  while (!table.atEnd()) {
    const QStringList fields = QString::fromUtf8(table.readLine()).remove('\n').split('\t');
    if (fields.size() != 3) continue;
    bool hasNumber = false;
    const std::int32_t number = fields[0].toInt(&hasNumber);
    topics.push_back({hasNumber ? std::optional(number) : std::nullopt, fields[1], fields[2]});
  }
  return topics;
}

}  // namespace plotsmith::qt
