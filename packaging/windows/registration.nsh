; The registry entries by which clients find the component. They are the same that each DLL writes for regsvr32, for both
; DLLs, below the root of all users or of one user. They are written here because one program must write the entries for 64
; and for 32 bits.

!define CONTROLLER "Plotsmith.CPlotsmithController"
!define CONTROLLER_TITLE "Plotsmith's controller"
!define CLASS_ID "{3D033444-F6E8-4444-9C14-B535F2262406}"
!define CLASS_KEY "Software\Classes\CLSID\${CLASS_ID}"
!define INTERFACE_KEY "Software\Classes\Interface\{95DC0874-0F63-4B7B-97E4-0A487C3BF061}"
!define LIBRARY_ID "{F04CE731-6B84-4BED-A04E-E3FE9C127813}"
!define LIBRARY_KEY "Software\Classes\TypeLib\${LIBRARY_ID}"
; The class of OLE Automation that marshals the calls of all dual interfaces between apartments.
!define AUTOMATION_PROXY "{00020424-0000-0000-C000-000000000046}"

; Windows has one copy of the names and the type library for 32-bit and 64-bit programs, and two of the class and interface.
!macro RegisterLibrary BITS PLATFORM DLL
  SetRegView ${BITS}
  WriteRegStr SHCTX "${CLASS_KEY}" "" "${CONTROLLER_TITLE}"
  WriteRegStr SHCTX "${CLASS_KEY}\InprocServer32" "" "${DLL}"
  WriteRegStr SHCTX "${CLASS_KEY}\InprocServer32" "ThreadingModel" "Apartment"
  WriteRegStr SHCTX "${CLASS_KEY}\ProgID" "" "${CONTROLLER}.1"
  WriteRegStr SHCTX "${CLASS_KEY}\VersionIndependentProgID" "" "${CONTROLLER}"
  WriteRegStr SHCTX "${CLASS_KEY}\TypeLib" "" "${LIBRARY_ID}"
  WriteRegStr SHCTX "${CLASS_KEY}\Version" "" "1.0"
  WriteRegStr SHCTX "${CLASS_KEY}\Programmable" "" ""
  WriteRegStr SHCTX "Software\Classes\${CONTROLLER}.1" "" "${CONTROLLER_TITLE}"
  WriteRegStr SHCTX "Software\Classes\${CONTROLLER}.1\CLSID" "" "${CLASS_ID}"
  WriteRegStr SHCTX "Software\Classes\${CONTROLLER}" "" "${CONTROLLER_TITLE}"
  WriteRegStr SHCTX "Software\Classes\${CONTROLLER}\CLSID" "" "${CLASS_ID}"
  WriteRegStr SHCTX "Software\Classes\${CONTROLLER}\CurVer" "" "${CONTROLLER}.1"
  WriteRegStr SHCTX "${LIBRARY_KEY}\1.0" "" "${PRODUCT}"
  WriteRegStr SHCTX "${LIBRARY_KEY}\1.0\FLAGS" "" "0"
  ; Add-ins read the folder of Plotsmith.chm here.
  WriteRegStr SHCTX "${LIBRARY_KEY}\1.0\HELPDIR" "" "$INSTDIR"
  WriteRegStr SHCTX "${LIBRARY_KEY}\1.0\0\${PLATFORM}" "" "${DLL}"
  WriteRegStr SHCTX "${INTERFACE_KEY}" "" "IPlotsmithController"
  WriteRegStr SHCTX "${INTERFACE_KEY}\ProxyStubClsid32" "" "${AUTOMATION_PROXY}"
  WriteRegStr SHCTX "${INTERFACE_KEY}\TypeLib" "" "${LIBRARY_ID}"
  WriteRegStr SHCTX "${INTERFACE_KEY}\TypeLib" "Version" "1.0"
!macroend

!macro RegisterComponent
  !insertmacro RegisterLibrary 32 win32 "$INSTDIR\x86\Plotsmith.dll"
  !insertmacro RegisterLibrary 64 win64 "$INSTDIR\x64\Plotsmith.dll"
!macroend

; A DLL that regsvr32 has registered from another folder meanwhile keeps its entries.
!macro UnregisterLibrary BITS PLATFORM DLL
  SetRegView ${BITS}
  ReadRegStr $0 SHCTX "${CLASS_KEY}\InprocServer32" ""
  ${If} $0 == "${DLL}"
    DeleteRegKey SHCTX "${CLASS_KEY}"
    DeleteRegKey SHCTX "${INTERFACE_KEY}"
  ${EndIf}
  ReadRegStr $0 SHCTX "${LIBRARY_KEY}\1.0\0\${PLATFORM}" ""
  ${If} $0 == "${DLL}"
    DeleteRegKey SHCTX "${LIBRARY_KEY}\1.0\0\${PLATFORM}"
  ${EndIf}
!macroend

; Removes the entries that neither DLL needs any more.
!macro UnregisterShared BITS
  SetRegView 32
  ReadRegStr $0 SHCTX "${CLASS_KEY}\InprocServer32" ""
  SetRegView 64
  ReadRegStr $1 SHCTX "${CLASS_KEY}\InprocServer32" ""
  SetRegView ${BITS}
  ${If} "$0$1" == ""
    DeleteRegKey SHCTX "Software\Classes\${CONTROLLER}.1"
    DeleteRegKey SHCTX "Software\Classes\${CONTROLLER}"
  ${EndIf}
  EnumRegKey $0 SHCTX "${LIBRARY_KEY}\1.0\0" 0
  ${If} $0 == ""
    DeleteRegKey SHCTX "${LIBRARY_KEY}"
  ${EndIf}
!macroend

!macro UnregisterComponent
  !insertmacro UnregisterLibrary 32 win32 "$INSTDIR\x86\Plotsmith.dll"
  !insertmacro UnregisterLibrary 64 win64 "$INSTDIR\x64\Plotsmith.dll"
  !insertmacro UnregisterShared 32
  !insertmacro UnregisterShared 64
!macroend

; Removes the lists of classes of a user if they are empty.
!macro RemoveEmptyListsOf BITS
  SetRegView ${BITS}
  DeleteRegKey /ifempty HKCU "Software\Classes\CLSID"
  DeleteRegKey /ifempty HKCU "Software\Classes\Interface"
  DeleteRegKey /ifempty HKCU "Software\Classes\TypeLib"
!macroend

!macro RemoveEmptyLists
  !insertmacro RemoveEmptyListsOf 32
  !insertmacro RemoveEmptyListsOf 64
  DeleteRegKey /ifempty HKCU "Software\Classes\Wow6432Node"
  DeleteRegKey /ifempty HKCU "Software\Classes"
!macroend
