; The installer. Installs for the user who runs it, without asking for more rights, or for all users:
;   prismfall-VERSION-windows-setup.exe [/S] [/AllUsers] [/D=FOLDER]
;   uninstall.exe [/S] [/DeleteScores]
; /S is silent. Exit status: 0 done, 1 cancelled by the user, 2 the game is running, 3 no right to install for all users.
; Built by script/package-windows, which defines VERSION, FOLDER, OUTPUT and FILES, the list of what to uninstall.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include x64.nsh

Name "Prismfall"
OutFile "${OUTPUT}"
BrandingText "Prismfall ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Prismfall"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Prismfall Setup"
VIAddVersionKey LegalCopyright "2026 The Prismfall team, MIT licence"

!define CLASSES "Software\Classes"
!define LISTED "Software\Microsoft\Windows\CurrentVersion\Uninstall\Prismfall"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Play now"
!define MUI_FINISHPAGE_RUN_FUNCTION Play

Var forAll

Page custom AskForWhom TakeForWhom
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
UninstPage custom un.AskScores un.TakeScores
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; A running program cannot be overwritten. Asks until it is closed, or gives up.
!macro AwaitEndOfGame un
Function ${un}AwaitEndOfGame
    ${DoWhile} ${FileExists} "$INSTDIR\prismfall.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\prismfall.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Prismfall is running. Please close it first." /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Quit
        again:
    ${Loop}
FunctionEnd
!macroend
!insertmacro AwaitEndOfGame ""
!insertmacro AwaitEndOfGame "un."

; Where things are stored, for all users or for this one. An existing installation is updated in place.
Function ChooseScope
    SetShellVarContext current
    ${If} $forAll == 1
        SetShellVarContext all
    ${EndIf}
    ReadRegStr $0 SHCTX "${LISTED}" InstallLocation
    ${If} $0 != ""
        StrCpy $INSTDIR $0
    ${ElseIf} $forAll == 1
        StrCpy $INSTDIR "$PROGRAMFILES64\Prismfall"
    ${Else}
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Prismfall"
    ${EndIf}
FunctionEnd

Function .onInit
    SetRegView 64
    StrCpy $1 $INSTDIR ; what /D= has named
    StrCpy $forAll 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/AllUsers" $2
    ${IfNot} ${Errors}
        StrCpy $forAll 1
        UserInfo::GetAccountType
        Pop $2
        ${If} $2 != "Admin"
            SetErrorLevel 3
            Quit
        ${EndIf}
    ${EndIf}
    Call ChooseScope
    ${If} $1 != ""
        StrCpy $INSTDIR $1
    ${EndIf}
FunctionEnd

Function AskForWhom
    ${If} $forAll == 1 ; was asked before, by the installer that started this one with more rights
        Abort
    ${EndIf}
    !insertmacro MUI_HEADER_TEXT "Install Prismfall ${VERSION}" "Who is going to play?"
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateRadioButton} 0 10u 100% 12u "Only for me"
    Pop $0
    ${NSD_Check} $0
    ${NSD_CreateRadioButton} 0 28u 100% 12u "For everyone who uses this computer (needs an administrator)"
    Pop $1
    nsDialogs::Show
FunctionEnd

Function TakeForWhom
    ${NSD_GetState} $1 $0
    ${If} $0 <> ${BST_CHECKED}
        Return
    ${EndIf}
    ClearErrors
    ExecShell runas "$EXEPATH" "/AllUsers"
    ${If} ${Errors}
        Abort
    ${EndIf}
    Quit
FunctionEnd

; Through the desktop shell, so that the game never runs with the installer's rights.
Function Play
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\Prismfall.lnk"'
FunctionEnd

Section
    Call AwaitEndOfGame
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' ; an older version may have other files
    ${EndIf}
    SetOutPath "$INSTDIR"
    File /r "${FOLDER}\*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Prismfall.lnk" "$INSTDIR\prismfall.exe"
    WriteRegStr SHCTX "${LISTED}" DisplayName "Prismfall"
    WriteRegStr SHCTX "${LISTED}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${LISTED}" DisplayIcon "$INSTDIR\prismfall.exe"
    WriteRegStr SHCTX "${LISTED}" Publisher "The Prismfall team"
    WriteRegStr SHCTX "${LISTED}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${LISTED}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${LISTED}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD SHCTX "${LISTED}" NoModify 1
    WriteRegDWORD SHCTX "${LISTED}" NoRepair 1
    WriteRegStr SHCTX "${CLASSES}\.prismfall" "" "Prismfall.Recording"
    WriteRegStr SHCTX "${CLASSES}\Prismfall.Recording" "" "Prismfall game"
    WriteRegStr SHCTX "${CLASSES}\Prismfall.Recording\DefaultIcon" "" "$INSTDIR\prismfall.exe,0"
    WriteRegStr SHCTX "${CLASSES}\Prismfall.Recording\shell\open\command" "" '"$INSTDIR\prismfall.exe" "%1"'
    ${RefreshShellIcons}
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${LISTED}" EstimatedSize $0
SectionEnd

Var deleteScores

; What was installed for all users can only be removed by an administrator. Continues only with that right.
Function un.AskForRights
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 == "Admin"
        Return
    ${EndIf}
    SetErrorLevel 3
    ${IfNot} ${Silent}
        ${GetParameters} $0
        ExecShell runas "$INSTDIR\uninstall.exe" $0
    ${EndIf}
    Quit
FunctionEnd

Function un.onInit
    SetRegView 64
    SetShellVarContext current
    ReadRegStr $0 HKLM "${LISTED}" InstallLocation
    ${If} $0 == $INSTDIR
        SetShellVarContext all
        Call un.AskForRights
    ${EndIf}
    StrCpy $deleteScores 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/DeleteScores" $1
    ${IfNot} ${Errors}
        StrCpy $deleteScores 1
    ${EndIf}
FunctionEnd

Function un.AskScores
    !insertmacro MUI_HEADER_TEXT "Remove Prismfall" "Prismfall will be removed from this computer."
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateCheckbox} 0 10u 100% 12u "Delete my scores, solved puzzles and settings too"
    Pop $1
    nsDialogs::Show
FunctionEnd

Function un.TakeScores
    ${NSD_GetState} $1 $deleteScores
FunctionEnd

Section Uninstall
    Call un.AwaitEndOfGame
    !include "${FILES}"
    Delete "$SMPROGRAMS\Prismfall.lnk"
    DeleteRegKey SHCTX "${LISTED}"
    DeleteRegKey SHCTX "${CLASSES}\.prismfall"
    DeleteRegKey SHCTX "${CLASSES}\Prismfall.Recording"
    ${un.RefreshShellIcons}
    ${If} $deleteScores == 1
        SetShellVarContext current
        RMDir /r "$APPDATA\Prismfall"
    ${EndIf}
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR" ; last: when it is gone, all is
SectionEnd
