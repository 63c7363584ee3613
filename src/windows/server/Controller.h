#pragma once

#include <atomic>

#include "PlotsmithInterface.h"
#include "windows/com/Windows.h"
#include "windows/server/Module.h"

namespace plotsmith::windows {

/// The one class that clients can create. It has no state, so all objects behave in the same way. Its
/// interface is IPlotsmithController of the type library. The operations never fail: every error ends in a
/// message box. Invalid arguments are refused before an operation begins.
class Controller final : public IPlotsmithController, public IProvideClassInfo {
 public:
  /// The members of IUnknown. The last Release deletes the object.
  ///@{
  STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override;
  STDMETHODIMP_(ULONG) Release() noexcept override;
  ///@}

  /// The members of IDispatch, from the type library.
  ///@{
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override;
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override;
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO*, UINT* badArgument) noexcept override;
  ///@}

  /// The operations, which controller/IPlotsmithController.h describes.
  ///@{
  STDMETHODIMP RunPlotsmith(IDispatch* oApplication, BSTR sCustomAppName, BSTR sHelpFile) noexcept override;
  STDMETHODIMP RefreshPlotsmithData(IDispatch* oApplication, BSTR sCustomAppName,
                                    BSTR sHelpFile) noexcept override;
  STDMETHODIMP RefreshChartsForTable(IDispatch* oApplication, BSTR* sTableRangeName) noexcept override;
  STDMETHODIMP UpdateChartColumnNamesForTable(IDispatch* oApplication, BSTR sTableRangeName,
                                              SAFEARRAY** aOldColumnNames,
                                              SAFEARRAY** aNewColumnNames) noexcept override;
  ///@}

  /// Returns the description of the class in the type library.
  STDMETHODIMP GetClassInfo(ITypeInfo** info) noexcept override;

 private:
  ~Controller() = default;

  std::atomic<ULONG> references_ = 1;
  ModuleKeeper keeper_;
};

}  // namespace plotsmith::windows
