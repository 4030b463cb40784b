; Installer for one user: no rights are asked for. 64 bits throughout: the usual stub is a program of
; 32 bits, which installs nothing where only 64 can run.
Unicode true
Target amd64-unicode
!include "MUI2.nsh"

Name "Orvalis"
OutFile "${PAQUET}/Orvalis-${VERSION}-installeur.exe"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Orvalis"
InstallDirRegKey HKCU "Software\Orvalis" "Dossier"
SetCompressor /SOLID lzma
BrandingText "Orvalis ${VERSION}"
!define MUI_ICON "${__FILEDIR__}/orvalis.ico"
!define MUI_UNICON "${__FILEDIR__}/orvalis.ico"
!define DESINSTALLER "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvalis"

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION Lancer
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1036 "ProductName" "Orvalis"
VIAddVersionKey /LANG=1036 "FileDescription" "Installation d'Orvalis"
VIAddVersionKey /LANG=1036 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "LegalCopyright" "Orvalis"

; The program folder is on the drive of the current folder: the root of the system's drive.
Function Lancer
    ReadEnvStr $0 SYSTEMDRIVE
    SetOutPath "$0\"
    Exec '"$INSTDIR\orvalis.exe"'
FunctionEnd

Section "Orvalis"
    SetOutPath "$INSTDIR"
    File /r "${CONTENU}/*"
    WriteUninstaller "$INSTDIR\Désinstaller.exe"
    ReadEnvStr $0 SYSTEMDRIVE
    SetOutPath "$0\"
    CreateShortCut "$SMPROGRAMS\Orvalis.lnk" "$INSTDIR\orvalis.exe"
    WriteRegStr HKCU "Software\Orvalis" "Dossier" "$INSTDIR"
    WriteRegStr HKCU "${DESINSTALLER}" "DisplayName" "Orvalis"
    WriteRegStr HKCU "${DESINSTALLER}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${DESINSTALLER}" "DisplayIcon" "$INSTDIR\orvalis.exe"
    WriteRegStr HKCU "${DESINSTALLER}" "Publisher" "Orvalis"
    WriteRegStr HKCU "${DESINSTALLER}" "UninstallString" '"$INSTDIR\Désinstaller.exe"'
    WriteRegDWORD HKCU "${DESINSTALLER}" "NoModify" 1
    WriteRegDWORD HKCU "${DESINSTALLER}" "NoRepair" 1
SectionEnd

; The logbooks lie in a folder of their own, at the root of a drive, which nothing here touches.
Section "Uninstall"
    !include "${PAQUET}/fichiers.nsh"
    Delete "$INSTDIR\Désinstaller.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Orvalis.lnk"
    DeleteRegKey HKCU "${DESINSTALLER}"
    DeleteRegKey HKCU "Software\Orvalis"
SectionEnd
