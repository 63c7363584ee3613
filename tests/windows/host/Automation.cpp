#include "tests/windows/host/Automation.h"

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "tests/windows/host/HostMembers.h"
#include "tests/windows/support/Exceptions.h"
#include "windows/com/Failures.h"

namespace plotsmith::automation {

Counts counts;

Arguments::Arguments(const DISPPARAMS& sent) : sent_(sent), count_(sent.cArgs) {
  while (count_ > 0 && com::IsMissing((*this)[count_ - 1])) --count_;
}

const VARIANT& Arguments::operator[](std::size_t i) const {
  static const com::OwnedVariant missing = com::Missing();
  return i < sent_.cArgs ? sent_.rgvarg[sent_.cArgs - 1 - i] : missing.Get();
}

HRESULT Dispatch::QueryInterface(REFIID id, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
  if (*object == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG Dispatch::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT Dispatch::GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT Dispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill(ids, ids + count, DISPID_UNKNOWN);
  ids[0] = IdOf(names[0]);
  // Arguments have no names here.
  return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT Dispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* sent, VARIANT* answer,
                         EXCEPINFO* exception, UINT*) noexcept {
  ++counts.calls;
  if (sent == nullptr) return E_INVALIDARG;
  const bool puts = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (sent->cNamedArgs > (puts ? 1U : 0U)) return DISP_E_NONAMEDARGS;
  const WORD kinds = puts ? WORD{DISPATCH_PROPERTYPUT} : flags;
  if ((kinds & (kinds - 1)) != 0) ++counts.unsure;
  // The call may release the object.
  const com::ComPtr<IDispatch> self(this);
  try {
    com::OwnedVariant result = Called(id, kinds, Arguments(*sent));
    if (answer != nullptr) *answer = result.Detach();
    return S_OK;
  } catch (HRESULT result) {
    return result;
  } catch (...) {
    return test::FillException(runtime::CurrentError(), exception);
  }
}

std::string NameOf(const std::string& className, const std::wstring& member, WORD kind) {
  const char* words = kind == DISPATCH_METHOD ? " called" : kind == DISPATCH_PROPERTYPUT ? " put" : " read";
  return className + "." + runtime::ToUtf8(std::u16string(member.begin(), member.end())) + words;
}

std::optional<com::OwnedVariant> FaultyResult(const HostPtr& host) {
  const std::string& fault = host->fault;
  if (fault == "Null") return com::ToVariant(runtime::kNull);
  if (fault == "Empty") return com::OwnedVariant();
  if (fault == "Nothing") return com::ToVariant(static_cast<IDispatch*>(nullptr));
  if (fault == "a number") return com::ToVariant(7);
  if (fault == "a text") return com::ToVariant("perhaps");
  if (fault == "an array") return com::ToArray(std::vector<excel::Variant>{1, "two"});
  if (fault == "another object") {
    return com::ToVariant(com::ComPtr<IDispatch>::Attach(NewApplication(host)).Get());
  }
  if (fault != "calls back") throw runtime::RuntimeError(runtime::error::kApplication, "Fault");
  DISPPARAMS none{};
  const com::ComPtr<IDispatch> callback = host->callback;
  callback->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
  return std::nullopt;
}

com::OwnedVariant ItemOf(const com::OwnedVariant& collection, const Arguments& arguments) {
  const auto object = com::ObjectOf(collection.Get());
  if (!object) throw runtime::RuntimeError(runtime::error::kObjectNotSet);
  std::vector<VARIANT> passed;
  for (std::size_t i = arguments.Count(); i-- > 0;) passed.push_back(arguments[i]);
  DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
  com::OwnedVariant answer;
  EXCEPINFO exception{};
  const HRESULT result = object->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                                        &parameters, answer.Put(), &exception, nullptr);
  if (result == DISP_E_EXCEPTION) throw com::ErrorOf(exception);
  if (FAILED(result)) throw HRESULT{result};
  return answer;
}

com::OwnedVariant Answer(const Ref<excel::Sheet>& sheet, const HostPtr& host) {
  if (auto worksheet = std::dynamic_pointer_cast<excel::Worksheet>(sheet.shared())) {
    return Answer(Ref<excel::Worksheet>(std::move(worksheet)), host);
  }
  return Answer<excel::Sheet>(sheet, host);
}

}  // namespace plotsmith::automation
