#include <gtest/gtest.h>

#include "runtime/Collection.h"
#include "runtime/Dictionary.h"
#include "runtime/Ref.h"
#include "runtime/Strings.h"

namespace plotsmith::runtime {
namespace {

template <class Use>
int ErrorOf(Use&& use) {
  try {
    use();
    return 0;
  } catch (const RuntimeError& e) {
    return e.Number();
  }
}

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

TEST(DictionaryTest, ReadOfAMissingKeyMakesIt) {
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

TEST(RefTest, NothingIsError91) {
  const Ref<std::string> nothing;
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(nothing->size()); }), error::kObjectNotSet);
  EXPECT_EQ(MakeRef<std::string>("abc")->size(), 3u);
}

TEST(StringsTest, CountInUtf16Units) {
  const std::string clef =
      "a\xF0\x9D\x84\x9E"
      "b";  // U+1D11E takes two units
  EXPECT_EQ(Len(clef), 4u);
  EXPECT_EQ(Mid(clef, 4, 9), "b");
  EXPECT_EQ(Mid("abc", 4, 1), "");
  // a cut through a pair leaves halves that make a whole again when they are joined
  EXPECT_EQ(ToUtf8(ToUtf16(Mid(clef, 1, 2)) + ToUtf16(Mid(clef, 3, 2))), clef);
  EXPECT_EQ(ToUtf16("\xFF\xC3"), (std::u16string{0xFFFD, 0xFFFD}));
}

TEST(StringsTest, UpperCase) {
  EXPECT_EQ(UCase("straße äöü ÿ ſı"), "STRAßE ÄÖÜ Ÿ ſı");
  std::string scratch;
  const std::string upper = "ALREADY 1";
  EXPECT_EQ(UCase(upper, scratch).data(), upper.data()) << "nothing to do, nothing copied";
  EXPECT_TRUE(EqualsIgnoreCase("Größe", "GRÖßE"));
  EXPECT_FALSE(EqualsIgnoreCase("a", "ab"));
  EXPECT_EQ(Trim("  a b\t "), "a b\t");
  EXPECT_EQ(Replace("aXbXX", "X", "--"), "a--b----");
}

}  // namespace
}  // namespace plotsmith::runtime
