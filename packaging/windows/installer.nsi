; PlotsmithSetup.exe. make-setup.sh defines PRODUCT, PUBLISHER and VERSION; SETUP, the output file; FILES, the folder with
; all installed files; SIZE, its size in kilobytes; and LISTS, a file of macros that list its files.
;
; PlotsmithSetup.exe [/S] [/CurrentUser | /AllUsers] [/D=FOLDER]
; It exits with 0 if Plotsmith is installed, with 1 if the user cancelled, and with 2 if it could not be installed.

Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
Name "${PRODUCT}"
OutFile "${SETUP}"
BrandingText "${PRODUCT} ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Plotsmith"

!define MULTIUSER_MUI
!define MULTIUSER_NOUNINSTALL
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR Plotsmith
; A second installation uses the folder of the first one, unless another folder is given.
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${ENTRY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME DisplayVersion
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${ENTRY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include packaging/windows/registration.nsh
!include "${LISTS}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1033 CompanyName "${PUBLISHER}"
VIAddVersionKey /LANG=1033 FileDescription "${PRODUCT} Setup"
VIAddVersionKey /LANG=1033 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1033 LegalCopyright ""
VIAddVersionKey /LANG=1033 ProductName "${PRODUCT}"
VIAddVersionKey /LANG=1033 ProductVersion "${VERSION}"

!define MUI_FINISHPAGE_SHOWREADME
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Show how to make the first chart"
!define MUI_FINISHPAGE_SHOWREADME_FUNCTION ShowFirstSteps
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; The browser must not run as administrator, so the user's own Explorer starts it.
Function ShowFirstSteps
  Exec '"$WINDIR\explorer.exe" "$INSTDIR\excel.html"'
FunctionEnd

; Ends the program. A silent run shows no message and only exits with 2.
!macro StopWith TEXT
  MessageBox MB_OK|MB_ICONSTOP "${TEXT}" /SD IDOK
  SetErrorLevel 2
  Quit
!macroend

; Waits until a file of the installation can be changed. A component that Excel has loaded can't be changed. The file may be
; missing in FOLDER.
!macro WaitForFile FOLDER FILE
  ${If} ${FileExists} "${FOLDER}\${FILE}"
    ${Do}
      ClearErrors
      FileOpen $0 "${FOLDER}\${FILE}" a
      ${IfNot} ${Errors}
        FileClose $0
        ${ExitDo}
      ${EndIf}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
        "${FILE} can't be changed, as a program uses it or you may not write to ${FOLDER}. \
        Close Excel and Plotsmith's help, and try again." /SD IDCANCEL IDRETRY +3
      SetErrorLevel 2
      Quit
    ${Loop}
  ${EndIf}
!macroend

Function .onInit
  ; The selection of users below sets its own folder, even if the command line gives one.
  Push $INSTDIR
  !insertmacro MULTIUSER_INIT
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/CurrentUser" $1
  ${IfNot} ${Errors}
    Call MultiUser.InstallMode.CurrentUser
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    ${If} $MultiUser.Privileges != "Admin"
      !insertmacro StopWith "Only an administrator can install ${PRODUCT} for all users."
    ${EndIf}
    Call MultiUser.InstallMode.AllUsers
  ${EndIf}
  Pop $0
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
FunctionEnd

; Removes the version that is installed for the same users, in any folder, so that none of its files remains.
Function RemoveOlderVersion
  ReadRegStr $R0 SHCTX "${ENTRY}" InstallLocation
  ${If} $R0 == ""
  ${OrIfNot} ${FileExists} "$R0\Uninstall.exe"
    Return
  ${EndIf}
  !insertmacro WaitForFiles $R0
  ; With its folder after _?= the uninstaller runs in place, so that this program can wait for it; it can't delete itself then.
  ExecWait '"$R0\Uninstall.exe" /S _?=$R0' $0
  ${If} $0 != 0
    !insertmacro StopWith "The version of ${PRODUCT} in $R0 can't be removed."
  ${EndIf}
  Delete "$R0\Uninstall.exe"
  RMDir "$R0"
FunctionEnd

Section
  Call RemoveOlderVersion
  !insertmacro WaitForFiles $INSTDIR
  ClearErrors
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  !insertmacro RegisterComponent

  CreateDirectory "$SMPROGRAMS\Plotsmith"
  CreateShortcut "$SMPROGRAMS\Plotsmith\Plotsmith for Excel.lnk" "$INSTDIR\excel.html"
  CreateShortcut "$SMPROGRAMS\Plotsmith\Plotsmith Help.lnk" "$INSTDIR\Plotsmith.chm"

  WriteRegStr SHCTX "${ENTRY}" DisplayName "${PRODUCT}"
  WriteRegStr SHCTX "${ENTRY}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${ENTRY}" Publisher "${PUBLISHER}"
  WriteRegStr SHCTX "${ENTRY}" DisplayIcon "$INSTDIR\Uninstall.exe"
  WriteRegStr SHCTX "${ENTRY}" InstallLocation "$INSTDIR"
  WriteRegStr SHCTX "${ENTRY}" UninstallString '"$INSTDIR\Uninstall.exe"'
  WriteRegStr SHCTX "${ENTRY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD SHCTX "${ENTRY}" EstimatedSize ${SIZE}
  WriteRegDWORD SHCTX "${ENTRY}" NoModify 1
  WriteRegDWORD SHCTX "${ENTRY}" NoRepair 1
  ${If} ${Errors}
    !insertmacro StopWith "Not everything could be written to $INSTDIR and the registry. \
      Remove ${PRODUCT} in Windows' list of apps, and install it again."
  ${EndIf}
SectionEnd

Var OneUser  ; whether the installation is that of one user

; It is the installation for all users if that one is in the uninstaller's own folder.
Function un.onInit
  SetShellVarContext current
  StrCpy $OneUser yes
  ReadRegStr $0 HKLM "${ENTRY}" InstallLocation
  ${If} $0 != $INSTDIR
    Return
  ${EndIf}
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    !insertmacro StopWith "${PRODUCT} is installed for all users, so only an administrator can remove it."
  ${EndIf}
  SetShellVarContext all
  StrCpy $OneUser no
FunctionEnd

Section Uninstall
  !insertmacro WaitForFiles $INSTDIR
  !insertmacro UnregisterComponent
  Delete "$SMPROGRAMS\Plotsmith\Plotsmith for Excel.lnk"
  Delete "$SMPROGRAMS\Plotsmith\Plotsmith Help.lnk"
  RMDir "$SMPROGRAMS\Plotsmith"
  ; The user's own files in the folder are kept.
  !insertmacro DeleteFiles
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey SHCTX "${ENTRY}"
  ; Common keys of all programs of a user may exist only because of this program.
  ${If} $OneUser == yes
    !insertmacro RemoveEmptyLists
    DeleteRegKey /ifempty HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall"
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
SectionEnd
