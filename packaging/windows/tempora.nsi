; The installer: for the user who runs it alone, so that no rights are asked for and app_data beside the
; program can be written. makensis -DVERSION=1.0.0 -DFILES=FOLDER -DICON=FILE.ico -DOUT=FILE.exe
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include LogicLib.nsh
!include MUI2.nsh

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tempora"

Name "Tempora"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Tempora"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
BrandingText "Tempora ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1036 "ProductName" "Tempora"
VIAddVersionKey /LANG=1036 "FileDescription" "Installateur de Tempora"
VIAddVersionKey /LANG=1036 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "LegalCopyright" "The Tempora authors, MIT License"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\tempora-setup.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Choisir la base maintenant"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\Lisez-moi.txt"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Montrer Lisez-moi"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

; A program that runs cannot be replaced nor removed. Windows opens its file to nobody who would write.
!macro RefuseWhileOpen PROGRAM
  ${If} ${FileExists} "$INSTDIR\${PROGRAM}"
    ${Do}
      ClearErrors
      FileOpen $0 "$INSTDIR\${PROGRAM}" a
      ${IfNot} ${Errors}
        FileClose $0
        ${ExitDo}
      ${EndIf}
      ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${PROGRAM} est ouvert. Fermez-le, puis réessayez." /SD IDCANCEL IDCANCEL`
        SetErrorLevel 3
        Abort "${PROGRAM} est ouvert."
      ${EndIf}
    ${Loop}
  ${EndIf}
!macroend

; What an earlier version has put there is known to its uninstaller: it takes away what was its own, and
; leaves what is the user's.
!macro RemoveEarlierVersion
  ReadRegStr $1 HKCU "${KEY}" "InstallLocation"
  ${If} $1 == $INSTDIR
  ${AndIf} ${FileExists} "$INSTDIR\desinstaller.exe"
    ExecWait '"$INSTDIR\desinstaller.exe" /S _?=$INSTDIR' $0
    ${If} $0 != 0
      SetErrorLevel 4
      Abort "La version précédente ne s’enlève pas."
    ${EndIf}
  ${EndIf}
!macroend

Section
  !insertmacro RefuseWhileOpen "tempora.exe"
  !insertmacro RefuseWhileOpen "tempora-setup.exe"
  !insertmacro RemoveEarlierVersion
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\desinstaller.exe"
  CreateDirectory "$SMPROGRAMS\Tempora"
  SetOutPath "$DOCUMENTS" ; where the shortcuts begin: dialogs propose it for files that are saved
  CreateShortcut "$SMPROGRAMS\Tempora\Tempora.lnk" "$INSTDIR\tempora.exe"
  CreateShortcut "$SMPROGRAMS\Tempora\Choisir la base.lnk" "$INSTDIR\tempora-setup.exe"
  CreateShortcut "$SMPROGRAMS\Tempora\Lisez-moi.lnk" "$INSTDIR\Lisez-moi.txt"
  CreateShortcut "$DESKTOP\Tempora.lnk" "$INSTDIR\tempora.exe"
  WriteRegStr HKCU "${KEY}" "DisplayName" "Tempora"
  WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\tempora.exe"
  WriteRegStr HKCU "${KEY}" "Publisher" "The Tempora authors"
  WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\desinstaller.exe"'
  WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\desinstaller.exe" /S'
  WriteRegDWORD HKCU "${KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

; The settings, the data source and app_data stay.
Section "Uninstall"
  !insertmacro RefuseWhileOpen "tempora.exe"
  !insertmacro RefuseWhileOpen "tempora-setup.exe"
  !include "${FILES}/../ours.nsh" ; each of its files and folders by name, the latter where they are empty
  Delete "$INSTDIR\desinstaller.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tempora\Tempora.lnk"
  Delete "$SMPROGRAMS\Tempora\Choisir la base.lnk"
  Delete "$SMPROGRAMS\Tempora\Lisez-moi.lnk"
  RMDir "$SMPROGRAMS\Tempora"
  Delete "$DESKTOP\Tempora.lnk"
  DeleteRegKey HKCU "${KEY}"
SectionEnd
