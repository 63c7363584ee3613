#include <gtest/gtest.h>

#include "runtime/Collection.h"
#include "runtime/Dictionary.h"
#include "tests/support/ErrorOf.h"

namespace plotsmith::runtime {
namespace {

using test::ErrorOf;

TEST(CollectionTest, KeysIgnoreCaseAndOrderIsKept) {
  Collection<int> collection;
  collection.Add(1, "b");
  collection.Add(2, "a");
  collection.Add(3, "ÄC");
  EXPECT_EQ(ErrorOf([&] { collection.Add(4, "B"); }), error::kKeyExists);
  EXPECT_EQ(collection.Item("A"), 2);
  EXPECT_EQ(collection.Item("äc"), 3);
  EXPECT_EQ(ErrorOf([&] { collection.Item("x"); }), error::kInvalidCall);
  collection.Remove("B");
  EXPECT_EQ(collection.Count(), 2);
  EXPECT_EQ(*collection.begin(), 2);
  EXPECT_EQ(collection.Item("Äc"), 3);
  EXPECT_EQ(ErrorOf([&] { collection.Remove("b"); }), error::kInvalidCall);
}

TEST(DictionaryTest, ReadingAMissingKeyAddsIt) {
  Dictionary dictionary;
  dictionary.Add("x", 1);
  EXPECT_EQ(ErrorOf([&] { dictionary.Add("x", 2); }), error::kKeyExists);
  EXPECT_TRUE(dictionary.Item("X").IsEmpty()) << "keys differ by case";
  EXPECT_TRUE(dictionary.Exists("X"));
  EXPECT_EQ(dictionary.Count(), 2);
  for (int i = 0; i < 1000; ++i) dictionary.Item("key" + std::to_string(i)) = i;
  Dictionary moved = std::move(dictionary);
  EXPECT_EQ(moved.Item("key999"), Variant(999));
  EXPECT_EQ(moved.begin()->key, "x");
}

}  // namespace
}  // namespace plotsmith::runtime
