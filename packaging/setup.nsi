; The setup program: DevHost with its samples and documents for the current user, and on request the module in the
; folder of a host. scripts/pack-setup defines VERSION, ARCHITECTURE, STAGE (the folder with the files), FILES (what
; the uninstaller removes) and OUTPUT.
;
; Silent: /S, with /D=FOLDER (last, without quotes) for another folder and /HOST=FOLDER for the module. The exit status
; is 2 when it could not install.

Unicode true
!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh

!define NAME "TavrinWnd"
!define KEY "Software\${NAME}-${ARCHITECTURE}"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}-${ARCHITECTURE}"
!define UNINSTALLER "uninstall.exe"
!define FAILED 2
!if "${ARCHITECTURE}" == "x64"
  !define BITS 64
!else
  !define BITS 32
!endif

Name "${NAME} ${VERSION} (${ARCHITECTURE})"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}-${ARCHITECTURE}"
InstallDirRegKey HKCU "${KEY}" "Folder"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ShowInstDetails hide
BrandingText "${NAME} ${VERSION}"
ManifestDPIAware true

Var HostFolder   ; empty: the module is not wanted
Var HostCheckBox
Var HostEdit
Var HostBrowse

!define MUI_WELCOMEPAGE_TEXT "This installs DevHost with its sample items and documentation for you alone. No \
administrator is needed.$\r$\n$\r$\nThe plug-in itself can be copied into the folder of a host application as well."
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_HEADER_TEXT "Licence"
!define MUI_PAGE_HEADER_SUBTEXT "What you may do with ${NAME}."
!define MUI_LICENSEPAGE_TEXT_TOP "About the licence:"
!define MUI_LICENSEPAGE_TEXT_BOTTOM "Click Next to continue."
!define MUI_LICENSEPAGE_BUTTON "&Next >"
!insertmacro MUI_PAGE_LICENSE "${STAGE}/LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
Page custom ShowHostPage LeaveHostPage
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\DevHost.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS '--texts $\"$INSTDIR\en\TavrinRes.dll$\"'
!define MUI_FINISHPAGE_RUN_TEXT "Start DevHost"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\README.html"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Show the documentation"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Setup of ${NAME}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

Function .onInit
  ${GetParameters} $0
  ${GetOptions} $0 "/HOST=" $HostFolder
  ${If} ${Silent}
    Call CheckHostFolder
  ${EndIf}
FunctionEnd

; Ends the setup program when the folder of the host does not exist; for silent mode.
Function CheckHostFolder
  ${If} $HostFolder != ""
  ${AndIfNot} ${FileExists} "$HostFolder\*.*"
    SetErrorLevel ${FAILED}
    Quit
  ${EndIf}
FunctionEnd

Function ShowHostPage
  !insertmacro MUI_HEADER_TEXT "Host application" "Choose whether the plug-in is to be copied to a host application."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateCheckBox} 0 0 100% 12u "&Copy TavrinWnd.dll to the folder of a host application:"
  Pop $HostCheckBox
  ${NSD_OnClick} $HostCheckBox UpdateHostPage
  ${NSD_CreateDirRequest} 0 18u 78% 13u "$HostFolder"
  Pop $HostEdit
  ${NSD_CreateBrowseButton} 80% 17u 20% 15u "B&rowse..."
  Pop $HostBrowse
  ${NSD_OnClick} $HostBrowse BrowseForHost
  ${NSD_CreateLabel} 0 42u 100% 40u "It must be a ${BITS}-bit host. Its texts, TavrinRes.dll, are copied as well \
unless there are some already. Close the host application first."
  Pop $0
  ${If} $HostFolder != ""
    ${NSD_Check} $HostCheckBox
  ${EndIf}
  Call EnableHostFolder
  nsDialogs::Show
FunctionEnd

Function UpdateHostPage
  Pop $0
  Call EnableHostFolder
FunctionEnd

Function EnableHostFolder
  ${NSD_GetState} $HostCheckBox $0
  EnableWindow $HostEdit $0
  EnableWindow $HostBrowse $0
FunctionEnd

Function BrowseForHost
  Pop $0
  ${NSD_GetText} $HostEdit $1
  nsDialogs::SelectFolderDialog "The folder of the host application" "$1"
  Pop $0
  ${If} $0 != error
    ${NSD_SetText} $HostEdit $0
  ${EndIf}
FunctionEnd

Function LeaveHostPage
  StrCpy $HostFolder ""
  ${NSD_GetState} $HostCheckBox $0
  ${If} $0 <> 0
    ${NSD_GetText} $HostEdit $HostFolder
    ${IfNot} ${FileExists} "$HostFolder\*.*"
    ${OrIf} $HostFolder == ""
      MessageBox MB_OK|MB_ICONEXCLAMATION "The folder '$HostFolder' does not exist: choose the folder of a host \
application."
      Abort
    ${EndIf}
  ${EndIf}
FunctionEnd

Function NotWritten
  MessageBox MB_OK|MB_ICONSTOP "Some files could not be written. Close DevHost and the host application, and check \
that you may write to the folders." /SD IDOK
  SetErrorLevel ${FAILED}
  Abort "Some files could not be written."
FunctionEnd

Section "DevHost"
  SetOverwrite try
  ClearErrors
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*"
  ${If} ${Errors}
    Call NotWritten
  ${EndIf}
  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  WriteRegStr HKCU "${KEY}" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME} ${VERSION} (${ARCHITECTURE})"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\DevHost.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  CreateDirectory "$SMPROGRAMS\${NAME}-${ARCHITECTURE}"
  CreateShortcut "$SMPROGRAMS\${NAME}-${ARCHITECTURE}\DevHost.lnk" "$INSTDIR\DevHost.exe" \
    '--texts "$INSTDIR\en\TavrinRes.dll"'
  CreateShortcut "$SMPROGRAMS\${NAME}-${ARCHITECTURE}\DevHost (Italian texts).lnk" "$INSTDIR\DevHost.exe" \
    '--texts "$INSTDIR\TavrinRes.dll"'
  CreateShortcut "$SMPROGRAMS\${NAME}-${ARCHITECTURE}\Documentation.lnk" "$INSTDIR\README.html"
  CreateShortcut "$SMPROGRAMS\${NAME}-${ARCHITECTURE}\Uninstall.lnk" "$INSTDIR\${UNINSTALLER}"
SectionEnd

; Texts of the user's own stay as they are.
Section "Module"
  ${If} $HostFolder != ""
    SetOverwrite try
    ClearErrors
    SetOutPath "$HostFolder"
    File "${STAGE}/TavrinWnd.dll"
    ${If} ${Errors}
      Call NotWritten
    ${EndIf}
    WriteRegStr HKCU "${KEY}" "HostFolder" "$HostFolder"
    ${IfNot} ${FileExists} "$HostFolder\TavrinRes.dll"
      File "${STAGE}/TavrinRes.dll"
      WriteRegStr HKCU "${KEY}" "HostTexts" "$HostFolder\TavrinRes.dll"
    ${EndIf}
  ${EndIf}
SectionEnd

; What the user has added to the folders stays, with the folders that hold it.
Section "Uninstall"
  SetOutPath "$TEMP"
  ReadRegStr $0 HKCU "${KEY}" "HostFolder"
  ${If} $0 != ""
    Delete "$0\TavrinWnd.dll"
  ${EndIf}
  ReadRegStr $0 HKCU "${KEY}" "HostTexts"
  ${If} $0 != ""
    Delete "$0"
  ${EndIf}
  !include "${FILES}"
  Delete "$INSTDIR\${UNINSTALLER}"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}-${ARCHITECTURE}\*.lnk"
  RMDir "$SMPROGRAMS\${NAME}-${ARCHITECTURE}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "${KEY}"
SectionEnd
