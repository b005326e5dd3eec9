; The installer of SQLite's ODBC driver, which Windows does not have: for all users, as ODBC knows no
; drivers of one user alone. makensis -DVERSION=0.9998 -DDRIVER=FILE.dll -DLICENCE=FILE.txt -DICON=FILE.ico
; -DOUT=FILE.exe
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel admin

!include LogicLib.nsh
!include MUI2.nsh

!define DRIVERS "SOFTWARE\ODBC\ODBCINST.INI\ODBC Drivers"
!define DRIVERKEY "SOFTWARE\ODBC\ODBCINST.INI\SQLite3 ODBC Driver"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\SQLite3 ODBC Driver (Tempora)"

Name "Pilote ODBC de SQLite"
Caption "Pilote ODBC de SQLite"
OutFile "${OUT}"
InstallDir "$PROGRAMFILES64\SQLite3 ODBC Driver"
BrandingText "SQLite3 ODBC Driver ${VERSION}, 64 bits"

VIProductVersion "1.0.0.0"
VIAddVersionKey /LANG=1036 "ProductName" "SQLite3 ODBC Driver"
VIAddVersionKey /LANG=1036 "FileDescription" "Installateur du pilote ODBC de SQLite"
VIAddVersionKey /LANG=1036 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "LegalCopyright" "licence.txt"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_TITLE "Le pilote est installé"
!define MUI_FINISHPAGE_TEXT "Revenez à « Choisir la base », et continuez par « Suivant »."
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

; A driver of this name that somebody else has installed stays as it is.
Function .onInit
  SetRegView 64
  ReadRegStr $0 HKLM "${DRIVERKEY}" "Driver"
  ${If} $0 != ""
  ${AndIf} $0 != "$INSTDIR\sqlite3odbc.dll"
  ${AndIf} ${FileExists} "$0"
    MessageBox MB_OK|MB_ICONINFORMATION "Ce pilote est déjà installé :$\r$\n$0" /SD IDOK
    SetErrorLevel 0 ; there is a driver, as was asked for
    Quit
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
FunctionEnd

; The words are those that the driver's own installer gives the manager.
Section
  SetShellVarContext all
  SetOutPath "$INSTDIR"
  File "/oname=sqlite3odbc.dll" "${DRIVER}"
  File "/oname=licence.txt" "${LICENCE}"
  WriteUninstaller "$INSTDIR\desinstaller.exe"
  WriteRegStr HKLM "${DRIVERS}" "SQLite3 ODBC Driver" "Installed"
  WriteRegStr HKLM "${DRIVERKEY}" "Driver" "$INSTDIR\sqlite3odbc.dll"
  WriteRegStr HKLM "${DRIVERKEY}" "Setup" "$INSTDIR\sqlite3odbc.dll"
  WriteRegDWORD HKLM "${DRIVERKEY}" "UsageCount" 1
  WriteRegStr HKLM "${KEY}" "DisplayName" "SQLite3 ODBC Driver (64 bits)"
  WriteRegStr HKLM "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${KEY}" "Publisher" "The Tempora authors"
  WriteRegStr HKLM "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${KEY}" "UninstallString" '"$INSTDIR\desinstaller.exe"'
  WriteRegStr HKLM "${KEY}" "QuietUninstallString" '"$INSTDIR\desinstaller.exe" /S'
  WriteRegDWORD HKLM "${KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  Delete "$INSTDIR\sqlite3odbc.dll"
  Delete "$INSTDIR\licence.txt"
  Delete "$INSTDIR\desinstaller.exe"
  RMDir "$INSTDIR"
  ReadRegStr $0 HKLM "${DRIVERKEY}" "Driver"
  ${If} $0 == "$INSTDIR\sqlite3odbc.dll" ; and not one that somebody has installed since
    DeleteRegValue HKLM "${DRIVERS}" "SQLite3 ODBC Driver"
    DeleteRegKey HKLM "${DRIVERKEY}"
  ${EndIf}
  DeleteRegKey HKLM "${KEY}"
SectionEnd
