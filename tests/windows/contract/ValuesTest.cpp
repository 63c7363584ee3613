#include <gtest/gtest.h>

#include "tests/windows/contract/PortContract.h"
#include "windows/com/Texts.h"
#include "windows/com/Values.h"

namespace plotsmith::contract {
namespace {

TEST(ValuesTest, ValuesSurviveBothConversions) {
  const std::vector<std::pair<excel::Variant, VARTYPE>> values = {
      {excel::Variant(), VT_EMPTY},
      {runtime::kNull, VT_NULL},
      {true, VT_BOOL},
      {false, VT_BOOL},
      {std::int32_t{-2147483647 - 1}, VT_I4},
      {1e300, VT_R8},
      {excel::Variant::Date{-1.25}, VT_DATE},
      {excel::Variant::Error{2007}, VT_ERROR},
      {"", VT_BSTR},
      {std::string("a\0b ä 東 🜚", 15), VT_BSTR},
      {"\xED\xA0\xBD", VT_BSTR},  // half of a surrogate pair
  };
  for (const auto& [value, type] : values) {
    const com::OwnedVariant there = com::ToVariant(value);
    EXPECT_EQ(V_VT(&there.Get()), type) << Words(value);
    EXPECT_EQ(com::FromVariant(there.Get()), value) << Words(value);

    VARIANT reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = const_cast<VARIANT*>(&there.Get());
    EXPECT_EQ(com::FromVariant(reference), value) << Words(value);
    VARIANT outer;
    V_VT(&outer) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&outer) = &reference;
    EXPECT_EQ(com::FromVariant(outer), value) << Words(value);
  }
}

TEST(ValuesTest, NumbersOfAllWidthsAreRead) {
  VARIANT value;
  const auto says = [&](VARTYPE type) {
    V_VT(&value) = type;
    return Answer([&] { return com::FromVariant(value); });
  };
  V_I8(&value) = -1;  // all bits
  EXPECT_EQ(says(VT_I1), "-1");
  EXPECT_EQ(says(VT_UI1), "255");
  EXPECT_EQ(says(VT_I2), "-1");
  EXPECT_EQ(says(VT_UI2), "65535");
  EXPECT_EQ(says(VT_INT), "-1");
  EXPECT_EQ(says(VT_UINT), "4294967295");
  EXPECT_EQ(says(VT_UI4), "4294967295");
  EXPECT_EQ(says(VT_I8), "-1");
  EXPECT_EQ(says(VT_UI8), "1.84467440737096E+19");
  V_R4(&value) = 2.5F;
  EXPECT_EQ(says(VT_R4), "2.5");
  V_CY(&value).int64 = -12345678;
  EXPECT_EQ(says(VT_CY), "-1234.5678");
  DECIMAL tenth{};
  tenth.Lo64 = 1;
  tenth.scale = 1;
  V_DECIMAL(&value) = tenth;
  EXPECT_EQ(says(VT_DECIMAL), "0.1");
  V_UNKNOWN(&value) = nullptr;
  EXPECT_EQ(says(VT_DISPATCH), "error 91: Object variable or With block variable not set");
  EXPECT_EQ(says(VT_RECORD), "error 13: Type mismatch");
}

TEST(ValuesTest, OnlyObjectsCanBeReadAsObjects) {
  SAYS(com::ObjectOf(com::ToVariant(static_cast<IDispatch*>(nullptr)).Get()).Get() == nullptr, "True");
  SAYS(com::ObjectOf(com::ToVariant(runtime::kNull).Get()).Get() == nullptr, "error 424: Object required");
  SAYS(com::ObjectOf(com::ToVariant(7).Get()).Get() == nullptr, "error 424: Object required");
}

TEST(ValuesTest, ArraysOfAnyTypeAreLists) {
  SAFEARRAY* numbers = SafeArrayCreateVector(VT_I2, 5, 3);
  for (LONG i = 5; i < 8; ++i) {
    short number = static_cast<short>(i * i);
    SafeArrayPutElement(numbers, &i, &number);
  }
  VARIANT array;
  V_VT(&array) = VT_ARRAY | VT_I2;
  V_ARRAY(&array) = numbers;
  const com::OwnedVariant owned(array);
  SAYS(com::ListOf(owned.Get()), "25, 36, 49");
  VARIANT reference;
  V_VT(&reference) = VT_BYREF | VT_ARRAY | VT_I2;
  V_ARRAYREF(&reference) = &numbers;
  SAYS(com::ListOf(reference), "25, 36, 49");

  EXPECT_EQ(com::TextsOf(com::ToArray(std::vector<excel::Variant>{"a", 2, true}).Get()),
            (std::vector<std::string>{"a", "2", "True"}));
  SAYS(com::ListOf(com::ToArray(std::vector<std::string>{}).Get()), "");
  SAYS(com::ListOf(com::ToVariant("text").Get()), "error 13: Type mismatch");

  // A record can be larger than a VARIANT.
  SAFEARRAY* records = SafeArrayCreateVector(VT_UI1, 0, 1);
  records->fFeatures = FADF_RECORD;
  VARIANT ofRecords;
  V_VT(&ofRecords) = VT_ARRAY | VT_RECORD;
  V_ARRAY(&ofRecords) = records;
  SAYS(com::ListOf(ofRecords), "error 13: Type mismatch");
  records->fFeatures = 0;  // The array has no description of a record, which its deletion needs.
  SafeArrayDestroy(records);

  com::CellArrayWriter cells(2, 3);
  cells.Set(1, 2, "last");
  const com::OwnedVariant table = cells.Take();
  SAYS(com::ListOf(table.Get()), "error 13: Type mismatch");
  const com::CellArray read(table.Get());
  EXPECT_EQ(read.Rows(), 2);
  EXPECT_EQ(read.Columns(), 3);
  EXPECT_EQ(com::FromVariant(read.At(1, 2)), excel::Variant("last"));
  EXPECT_EQ(com::FromVariant(read.At(0, 0)), excel::Variant());
  SAYS(com::FromVariant(read.At(0, 3)), "error 9: Subscript out of range");
  SAYS(com::FromVariant(read.At(2, 0)), "error 9: Subscript out of range");
}

}  // namespace
}  // namespace plotsmith::contract
