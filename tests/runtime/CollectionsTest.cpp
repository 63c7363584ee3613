#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <utility>

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

TEST(RuntimeErrorTest, NumbersHaveTheDescriptionsOfTheLanguage) {
  const std::pair<int, const char*> cases[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {10, "This array is fixed or temporarily locked"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {28, "Out of stack space"},
      {70, "Permission denied"},
      {91, "Object variable or With block variable not set"},
      {94, "Invalid use of Null"},
      {380, "Invalid property value"},
      {381, "Invalid property array index"},
      {383, "Property is read-only"},
      {424, "Object required"},
      {430, "Class does not support Automation or does not support expected interface"},
      {438, "Object doesn't support this property or method"},
      {440, "Automation error"},
      {445, "Object doesn't support this action"},
      {446, "Object doesn't support named arguments"},
      {447, "Object doesn't support current locale setting"},
      {448, "Named argument not found"},
      {449, "Argument not optional"},
      {450, "Wrong number of arguments or invalid property assignment"},
      {451, "Object not a collection"},
      {457, "This key is already associated with an element of this collection"},
      {458, "Variable uses an Automation type not supported in Visual Basic"},
      {462, "The remote server machine does not exist or is unavailable"},
      {1004, "Application-defined or object-defined error"}};
  for (const auto& [number, description] : cases) {
    const RuntimeError error(number);
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Description(), description);
    EXPECT_STREQ(error.what(), description);
    EXPECT_EQ(error.Source(), "Plotsmith");
  }
}

TEST(RuntimeErrorTest, AnyExceptionIsAnError) {
  const auto caught = [](const auto& exception) {
    try {
      throw exception;
    } catch (...) {
      const RuntimeError error = CurrentError();
      return std::to_string(error.Number()) + " " + error.Description() + " " + error.Source();
    }
  };
  EXPECT_EQ(caught(RuntimeError(9, "text", "source")), "9 text source");
  EXPECT_EQ(caught(std::runtime_error("text")), "440 text Plotsmith");
  EXPECT_EQ(caught(5), "440 Automation error Plotsmith");
  const bool before = std::exchange(memoryRanOut, false);
  EXPECT_EQ(caught(std::bad_alloc()), "7 Out of memory Plotsmith");
  EXPECT_TRUE(memoryRanOut);
  memoryRanOut = before;
}

}  // namespace
}  // namespace plotsmith::runtime
