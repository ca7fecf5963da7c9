; The installer of Vantrel, and the uninstaller that it leaves. ./dist makes it and defines:
;   VERSION   as 2.0.0
;   PROGRAM   the program folder that is brought, with FILES, the macros of list-files about it
;   ICON, HEADER   the program's icon, and the picture of 150 by 57 pixels at the top of a page
;   OUTPUT    the file that is made
;
; setup [/S] [/D=FOLDER]; uninstall [/S] [/SETTINGS]
; /S shows nothing; /SETTINGS removes what is the user's, too, without asking. Status 0: done; 1: the
; user cancelled; 2: it could not be done, and everything is as it was.

Unicode true
ManifestSupportedOS all
ManifestDPIAware true
SetCompressor /SOLID lzma
; The same files give the same installer, whenever they were written.
SetDateSave off
RequestExecutionLevel admin

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinMessages.nsh
!include "${FILES}"

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantrel"
!define EXPLORER "Software\Microsoft\Windows\CurrentVersion\Explorer"
!define SHORTCUT "$SMPROGRAMS\Vantrel.lnk"
; The program makes files in its folder with up to 67 characters behind the folder's name.
!define LONGEST_FOLDER 190

Name "Vantrel"
Caption "Vantrel ${VERSION} Setup"
BrandingText "Vantrel ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES32\Qorvel Softwares\Vantrel"
InstallDirRegKey HKLM "${ENTRY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Vantrel"
VIAddVersionKey "CompanyName" "Qorvel Softwares"
VIAddVersionKey "LegalCopyright" "Copyright Qorvel Softwares"
VIAddVersionKey "FileDescription" "Vantrel Setup"
VIAddVersionKey "FileVersion" "${VERSION}.0"
VIAddVersionKey "ProductVersion" "${VERSION}.0"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_BITMAP "${HEADER}"
!define MUI_HEADERIMAGE_UNBITMAP "${HEADER}"
!define MUI_HEADERIMAGE_RIGHT
!define MUI_ABORTWARNING

!define MUI_PAGE_CUSTOMFUNCTION_LEAVE CheckFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
; As wide as its place in every font.
!define MUI_UNCONFIRMPAGE_TEXT_LOCATION "Folder:"
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Refuse TEXT: ends the installer with status 2, before anything was changed.
!macro Refuse text
  MessageBox MB_OK|MB_ICONEXCLAMATION "${text}" /SD IDOK
  SetErrorLevel 2
  Abort
!macroend
!define Refuse "!insertmacro Refuse"

; EndProgram: asks a running copy, also one in the tray, to end as the end of a session does, and
; waits for the end of its process. In $0 "" or "running".
!macro EndProgram un
Function ${un}EndProgram
  Push $1
  Push $2
  FindWindow $1 "VantrelWindow" "Qorvel Software Vantrel"
  StrCpy $0 ""
  ${If} $1 <> 0
    System::Call "user32::GetWindowThreadProcessId(p r1, *i .r2)"
    ; SYNCHRONIZE
    System::Call "kernel32::OpenProcess(i 0x100000, i 0, i r2) p .r2"
    SendMessage $1 ${WM_QUERYENDSESSION} 0 0 /TIMEOUT=5000
    SendMessage $1 ${WM_ENDSESSION} 1 0 /TIMEOUT=5000
    StrCpy $0 "running"
    ${If} $2 <> 0
      System::Call "kernel32::WaitForSingleObject(p r2, i 10000) i .r1"
      System::Call "kernel32::CloseHandle(p r2)"
      ${If} $1 = 0
        StrCpy $0 ""
      ${EndIf}
    ${EndIf}
  ${EndIf}
  Pop $2
  Pop $1
FunctionEnd
!macroend
!insertmacro EndProgram ""
!insertmacro EndProgram "un."

; A folder that cannot be is refused; the system's own way is to take the usual one without a word.
Function .onInit
  System::Call 'kernel32::GetCommandLineW() w .r0'
  StrCpy $1 0
  ${Do}
    StrCpy $2 $0 4 $1
    ${If} $2 == " /D="
      IntOp $1 $1 + 4
      StrCpy $2 $0 "" $1
      StrCpy $1 $2 1 -1
      ${If} $1 == "\"
        StrCpy $2 $2 -1
      ${EndIf}
      ${If} $2 != "$INSTDIR"
        ${Refuse} "Vantrel cannot be installed into this folder. Nothing has been changed.$\r$\n$\r$\n$2"
      ${EndIf}
      ${ExitDo}
    ${EndIf}
    IntOp $1 $1 + 1
  ${LoopUntil} $2 == ""
FunctionEnd

; CheckFolder: a folder that the program could not work in is refused.
Function CheckFolder
  StrLen $0 "$INSTDIR"
  ${If} $0 > ${LONGEST_FOLDER}
    ${Refuse} "The name of this folder is too long: Vantrel needs one of at most ${LONGEST_FOLDER} characters."
  ${EndIf}
  ; The program's texts are in the system's 8-bit code page: is each letter in it?
  System::Call 'kernel32::WideCharToMultiByte(i 0, i 0x400, w "$INSTDIR", i -1, p 0, i 0, p 0, *i .r0)'
  ${If} $0 <> 0
    ${Refuse} "The name of this folder has letters that programs of this system's language cannot use. Please choose another.$\r$\n$\r$\n$INSTDIR"
  ${EndIf}
FunctionEnd

; The topmost folder on the way to the program's that was not there before.
Var missing

Function FindMissing
  StrCpy $missing ""
  StrCpy $0 "$INSTDIR"
  ${DoUntil} $0 == ""
    ${If} ${FileExists} "$0\*.*"
      ${ExitDo}
    ${EndIf}
    StrCpy $missing $0
    ${GetParent} $0 $0
  ${Loop}
FunctionEnd

; CheckFile: sets the error flag if the file $0 is there and cannot be written.
Function CheckFile
  ClearErrors
  ${If} ${FileExists} $0
    FileOpen $1 $0 a
    ${If} ${Errors}
      SetErrors
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
FunctionEnd

; Everything is unpacked beside the old files before one of them is touched.
Section
  Call CheckFolder
  Call FindMissing
  ClearErrors
  SetOutPath "$INSTDIR\~setup"
  ${If} ${Errors}
    Call .onInstFailed
    ${Refuse} "Vantrel cannot write into this folder. Nothing has been changed.$\r$\n$\r$\n$INSTDIR"
  ${EndIf}
  File /r "${PROGRAM}\*"
  WriteUninstaller "$INSTDIR\~setup\uninstall.exe"
  ${If} ${Errors}
    Call .onInstFailed
    ${Refuse} "Vantrel cannot write into this folder, or the disk is full. Nothing has been changed.$\r$\n$\r$\n$INSTDIR"
  ${EndIf}
  SetOutPath "$INSTDIR"

  Call EndProgram
  ${If} $0 != ""
    Call .onInstFailed
    ${Refuse} "Vantrel is running and does not end. Please end it and start the setup again. Nothing has been changed."
  ${EndIf}
  !insertmacro CheckFiles
  StrCpy $0 "$INSTDIR\uninstall.exe"
  Call CheckFile
  ${If} ${Errors}
  busy:
    Call .onInstFailed
    ${Refuse} "This file is in use, perhaps by another user of this computer, or is protected. Nothing has been changed.$\r$\n$\r$\n$0"
  ${EndIf}

  ; An older version removes what it has brought; what is the user's stays.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /UPGRADE _?=$INSTDIR'
  ${EndIf}
  ClearErrors
  ; The page shows no names of the folder that files are unpacked to.
  SetDetailsPrint none
  !insertmacro MoveFiles
  Delete "$INSTDIR\uninstall.exe"
  Rename "$INSTDIR\~setup\uninstall.exe" "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    ${Refuse} "Some files could not be replaced while the setup was at work. Please close all programs and start it again.$\r$\n$\r$\n$INSTDIR"
  ${EndIf}
  RMDir /r "$INSTDIR\~setup"
  SetDetailsPrint both

  SetShellVarContext all
  CreateShortCut "${SHORTCUT}" "$INSTDIR\Vantrel.exe"
  WriteRegStr HKLM "${ENTRY}" "DisplayName" "Vantrel"
  WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${ENTRY}" "Publisher" "Qorvel Softwares"
  WriteRegStr HKLM "${ENTRY}" "DisplayIcon" "$INSTDIR\Vantrel.exe"
  WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
  SectionGetSize 0 $0
  WriteRegDWORD HKLM "${ENTRY}" "EstimatedSize" $0
  ; A folder may have been refused before another one was chosen.
  SetErrorLevel 0
SectionEnd

; Also when the system's own box has told that a file could not be unpacked. $0 is kept.
Function .onInstFailed
  SetOutPath "$TEMP"
  RMDir /r "$INSTDIR\~setup"
  ${If} $missing != ""
    StrCpy $1 "$INSTDIR"
    RMDir $1
    ${DoUntil} $1 == $missing
      ${GetParent} $1 $1
      RMDir $1
    ${Loop}
  ${EndIf}
FunctionEnd

Section Uninstall
  Call un.EndProgram
  ${If} $0 != ""
    ${Refuse} "Vantrel is running and does not end. Please end it and remove it again. Nothing has been changed."
  ${EndIf}
  !insertmacro RemoveFiles
  Delete "$INSTDIR\uninstall.exe"
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/UPGRADE" $1
  ${IfNot} ${Errors}
    Return
  ${EndIf}

  SetShellVarContext all
  Delete "${SHORTCUT}"
  DeleteRegKey HKLM "${ENTRY}"
  ; What would load the engine and the toolbar into the browser, and the program at the logon.
  DeleteRegKey HKLM "${EXPLORER}\Browser Helper Objects\{911C4A8E-0F75-4B83-BEB9-02BDDF29D11E}"
  DeleteRegKey /ifempty HKLM "${EXPLORER}\Browser Helper Objects"
  DeleteRegValue HKLM "Software\Microsoft\Internet Explorer\Toolbar" "{28BC2EC4-5EAD-45E1-9F9F-82CD5E293601}"
  DeleteRegValue HKLM "Software\Microsoft\Windows\CurrentVersion\Run" "Vantrel"

  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SETTINGS" $1
  ${If} ${Errors}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Remove your settings, the allow list and the backups of Internet Explorer's settings, too?" /SD IDNO IDNO kept
  ${EndIf}
    DeleteRegKey HKCU "Software\Qorvel Softwares"
    Delete "$INSTDIR\Settings\AllowList.txt"
    Delete "$INSTDIR\Settings\log.txt"
    StrCpy $0 "$INSTDIR\Settings\IESettings"
    Delete "$0\CURRENT_IE_SETTINGS_RUN.reg"
    Delete "$0\LOCAL_IE_SETTINGS_RUN.reg"
    Delete "$0\IE Backup date.txt"
    Delete "$0\CurrentBackup\CURRENT_IE_SETTINGS_RUN.reg"
    Delete "$0\CurrentBackup\LOCAL_IE_SETTINGS_RUN.reg"
  kept:
  ; A folder with something in it stays.
  RMDir "$INSTDIR\Settings\IESettings\CurrentBackup"
  RMDir "$INSTDIR\Settings\IESettings"
  RMDir "$INSTDIR\Settings"
  RMDir "$INSTDIR"
  ${GetParent} "$INSTDIR" $0
  ${GetFileName} $0 $1
  ${If} $1 == "Qorvel Softwares"
    RMDir $0
  ${EndIf}
SectionEnd
