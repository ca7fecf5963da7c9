# Sourced by the scripts that run Windows programs: a display, a Wine prefix and a wineserver that
# belong to one run alone and leave nothing behind.
#
#   StartDisplay               own Xvfb on a free number; sets DISPLAY
#   UseWine ARCH PREFIX        chooses 64-bit (x64) or 32-bit (x86) Wine and the prefix folder
#   PrepareWine [user]         makes the prefix when it is new, then keeps its server alive
#   Wine PROGRAM [ARG...]      runs a Windows program in the prefix
#   StopWine, StopDisplay      end what the two above have started
#   StartSession ARCH NAME     all of this, in a copy of the prefix build/wine/ARCH for this session
#   EndSession                 ends it, and fails if a program was still running
#
# shellcheck shell=bash

vantrelTop=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
wineLauncher=()  # what stands before every Wine command
displayPid=""

StartDisplay() {
  local numberFile
  numberFile=$(mktemp)
  # setsid: Ctrl-C in the terminal must not take the display away before the programs have ended.
  # -displayfd lets the server itself pick a number that is free, so parallel runs never collide.
  # -noreset: the server must outlive its last client between two test programs.
  setsid Xvfb -displayfd 9 -screen 0 1280x1024x24 -ac -noreset -nolisten tcp \
    9>"$numberFile" >/dev/null 2>&1 </dev/null &
  displayPid=$!
  local tries
  for ((tries = 0; tries < 100; tries++)); do
    [[ ! -s $numberFile ]] || break
    kill -0 "$displayPid" 2>/dev/null || break
    sleep 0.1
  done
  local number
  number=$(<"$numberFile")
  rm -f "$numberFile"
  [[ -n $number ]] || { echo "no display: Xvfb did not start" >&2; return 1; }
  export DISPLAY=:$number
}

StopDisplay() {
  [[ -n $displayPid ]] || return 0
  kill "$displayPid" 2>/dev/null || true
  wait "$displayPid" 2>/dev/null || true
  displayPid=""
}

UseWine() {
  wineArch=$1
  export WINEPREFIX=$2
  # Wine maps the Recycle Bin to the user's trash folder: a run must have one of its own.
  export XDG_DATA_HOME=$WINEPREFIX.data XDG_CACHE_HOME=$WINEPREFIX.data/cache
  export WINEDEBUG=${WINEDEBUG:--all}
  # No offers to fetch Mono or Gecko, no menu entries on the user's desktop, and a program that
  # crashes ends at once instead of waiting in a debugger.
  export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d"
  unset WINESERVER WINELOADER
  wineLauncher=()
  # At random addresses about one start of a program in a thousand fails, with error 1359. Where
  # the machine refuses fixed ones, that is so.
  if setarch -R true 2>/dev/null; then wineLauncher+=(setarch -R); fi
  export WINEARCH=win64
  if [[ $wineArch == x86 && ! -x /usr/lib/wine/wine ]]; then
    export WINEARCH=win32
    wineLauncher+=("$vantrelTop/tools/x86-root" run)
  fi
}

Wine() { "${wineLauncher[@]}" /usr/bin/wine "$@"; }

WineServer() { "${wineLauncher[@]}" /usr/bin/wineserver "$@"; }

# MakePluginFolder: the browser's folder of plug-ins, which the plug-in panel reads; Wine's browser
# has none. Programs of 32 bits look for it in a view of the registry of their own.
MakePluginFolder() {
  local view key='HKLM\Software\Microsoft\IE Setup\Setup' browser='Program Files\Internet Explorer'
  mkdir -p "$WINEPREFIX/drive_c/${browser//\\//}/PLUGINS"
  for view in 32 64; do
    [[ $view != 64 || $WINEARCH == win64 ]] || continue
    Wine reg add "$key" /v Path /d "C:\\$browser" /f /reg:$view || return 1
  done
}

# MakePrefix: makes the prefix when it is new; no server is left running in it.
MakePrefix() {
  [[ ! -e $WINEPREFIX/vantrel-prepared ]] || return 0
  mkdir -p "$WINEPREFIX" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
  Wine wineboot -i || return 1
  MakePluginFolder || return 1
  WineServer -w
  # Debian's Wine does not look into its own font folder by itself: without these fonts captions
  # come out bold and wide, and caption buttons as letters.
  ln -sfn /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/" || return 1
  touch "$WINEPREFIX/vantrel-prepared"
}

# ShowDesktop: Wine's own desktop window, whole before anything else runs. A program that asks for
# the desktop while that is being made has no parent for its message-only windows (HWND_MESSAGE),
# and may start a desktop process of its own, which leaves none to all programs of the session.
ShowDesktop() {
  local mark=$WINEPREFIX/drive_c/desktop-stands tries process=""
  rm -f "$mark"
  for ((tries = 0; tries < 600; tries++)); do
    [[ ! -e $mark ]] || break
    # Where a start failed (see UseWine), another follows.
    if [[ -z $process ]] || ! kill -0 "$process" 2>/dev/null; then
      Wine explorer /desktop=Default,1280x1024 cmd /c 'echo >C:\desktop-stands' &
      process=$!
    fi
    sleep 0.1
  done
  rm "$mark"
}

# PrepareWine [user]: on Wine's own desktop window, because without a window manager keys reach
# programs and captions are drawn only inside one; or on the user's desktop, with its tray.
PrepareWine() {
  local log=$WINEPREFIX.data/prepare.log explorer='HKCU\Software\Wine\Explorer'
  mkdir -p "$WINEPREFIX" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
  # Everything that stays in the background gets no pipe of the caller's: whoever reads that
  # pipe to its end would wait for ever.
  {
    MakePrefix || return 1
    WineServer -p || true
    if [[ ${1:-} == user ]]; then
      Wine reg delete "$explorer" /v Desktop /f || true
    else
      Wine reg add "$explorer" /v Desktop /d Default /f || return 1
      Wine reg add "$explorer\\Desktops" /v Default /d 1280x1024 /f || return 1
      ShowDesktop
    fi
  } >"$log" 2>&1 </dev/null
}

StopWine() {
  [[ -d ${WINEPREFIX:-/nowhere} ]] || return 0
  WineServer -k >/dev/null 2>&1 || true
  timeout 10 "${wineLauncher[@]}" /usr/bin/wineserver -w >/dev/null 2>&1 || true
}

# CopyPrefix FROM TO: a prefix with the same content. What nobody writes to is linked; the registry
# says that programs run on Wine's own desktop window (see PrepareWine).
CopyPrefix() {
  local file
  cp -al "$1" "$2" || return 1
  rm -rf "$2/wineserver"
  for file in "$2"/*.reg; do
    cp "$file" "$file.own" && mv "$file.own" "$file" || return 1
  done
  cat >>"$2/user.reg" <<'END'

[Software\\Wine\\Explorer]
"Desktop"="Default"

[Software\\Wine\\Explorer\\Desktops]
"Default"="1280x1024"
END
}

# StartSession ARCH NAME: a display and a Wine of the session's own, so that nothing that ran before
# can slow it down or get into its way, and sessions may run side by side.
StartSession() {
  local arch=$1 origin=$vantrelTop/build/wine/$1 copy=$vantrelTop/build/wine/$1-$2
  mkdir -p "${origin%/*}"
  UseWine "$arch" "$copy"
  StartDisplay || return 1
  # The lock stays with this shell: Wine's processes would hold it on.
  (UseWine "$arch" "$origin" && flock 9 && MakePrefix 9>&-) 9>"$origin.lock" >"$origin.log" 2>&1 \
    </dev/null || { cat "$origin.log" >&2; return 1; }
  # What a session of this name has left that was killed.
  KillPrograms
  rm -rf "$copy" "$copy.data"
  CopyPrefix "$origin" "$copy" || return 1
  mkdir -p "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
  {
    WineServer -p || true
    ShowDesktop
  } >"$copy.data/session.log" 2>&1 </dev/null || { cat "$copy.data/session.log" >&2; return 1; }
}

# Processes: the processes of the session, "PID FILE" a line; Wine starts each with the name of its
# executable file first.
Processes() {
  local environment process command
  while read -r environment; do
    process=${environment//[^0-9]/}
    command=$( (tr '\0' ' ' <"/proc/$process/cmdline") 2>/dev/null) || continue
    [[ ${command,,} =~ ([^\\/\ ]+\.exe) ]] || continue
    echo "$process ${BASH_REMATCH[1]}"
  done < <(grep -lzsxF "WINEPREFIX=$WINEPREFIX" /proc/[0-9]*/environ)
}

# Programs: those that are not Wine's own.
Programs() {
  Processes | grep -vE ' (services|plugplay|winedevice|svchost|rpcss|explorer|start|conhost)\.exe$' ||
    true
}

KillPrograms() {
  local process
  while read -r process _; do
    kill -KILL "$process" 2>/dev/null || true
  done < <(Processes)
}

EndSession() {
  local left="" tries
  # A program that was asked to end may need a moment.
  for ((tries = 0; tries < 100; tries++)); do
    left=$(Programs)
    [[ -n $left ]] || break
    sleep 0.1
  done
  StopWine
  KillPrograms
  StopDisplay
  rm -rf "$WINEPREFIX" "$WINEPREFIX.data"
  [[ -z $left ]] || { echo "left running: ${left//$'\n'/, }" >&2; return 1; }
}
