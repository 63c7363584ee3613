#include <array>
#include <gtest/gtest.h>

#include "tests/windows/contract/FakeDispatch.h"
#include "tests/windows/contract/PortContract.h"
#include "tests/windows/support/Exceptions.h"
#include "windows/com/Calls.h"
#include "windows/com/Failures.h"
#include "windows/com/Texts.h"

namespace plotsmith::contract {
namespace {

constexpr auto kRefused = static_cast<HRESULT>(0x800A03EC);
constexpr auto kSuspended = static_cast<HRESULT>(0x800AC472);

TEST(CallsTest, FailuresHaveVisualBasicsNumbers) {
  const std::vector<std::pair<HRESULT, const char*>> failures = {
      {DISP_E_UNKNOWNNAME, "error 438: Object doesn't support this property or method"},
      {DISP_E_MEMBERNOTFOUND, "error 438: Object doesn't support this property or method"},
      {DISP_E_TYPEMISMATCH, "error 13: Type mismatch"},
      {DISP_E_BADINDEX, "error 9: Subscript out of range"},
      {DISP_E_BADPARAMCOUNT, "error 450: Wrong number of arguments or invalid property assignment"},
      {DISP_E_PARAMNOTOPTIONAL, "error 449: Argument not optional"},
      {DISP_E_PARAMNOTFOUND, "error 448: Named argument not found"},
      {DISP_E_OVERFLOW, "error 6: Overflow"},
      {E_OUTOFMEMORY, "error 7: Out of memory"},
      {E_NOTIMPL, "error 445: Object doesn't support this action"},
      {static_cast<HRESULT>(0x800A0005), "error 5: Invalid procedure call or argument"},
      {kRefused, "error 1004: Application-defined or object-defined error"},
  };
  com::Member member(L"Known");
  for (const auto& [result, words] : failures) {
    FakeDispatch object(
        [failure = result](WORD, const DISPPARAMS&, VARIANT*, EXCEPINFO*) { return failure; });
    SAYS((void)com::Call(&object, member, com::Kind::kGet, {}), words);
  }
  SAYS((void)com::Call(nullptr, member, com::Kind::kGet, {}),
       "error 91: Object variable or With block variable not set");
  EXPECT_EQ(com::ErrorOf(E_UNEXPECTED).Number(), E_UNEXPECTED);
}

TEST(CallsTest, ExceptionsKeepNumberAndText) {
  struct Thrown {
    WORD code;
    SCODE scode;
    const char *text, *words;
  };
  const std::vector<Thrown> exceptions = {
      {0, kRefused, "Unable to set the Size property", "error 1004: Unable to set the Size property"},
      {0, kRefused, "", "error 1004: Application-defined or object-defined error"},
      {1004, 0, "Ä", "error 1004: Ä"},
      {0, DISP_E_BADINDEX, "", "error 9: Subscript out of range"},
      {0, E_FAIL, "It failed", "error -2147467259: It failed"},
  };
  com::Member member(L"Known");
  for (const auto& thrown : exceptions) {
    FakeDispatch object([&](WORD, const DISPPARAMS&, VARIANT*, EXCEPINFO* exception) {
      *exception = {};
      exception->wCode = thrown.code;
      exception->scode = thrown.scode;
      if (*thrown.text != '\0') exception->bstrDescription = com::NewBstr(thrown.text);
      return DISP_E_EXCEPTION;
    });
    SAYS((void)com::Call(&object, member, com::Kind::kMethod, {}), thrown.words);
  }
}

TEST(CallsTest, ErrorsSurviveBothConversions) {
  for (const int number : {5, 9, 13, 91, 1004, 65535, static_cast<int>(E_UNEXPECTED)}) {
    EXCEPINFO exception{};
    EXPECT_EQ(test::FillException(runtime::RuntimeError(number, "words", "source"), &exception),
              DISP_E_EXCEPTION);
    const runtime::RuntimeError back = com::ErrorOf(exception);
    EXPECT_EQ(back.Number(), number);
    EXPECT_EQ(back.Description(), "words");
    EXPECT_EQ(back.Source(), "source");
  }
}

TEST(CallsTest, ArgumentsAreInOrderAndTheValueOfAPropertyIsLast) {
  std::string seen;
  FakeDispatch object([&](WORD flags, const DISPPARAMS& sent, VARIANT*, EXCEPINFO*) {
    seen = std::to_string(flags);
    for (UINT i = sent.cArgs; i-- > 0;) seen += " " + Words(com::FromVariant(sent.rgvarg[i]));
    if (sent.cNamedArgs == 1 && sent.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT) seen += " value";
    return S_OK;
  });
  com::Member member(L"Known");
  const std::array arguments{com::ToVariant(1), com::ToVariant("two"), com::ToVariant(true)};
  com::Call(&object, member, com::Kind::kGet, arguments);
  EXPECT_EQ(seen, "2 1 \"two\" True");
  com::Call(&object, member, com::Kind::kFind, arguments);
  EXPECT_EQ(seen, "1 1 \"two\" True");
  com::Call(&object, member, com::Kind::kPut, arguments);
  EXPECT_EQ(seen, "4 1 \"two\" True value");
}

TEST(CallsTest, NumbersOfMembersAreLookedUpOnce) {
  const auto fine = [](WORD, const DISPPARAMS&, VARIANT*, EXCEPINFO*) { return S_OK; };
  FakeDispatch first(fine), second(fine);
  com::Member member(L"Known"), other(L"Unknown");
  com::Call(&first, member, com::Kind::kGet, {});
  com::Call(&first, member, com::Kind::kGet, {});
  com::Call(&second, member, com::Kind::kGet, {});
  EXPECT_EQ(first.lookUps, 1);
  EXPECT_EQ(second.lookUps, 0);
  SAYS((void)com::Call(&first, other, com::Kind::kGet, {}),
       "error 438: Object doesn't support this property or method");
}

TEST(CallsTest, ACallToABusyServerIsRepeated) {
  com::Member member(L"Known");
  for (const HRESULT busy : {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER, kSuspended}) {
    int refusals = 3, calls = 0;
    FakeDispatch object([&](WORD, const DISPPARAMS&, VARIANT*, EXCEPINFO*) {
      ++calls;
      return refusals-- > 0 ? busy : S_OK;
    });
    SAYS((void)com::Call(&object, member, com::Kind::kMethod, {}), "done");
    EXPECT_EQ(calls, 4);
  }
}

TEST(CallsTest, TheNameOfAMemberIsLookedUpAgainWhileTheServerIsBusy) {
  const auto fine = [](WORD, const DISPPARAMS&, VARIANT*, EXCEPINFO*) { return S_OK; };
  for (const HRESULT busy : {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER}) {
    FakeDispatch object(fine);
    object.refusal = busy;
    com::Member called(L"Known"), refused(L"Known");
    object.refusedLookUps = 2;
    SAYS((void)com::Call(&object, called, com::Kind::kGet, {}), "done");
    EXPECT_EQ(object.lookUps, 3);
    object.refusedLookUps = 2;
    EXPECT_TRUE(com::HasMember(&object, L"Known"));
    object.refusedLookUps = 2;
    EXPECT_FALSE(com::HasMember(&object, L"Unknown"));
    object.refusedLookUps = 1;
    EXPECT_NE(Answer([&] { (void)com::Call(&object, refused, com::Kind::kGet, {}, com::WhenBusy::kFail); }),
              "done");
    EXPECT_EQ(object.lookUps, 10);
  }
}

TEST(CallsTest, TheWaitForABusyServerIsShort) {
  com::Member member(L"Known");
  HRESULT answer = kSuspended;
  int calls = 0;
  FakeDispatch object([&](WORD, const DISPPARAMS&, VARIANT*, EXCEPINFO*) {
    ++calls;
    return answer;
  });
  const auto call = [&](com::WhenBusy whenBusy) {
    return Answer([&] { (void)com::Call(&object, member, com::Kind::kPut, {}, whenBusy); }).substr(0, 11);
  };
  EXPECT_EQ(call(com::WhenBusy::kFail), "error 50290");
  EXPECT_EQ(calls, 1);
  const ULONGLONG began = GetTickCount64();
  EXPECT_EQ(call(com::WhenBusy::kWait), "error 50290");
  const ULONGLONG waited = GetTickCount64() - began;
  EXPECT_GE(waited, 1500U);
  EXPECT_LE(waited, 4000U);
  const int before = calls;
  for (int i = 0; i < 50; ++i) call(com::WhenBusy::kWait);
  EXPECT_EQ(calls - before, 50) << "the waiting time is used up";
  answer = S_OK;
  EXPECT_EQ(call(com::WhenBusy::kWait), "done");
  answer = kRefused;
  const int others = calls;
  EXPECT_EQ(call(com::WhenBusy::kWait), "error 1004:");
  EXPECT_EQ(calls - others, 1) << "calls with other failures aren't repeated";
}

}  // namespace
}  // namespace plotsmith::contract
