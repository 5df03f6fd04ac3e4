; The installer of both programs, for one user and without an administrator's rights. scripts/windows gives
;   VERSION  as 2.5.5           SOURCE  the folder whose files are installed
;   OUTPUT   the installer      LISTS   the folder with install.nsh and uninstall.nsh, a line for each of these files
; "installer.exe /S" asks nothing, "/D=C:\folder" as the last argument names another folder.
Target amd64-unicode
Unicode true
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantorra"
!define UNINSTALLER "Uninstall Vantorra.exe"

Name "Vantorra"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Vantorra"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Vantorra"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Vantorra"
VIAddVersionKey "LegalCopyright" "The Vantorra developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\vantorra.exe"
!insertmacro MUI_PAGE_LICENSE "${SOURCE}\licences\Vantorra.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Ends with 2, and changes nothing, while the program runs: Windows keeps its file from being written.
!macro RefuseWhileItRuns program
    ${If} ${FileExists} "$INSTDIR\${program}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${program}" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "${program} is running. Close it, then try again." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

Section "Vantorra"
    SetShellVarContext current
    !insertmacro RefuseWhileItRuns vantorra.exe
    !insertmacro RefuseWhileItRuns vantorra-batch.exe
    ; What an earlier version has and this one hasn't; settings and logs stay.
    ${If} ${FileExists} "$INSTDIR\${UNINSTALLER}"
        ExecWait '"$INSTDIR\${UNINSTALLER}" /S _?=$INSTDIR'
    ${EndIf}

    !include "${LISTS}\install.nsh"
    WriteUninstaller "$INSTDIR\${UNINSTALLER}"
    CreateShortcut "$SMPROGRAMS\Vantorra.lnk" "$INSTDIR\vantorra.exe"

    WriteRegStr HKCU "${KEY}" "DisplayName" "Vantorra"
    WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\vantorra.exe"
    WriteRegStr HKCU "${KEY}" "Publisher" "The Vantorra developers"
    WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
    WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
    WriteRegDWORD HKCU "${KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${KEY}" "EstimatedSize" $0
SectionEnd

; Takes away what the installer has put there, file by file: settings, logs and whatever else lies in the folder stay.
Section "Uninstall"
    SetShellVarContext current
    !insertmacro RefuseWhileItRuns vantorra.exe
    !insertmacro RefuseWhileItRuns vantorra-batch.exe
    !include "${LISTS}\uninstall.nsh"
    Delete "$INSTDIR\${UNINSTALLER}"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Vantorra.lnk"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
