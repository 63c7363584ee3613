#include "tests/support/FamilyBooks.h"

namespace plotsmith::test {

using S = std::string;

PlainBook BubbleBook(std::initializer_list<Bubble> bubbles, const Definition& definition) {
  PlainBook book = SalesBook({definition});
  auto& rows = book.Sheet("Data1").rows;
  rows = {{S("Name"), S("Group"), S("Across"), S("Up"), S("Size")}};
  for (const Bubble& bubble : bubbles) {
    rows.push_back({bubble.name, bubble.label, bubble.x, bubble.y, bubble.size});
  }
  return book;
}

Definition BubbleDefinition() {
  Definition definition{"VEX_Chart1", "bubble", "table-id=\"Data1\" title=\"\""};
  definition.categories = "<categories headings-in=\"rows\"><column name=\"Name\"/></categories>";
  definition.series = "<series headings-in=\"rows\"><column name=\"Group\"/></series>";
  definition.values = "<values><column name=\"Up\"/></values>";
  definition.rest =
      "<x-values><column name=\"Across\"/></x-values><bubble-sizes><column name=\"Size\"/></bubble-sizes>";
  return definition;
}

PlainBook BucketBook(const Definition& definition) {
  PlainBook book = SalesBook({definition});
  book.Sheet("Data1").rows = {{S("Project"), S("Theme"), S("Bucket"), S("Sum"), S("Rank")},
                              {S("Alpha"), S("New"), S("Growth"), 10.0, 2.0},
                              {S("Beta"), S("old"), S("core"), 20.0, 1.0},
                              {S("ALPHA"), S("NEW"), S("Core"), 5.0, 1.0},
                              {S("Core"), S("growth"), S("Nowhere"), 7.0, 4.0}};
  PlainSheet buckets{"Buckets"};
  buckets.rows = {{S("Buckets")},     {}, {S("bucket"), S("SUM")}, {S("Growth"), 100.0}, {S("Core"), 50.0},
                  {S("growth"), 20.0}};
  book.sheets.push_back(buckets);
  book.names = {{"VEX_SB1", "Buckets!$A$1:$B$6"}};
  return book;
}

Definition BucketDefinition() {
  Definition definition{"VEX_Chart1", "strategic bucket",
                        "table-id=\"Data1\" strategic-bucket-table-id=\"VEX_SB1\" title=\"\""};
  definition.categories = "<categories headings-in=\"rows\"><column name=\"Project\"/></categories>";
  definition.series = "<series headings-in=\"rows\"><column name=\"Theme\"/></series>";
  definition.values = "<values><column name=\"Sum\"/></values>";
  definition.rest = "<sort-order sort=\"descending\"><column name=\"Rank\"/></sort-order>";
  return definition;
}

}  // namespace plotsmith::test
