#include "windows/server/Controller.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "controller/CPlotsmithController.h"
#include "windows/com/Windows.h"
#include "windows/excel/WrapApplication.h"
#include "windows/server/Arguments.h"
#include "windows/server/Component.h"
#include "windows/server/Guard.h"
#include "windows/server/HostWindow.h"
#include "windows/server/TypeLibrary.h"

namespace plotsmith::windows {
namespace {

/// The identifiers of the operations in the type library.
enum Operation : DISPID {
  kRunPlotsmith = 1,
  kRefreshPlotsmithData,
  kRefreshChartsForTable,
  kUpdateColumnNames
};

using Host = runtime::Ref<excel::Application>;

/// Runs an operation on the host `application`. `name` is the operation's name in error reports.
void Run(const char* name, IDispatch* application, const std::function<void(const Host&)>& body) {
  RunOperation(
      name, [&] { return HostWindow(application); }, [&] { body(excel::WrapApplication(application)); });
}

void RunWizard(IDispatch* application, const std::string& name, const std::string& helpFile) {
  Run("CPlotsmithController.RunPlotsmith", application,
      [&](const Host& host) { CPlotsmithController().RunPlotsmith(host, name, helpFile); });
}

void Refresh(IDispatch* application, const std::string& name, const std::string& helpFile) {
  Run("CPlotsmithController.RefreshPlotsmithData", application,
      [&](const Host& host) { CPlotsmithController().RefreshPlotsmithData(host, name, helpFile); });
}

/// Refreshes the charts of a table. The operation takes the table's name by reference, but doesn't change it.
void RefreshTable(IDispatch* application, std::string table) {
  Run("CPlotsmithController.RefreshChartsForTable", application,
      [&](const Host& host) { CPlotsmithController().RefreshChartsForTable(host, table); });
}

void RenameColumns(IDispatch* application, const std::string& table, std::vector<std::string> oldNames,
                   std::vector<std::string> newNames) {
  Run("CPlotsmithController.UpdateChartColumnNames", application, [&](const Host& host) {
    CPlotsmithController().UpdateChartColumnNamesForTable(host, table, oldNames, newNames);
  });
}

/// Reads the arguments and runs an operation. All arguments are read before the operation begins.
void InvokeOperation(DISPID operation, const DISPPARAMS& sent) {
  switch (operation) {
    case kRunPlotsmith:
    case kRefreshPlotsmithData: {
      const Arguments arguments(sent, 3);
      const com::ComPtr<IDispatch> application = arguments.Object(0);
      const std::string name = arguments.Text(1);
      const std::string helpFile = arguments.Text(2);
      (operation == kRunPlotsmith ? RunWizard : Refresh)(application.Get(), name, helpFile);
      break;
    }
    case kRefreshChartsForTable: {
      const Arguments arguments(sent, 2);
      const com::ComPtr<IDispatch> application = arguments.Object(0);
      RefreshTable(application.Get(), arguments.Text(1));
      break;
    }
    case kUpdateColumnNames: {
      const Arguments arguments(sent, 4);
      const com::ComPtr<IDispatch> application = arguments.Object(0);
      RenameColumns(application.Get(), arguments.Text(1), arguments.Texts(2), arguments.Texts(3));
      break;
    }
    default:
      throw ArgumentError{DISP_E_MEMBERNOTFOUND, 0};
  }
}

/// Converts an argument of an early-bound client to the same argument of a late-bound call.
/// @{
VARIANT AsArgument(IDispatch* object) {
  VARIANT argument;
  argument.vt = VT_DISPATCH;
  argument.pdispVal = object;
  return argument;
}
VARIANT AsArgument(BSTR text) {
  VARIANT argument;
  argument.vt = VT_BSTR;
  argument.bstrVal = text;
  return argument;
}
VARIANT AsArgument(SAFEARRAY** texts) {
  VARIANT argument;
  argument.vt = VT_BYREF | VT_ARRAY | VT_BSTR;
  argument.pparray = texts;
  return argument;
}
///@}

/// Runs an operation for an early-bound client. The arguments are in reverse order, as in a late-bound call.
HRESULT InvokeEarlyBound(DISPID operation, std::initializer_list<VARIANT> reversed) noexcept {
  try {
    std::vector<VARIANT> arguments(reversed);
    InvokeOperation(operation, {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0});
    return S_OK;
  } catch (const ArgumentError& error) {
    return error.code;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace

HRESULT Controller::QueryInterface(REFIID interfaceId, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (interfaceId == IID_IUnknown || interfaceId == IID_IDispatch ||
      interfaceId == IID_IPlotsmithController) {
    *object = static_cast<IPlotsmithController*>(this);
  } else if (interfaceId == IID_IProvideClassInfo) {
    *object = static_cast<IProvideClassInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG Controller::AddRef() noexcept { return ++references_; }

ULONG Controller::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT Controller::GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT Controller::GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept {
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded([&] { return FindTypeInfo(IID_IPlotsmithController, info); });
}

HRESULT Controller::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
  if (names == nullptr || ids == nullptr) return E_POINTER;
  return Guarded([&] {
    com::ComPtr<ITypeInfo> info;
    const HRESULT found = FindTypeInfo(IID_IPlotsmithController, info.Put());
    return FAILED(found) ? found : info->GetIDsOfNames(names, count, ids);
  });
}

HRESULT Controller::Invoke(DISPID member, REFIID interfaceId, LCID, WORD flags, DISPPARAMS* arguments,
                           VARIANT* result, EXCEPINFO*, UINT* badArgument) noexcept {
  if (interfaceId != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_POINTER;
  // VBScript sets the flags of a method and of a property together if it uses the result.
  if ((flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
  if (result != nullptr) VariantInit(result);
  // The host may release this object during the call, so the code below must not use its members.
  try {
    InvokeOperation(member, *arguments);
    return S_OK;
  } catch (const ArgumentError& error) {
    const bool isOfOne = error.code == DISP_E_TYPEMISMATCH || error.code == DISP_E_PARAMNOTFOUND;
    if (isOfOne && badArgument != nullptr) *badArgument = error.position;
    return error.code;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT Controller::RunPlotsmith(IDispatch* oApplication, BSTR sCustomAppName, BSTR sHelpFile) noexcept {
  return InvokeEarlyBound(kRunPlotsmith,
                          {AsArgument(sHelpFile), AsArgument(sCustomAppName), AsArgument(oApplication)});
}

HRESULT Controller::RefreshPlotsmithData(IDispatch* oApplication, BSTR sCustomAppName,
                                         BSTR sHelpFile) noexcept {
  return InvokeEarlyBound(kRefreshPlotsmithData,
                          {AsArgument(sHelpFile), AsArgument(sCustomAppName), AsArgument(oApplication)});
}

HRESULT Controller::RefreshChartsForTable(IDispatch* oApplication, BSTR* sTableRangeName) noexcept {
  if (sTableRangeName == nullptr) return E_POINTER;
  return InvokeEarlyBound(kRefreshChartsForTable, {AsArgument(*sTableRangeName), AsArgument(oApplication)});
}

HRESULT Controller::UpdateChartColumnNamesForTable(IDispatch* oApplication, BSTR sTableRangeName,
                                                   SAFEARRAY** aOldColumnNames,
                                                   SAFEARRAY** aNewColumnNames) noexcept {
  if (aOldColumnNames == nullptr || aNewColumnNames == nullptr) return E_POINTER;
  return InvokeEarlyBound(kUpdateColumnNames, {AsArgument(aNewColumnNames), AsArgument(aOldColumnNames),
                                               AsArgument(sTableRangeName), AsArgument(oApplication)});
}

HRESULT Controller::GetClassInfo(ITypeInfo** info) noexcept {
  return Guarded([&] { return FindTypeInfo(CLSID_CPlotsmithController, info); });
}

}  // namespace plotsmith::windows
