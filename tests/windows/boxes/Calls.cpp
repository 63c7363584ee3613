#include "tests/windows/boxes/Calls.h"

#include <cstdio>
#include <cstring>
#include <malloc.h>
#include <sstream>
#include <thread>
#include <vector>

#include "PlotsmithInterface.h"
#include "runtime/RuntimeError.h"
#include "tests/windows/boxes/MessageBoxes.h"
#include "windows/com/ComPtr.h"
#include "windows/com/OwnedVariant.h"
#include "windows/com/Texts.h"
#include "windows/com/Values.h"

namespace plotsmith::test {
namespace {

using com::ComPtr;
using com::OwnedVariant;

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

/// An argument of a call, with the value that it refers to.
struct Argument {
  std::string name;
  VARIANT value;
  VARIANT target;  ///< The target of a reference to a Variant.
  void* data;      ///< The target of any other reference.

  Argument() {
    VariantInit(&value);
    VariantInit(&target);
  }
};

VARIANT OfType(VARTYPE type) {
  VARIANT value;
  VariantInit(&value);
  value.vt = type;
  value.llVal = 0;
  return value;
}

SAFEARRAY* TextArray(const std::vector<std::string>& texts) {
  SAFEARRAY* const array = SafeArrayCreateVector(VT_BSTR, 1, static_cast<ULONG>(texts.size()));
  BSTR* elements = nullptr;
  SafeArrayAccessData(array, reinterpret_cast<void**>(&elements));
  for (std::size_t i = 0; i < texts.size(); ++i) elements[i] = com::NewBstr(texts[i]);
  SafeArrayUnaccessData(array);
  return array;
}

VARIANT ArrayOf(VARTYPE type, SAFEARRAY* array) {
  VARIANT value = OfType(VT_ARRAY | type);
  value.parray = array;
  return value;
}

VARIANT ObjectOf(IUnknown* object, VARTYPE type) {
  VARIANT value = OfType(type);
  value.punkVal = object;
  if (object != nullptr) object->AddRef();
  return value;
}

/// An object that has only a default member, a text.
class TextObject final : public IDispatch {
 public:
  explicit TextObject(std::string text) : text_(std::move(text)) {}

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    if (member != DISPID_VALUE || (flags & DISPATCH_PROPERTYGET) == 0) return DISP_E_MEMBERNOTFOUND;
    // Without a text, the object returns itself, as a hostile object may do.
    *result = (text_.empty() ? com::ToVariant(static_cast<IDispatch*>(this))
                             : com::ToVariant(runtime::Variant(text_)))
                  .Detach();
    return S_OK;
  }

 private:
  std::string text_;
  ULONG references_ = 1;
};

VARIANT ValueOf(const std::string& kind, const std::string& text, IDispatch* application) {
  if (kind == "s") return com::ToVariant(runtime::Variant(text)).Detach();
  if (kind == "i") return com::ToVariant(runtime::Variant(std::stoi(text))).Detach();
  if (kind == "o") return ObjectOf(application, VT_DISPATCH);
  if (kind == "u") return ObjectOf(application, VT_UNKNOWN);
  if (kind == "n") return ObjectOf(nullptr, VT_DISPATCH);
  if (kind == "d") return ObjectOf(ComPtr<IDispatch>::Attach(new TextObject(text)).Get(), VT_DISPATCH);
  if (kind == "null") return OfType(VT_NULL);
  if (kind == "empty") return OfType(VT_EMPTY);
  if (kind == "missing") return com::Missing().Detach();
  if (kind == "e") {
    VARIANT value = OfType(VT_ERROR);
    value.scode = static_cast<SCODE>(0x800A07D7);  // #DIV/0!
    return value;
  }
  if (kind == "as") return ArrayOf(VT_BSTR, TextArray(Split(text, ',')));
  if (kind == "av") return com::ToArray(Split(text, ',')).Detach();
  if (kind == "as0") return ArrayOf(VT_BSTR, nullptr);
  if (kind == "ai") return ArrayOf(VT_I4, SafeArrayCreateVector(VT_I4, 0, 2));
  if (kind == "as2") {
    SAFEARRAYBOUND bounds[] = {{1, 0}, {1, 0}};
    return ArrayOf(VT_BSTR, SafeArrayCreate(VT_BSTR, 2, bounds));
  }
  throw runtime::RuntimeError(runtime::error::kInvalidCall, "There is no kind of argument \"" + kind + "\".");
}

/// Converts a value to a reference: "&" to its contents, "&v" to a Variant.
void Refer(Argument& argument, const std::string& reference) {
  argument.target = argument.value;
  VARIANT& value = argument.value;
  if (reference == "&v") {
    value.vt = VT_BYREF | VT_VARIANT;
    value.pvarVal = &argument.target;
  } else {
    value.vt = static_cast<VARTYPE>(VT_BYREF | argument.target.vt);
    value.byref = &argument.target.byref;
  }
}

void Parse(const std::string& text, IDispatch* application, Argument& argument) {
  const std::size_t colon = std::min(text.find(':'), text.size());
  std::string kind = text.substr(0, colon);
  const std::size_t equals = kind.find('=');
  if (equals != std::string::npos) {
    argument.name = kind.substr(0, equals);
    kind = kind.substr(equals + 1);
  }
  const std::string reference = kind.starts_with("&v") ? "&v" : kind.starts_with("&") ? "&" : "";
  argument.value =
      ValueOf(kind.substr(reference.size()), text.substr(std::min(colon + 1, text.size())), application);
  if (!reference.empty()) Refer(argument, reference);
}

/// The arguments of a call in reverse order, as they are passed.
class Sent {
 public:
  Sent(const std::string& call, IDispatch* application) {
    const std::vector<std::string> parts = Split(call, '|');
    operation_ = parts.at(0);
    arguments_.resize(parts.size() - 1);
    for (std::size_t i = 1; i < parts.size(); ++i) Parse(parts[i], application, arguments_[i - 1]);
  }
  ~Sent() {
    for (Argument& argument : arguments_) {
      const bool isReference = (argument.value.vt & VT_BYREF) != 0;
      VariantClear(isReference ? &argument.target : &argument.value);
    }
  }
  Sent(const Sent&) = delete;
  Sent& operator=(const Sent&) = delete;

  const std::string& Operation() const { return operation_; }
  Argument& At(std::size_t index) { return arguments_.at(index); }
  std::vector<Argument>& All() { return arguments_; }

 private:
  std::string operation_;
  std::vector<Argument> arguments_;
};

std::string ResultText(HRESULT result, int position) {
  if (result == S_OK) return "ok";
  char text[40];
  std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
  return position < 0 ? text : text + (" at " + std::to_string(position));
}

}  // namespace

std::string CallLateBound(IDispatch* controller, const std::string& call, IDispatch* application) {
  Sent sent(call, application);
  std::vector<std::wstring> names = {com::Wide(sent.Operation())};
  std::vector<VARIANT> named;
  std::vector<VARIANT> positional;
  for (Argument& argument : sent.All()) {
    if (argument.name.empty()) {
      positional.insert(positional.begin(), argument.value);
    } else {
      names.push_back(com::Wide(argument.name));
      named.push_back(argument.value);
    }
  }
  // The object doesn't know a number as a name.
  std::vector<DISPID> numbers;
  while (names.size() > 1 && names.back().starts_with(L"#")) {
    numbers.insert(numbers.begin(), std::stoi(names.back().substr(1)));
    names.pop_back();
  }
  std::vector<LPOLESTR> nameTexts;
  for (std::wstring& name : names) nameTexts.push_back(name.data());
  std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
  const HRESULT known = controller->GetIDsOfNames(IID_NULL, nameTexts.data(), static_cast<UINT>(names.size()),
                                                  LOCALE_USER_DEFAULT, ids.data());
  if (FAILED(known)) return ResultText(known, -1) + " by its name";
  ids.insert(ids.end(), numbers.begin(), numbers.end());
  std::vector<VARIANT> arguments = named;
  arguments.insert(arguments.end(), positional.begin(), positional.end());
  DISPPARAMS parameters = {arguments.data(), ids.data() + 1, static_cast<UINT>(arguments.size()),
                           static_cast<UINT>(named.size())};
  UINT bad = static_cast<UINT>(-1);
  const HRESULT result = controller->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                            &parameters, nullptr, nullptr, &bad);
  return ResultText(result, static_cast<int>(bad));
}

std::string CallEarlyBound(IDispatch* controller, const std::string& call, IDispatch* application) {
  const auto bound = ComPtr<IDispatch>(controller).As<IPlotsmithController>(IID_IPlotsmithController);
  if (!bound) return "no IPlotsmithController";
  Sent sent(call, application);
  IDispatch* const host = sent.At(0).value.pdispVal;
  const auto text = [&](std::size_t index) { return sent.At(index).value.bstrVal; };
  const auto array = [&](std::size_t index) { return &sent.At(index).value.parray; };
  HRESULT result = DISP_E_UNKNOWNNAME;
  if (sent.Operation() == "RunPlotsmith") result = bound->RunPlotsmith(host, text(1), text(2));
  if (sent.Operation() == "RefreshPlotsmithData")
    result = bound->RefreshPlotsmithData(host, text(1), text(2));
  if (sent.Operation() == "RefreshChartsForTable") {
    result = bound->RefreshChartsForTable(host, &sent.At(1).value.bstrVal);
  }
  if (sent.Operation() == "UpdateChartColumnNamesForTable") {
    result = bound->UpdateChartColumnNamesForTable(host, text(1), array(2), array(3));
  }
  return ResultText(result, -1);
}

namespace {

/// Returns the name of a type in the interface definition language.
std::string TypeText(const TYPEDESC& type) {
  switch (type.vt) {
    case VT_PTR:
      return TypeText(*type.lptdesc) + "*";
    case VT_SAFEARRAY:
      return "SAFEARRAY(" + TypeText(*type.lptdesc) + ")";
    case VT_BSTR:
      return "BSTR";
    case VT_DISPATCH:
      return "IDispatch*";
    default:
      return "type " + std::to_string(type.vt);
  }
}

std::string Name(ITypeInfo& info, MEMBERID member) {
  com::OwnedBstr name;
  info.GetDocumentation(member, name.Put(), nullptr, nullptr, nullptr);
  return com::Utf8(name);
}

std::string FunctionText(ITypeInfo& info, const FUNCDESC& function) {
  BSTR found[8] = {};
  UINT count = 0;
  info.GetNames(function.memid, found, 8, &count);
  std::vector<com::OwnedBstr> names;
  for (BSTR name : found) names.push_back(com::OwnedBstr::Attach(name));
  std::string text = std::to_string(function.memid) + " " + com::Utf8(names[0]) + "(";
  for (SHORT i = 0; i < function.cParams; ++i) {
    const ELEMDESC& parameter = function.lprgelemdescParam[i];
    const bool isOut = (parameter.paramdesc.wParamFlags & PARAMFLAG_FOUT) != 0;
    text += (i == 0 ? "" : ", ") + std::string(isOut ? "[in, out] " : "") + TypeText(parameter.tdesc) + " " +
            com::Utf8(names.at(static_cast<std::size_t>(i) + 1));
  }
  return text + ")";
}

}  // namespace

std::string Describe(IDispatch* object) {
  ComPtr<ITypeInfo> classInfo;
  const auto provider = ComPtr<IDispatch>(object).As<IProvideClassInfo>(IID_IProvideClassInfo);
  std::string text = "no class";
  if (provider && SUCCEEDED(provider->GetClassInfo(classInfo.Put())))
    text = Name(*classInfo.Get(), MEMBERID_NIL);
  ComPtr<ITypeInfo> info;
  object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Put());
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  text += ": " + Name(*info.Get(), MEMBERID_NIL);
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    if (FAILED(info->GetFuncDesc(i, &function))) break;
    if (function->memid > 0 && function->memid < 0x60000000)
      text += "\n" + FunctionText(*info.Get(), *function);
    info->ReleaseFuncDesc(function);
  }
  info->ReleaseTypeAttr(attributes);
  return text;
}

__attribute__((noinline)) void CallWithStackOf(unsigned kilobytes, IDispatch* function) {
  ULONG_PTR low = 0;
  ULONG_PTR high = 0;
  GetCurrentThreadStackLimits(&low, &high);
  const auto here = reinterpret_cast<ULONG_PTR>(__builtin_frame_address(0));
  const std::size_t used = here - low > kilobytes * 1024 ? here - low - kilobytes * 1024 : 0;
  auto* const waste = static_cast<volatile char*>(alloca(used + 1));
  for (std::size_t i = used; i > 4096; i -= 4096) waste[i] = 1;  // page by page, downwards
  DISPPARAMS none = {};
  function->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                   nullptr);
  waste[0] = 0;
}

std::string RefreshOnOtherThread() {
  std::string shown;
  std::thread([&] {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    {
      MessageBoxes boxes;
      ComPtr<IDispatch> controller;
      CLSID classId;
      CLSIDFromProgID(L"Plotsmith.CPlotsmithController", &classId);
      CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                       reinterpret_cast<void**>(controller.Put()));
      const std::string result = CallLateBound(controller.Get(), "RefreshPlotsmithData|n|s:|s:", nullptr);
      shown = result + "\n" + boxes.Take();
    }
    CoUninitialize();
  }).join();
  return shown;
}

}  // namespace plotsmith::test
