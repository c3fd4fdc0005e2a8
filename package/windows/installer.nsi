; The installer of Kavetta, for the user who starts it; no administrator's rights. With /S it asks nothing.
; makensis -DVERSION=2021.1.1 -DFILES=<installed programs> -DICON=<kavetta.ico> -DSIZE_KB=<of the files> -DOUT=<installer>
Unicode true
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include WinVer.nsh

!define PROGRAM_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kavetta"
!define FILE_TYPE "Kavetta.Project"
!define SHCNE_ASSOCCHANGED 0x08000000

Name "Kavetta"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Kavetta"
InstallDirRegKey HKCU "${PROGRAM_KEY}" "InstallLocation"
BrandingText "Kavetta ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Kavetta"
VIAddVersionKey "FileDescription" "Kavetta ${VERSION}, setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Kavetta maintainers"
VIAddVersionKey "LegalCopyright" "2021-2026 Kavetta maintainers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\kavetta.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString RUNNING ${LANG_ENGLISH} "Kavetta is running. Close it, then try again."
LangString RUNNING ${LANG_GERMAN} "Kavetta läuft noch. Schließen Sie es und versuchen Sie es dann noch einmal."
LangString TOO_OLD ${LANG_ENGLISH} "Kavetta needs Windows 10 or later."
LangString TOO_OLD ${LANG_GERMAN} "Kavetta braucht Windows 10 oder neuer."
LangString PROJECT ${LANG_ENGLISH} "Kavetta project"
LangString PROJECT ${LANG_GERMAN} "Kavetta-Projekt"

; Removes a program, which can't be done while it runs.
!macro remove_program file
  !define again "again_${__LINE__}"
  !define gone "gone_${__LINE__}"
  ${again}:
    ClearErrors
    Delete "$INSTDIR\${file}"
    IfErrors 0 ${gone}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(RUNNING)" /SD IDCANCEL IDRETRY ${again}
    SetErrorLevel 2
    Quit
  ${gone}:
  !undef again
  !undef gone
!macroend

; What was installed, and nothing that somebody else has put into the folder.
!macro remove_files
  !insertmacro remove_program "kavetta.exe"
  !insertmacro remove_program "kvt.exe"
  RMDir /r "$INSTDIR\share"
  RMDir /r "$INSTDIR\licenses"
  Delete "$INSTDIR\uninstall.exe"
!macroend

!macro tell_the_desktop
  System::Call "shell32::SHChangeNotify(i ${SHCNE_ASSOCCHANGED}, i 0, p 0, p 0)"
!macroend

Function .onInit
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONSTOP "$(TOO_OLD)" /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

Section
  !insertmacro remove_files
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Kavetta.lnk" "$INSTDIR\kavetta.exe"

  WriteRegStr HKCU "Software\Classes\.KVT" "" "${FILE_TYPE}"
  WriteRegStr HKCU "Software\Classes\${FILE_TYPE}" "" "$(PROJECT)"
  WriteRegStr HKCU "Software\Classes\${FILE_TYPE}\DefaultIcon" "" "$INSTDIR\kavetta.exe,1"
  WriteRegStr HKCU "Software\Classes\${FILE_TYPE}\shell\open\command" "" '"$INSTDIR\kavetta.exe" "%1"'
  !insertmacro tell_the_desktop

  WriteRegStr HKCU "${PROGRAM_KEY}" "DisplayName" "Kavetta"
  WriteRegStr HKCU "${PROGRAM_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${PROGRAM_KEY}" "DisplayIcon" "$INSTDIR\kavetta.exe"
  WriteRegStr HKCU "${PROGRAM_KEY}" "Publisher" "Kavetta maintainers"
  WriteRegStr HKCU "${PROGRAM_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${PROGRAM_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${PROGRAM_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${PROGRAM_KEY}" "EstimatedSize" ${SIZE_KB}
  WriteRegDWORD HKCU "${PROGRAM_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${PROGRAM_KEY}" "NoRepair" 1
SectionEnd

; The user's own folder, $LOCALAPPDATA\Kavetta with settings and projects, stays.
Section "Uninstall"
  !insertmacro remove_files
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Kavetta.lnk"
  ReadRegStr $0 HKCU "Software\Classes\.KVT" ""
  StrCmp $0 "${FILE_TYPE}" 0 of_another_program
  DeleteRegKey HKCU "Software\Classes\.KVT"
  of_another_program:
  DeleteRegKey HKCU "Software\Classes\${FILE_TYPE}"
  !insertmacro tell_the_desktop
  DeleteRegKey HKCU "${PROGRAM_KEY}"
SectionEnd
