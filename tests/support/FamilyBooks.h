#pragma once

#include <initializer_list>
#include <string>

#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// A row of a table of bubbles: name, colour label, X, Y and size.
struct Bubble {
  std::string name, label;
  double x, y, size;
};

/// A data sheet Data1 with the columns Name, Group, Across, Up and Size, and an empty frame for the
/// definition.
PlainBook BubbleBook(std::initializer_list<Bubble> bubbles, const Definition& definition);
/// A definition over it that uses all of the columns.
Definition BubbleDefinition();

/// A data sheet Data1 of projects with the columns Project, Theme, Bucket, Sum and Rank, a table VEX_SB1 of
/// the buckets Growth (100 and, in lower case, 20) and Core (50), and an empty frame for the definition.
PlainBook BucketBook(const Definition& definition);
/// A definition over both that uses all of the columns, the highest rank first.
Definition BucketDefinition();

}  // namespace plotsmith::test
