#pragma once

#include <initializer_list>
#include <string>

#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// A row of a bubble table: name, colour label, X, Y and size.
struct Bubble {
  std::string name, label;
  double x, y, size;
};

/// Returns a workbook with a data sheet Data1, which has the columns Name, Group, Across, Up and Size, and an
/// empty frame for the definition.
PlainBook BubbleBook(std::initializer_list<Bubble> bubbles, const Definition& definition);
/// Returns a definition for it that uses all columns.
Definition BubbleDefinition();

/// Returns a workbook with a data sheet Data1 of projects, which has the columns Project, Theme, Bucket, Sum
/// and Rank; a table VEX_SB1 with the buckets Growth (100 and, in lower case, 20) and Core (50); and an empty
/// frame for the definition.
PlainBook BucketBook(const Definition& definition);
/// Returns a definition for both tables that uses all columns, with the highest rank first.
Definition BucketDefinition();

}  // namespace plotsmith::test
