# Shared by the scripts: sourced, with the project's folder as the current one.

# packages_missing [PACKAGE...]: of these, or of all that the project knows.
packages_missing() {
    local package
    for package in ${*:-$(cat scripts/packages.txt)}; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || echo "$package"
    done
}

packages_install() {
    local missing
    missing=$(packages_missing "$@")
    [ -n "$missing" ] || return 0
    echo "installing" $missing
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# The version, from the one place where it stands.
project_version() { sed -nE 's/^project\(vantelle VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt; }

# build PRESET [targets...]: what is not up to date, step by step on standard output; the warnings and errors stay in
# build/PRESET.log.
build() {
    local preset=$1 log="build/$1.log"
    shift
    mkdir -p build
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log"; return 1; }
    fi
    cmake --build --preset "$preset" ${*:+--target "$@"} -- -j"$(nproc)" | tee "$log"
    return "${PIPESTATUS[0]}"
}

# Keeps this shell and what it starts on one of the processors it may use: the first, or of that number, from 0. Programs
# on Wine ask its server and the screen's at every step; from one processor to another each answer waits for the other to
# wake up, and on an idle machine takes five times as long.
stay_on_processor() { # [NUMBER]
    python3 - "$BASHPID" "${1:-0}" <<'END'
import os, sys
shell, number = map(int, sys.argv[1:])
processors = sorted(os.sched_getaffinity(shell))
os.sched_setaffinity(shell, {processors[number % len(processors)]})
END
}

# A command on a screen of its own, and on one processor with it, ended with its group if it takes longer than SECONDS.
on_screen() { on_screen_of 2560x1600 "$@"; }
on_screen_of() ( # WIDTHxHEIGHT SECONDS COMMAND...
    size=$1 seconds=$2
    shift 2
    stay_on_processor
    xvfb-run -a -s "-screen 0 ${size}x24" timeout -k 10 "$seconds" "$@"
)
# The same with a second monitor, of a laptop, right of the first.
on_two_monitors() ( # SECONDS COMMAND...
    seconds=$1
    shift
    stay_on_processor
    xvfb-run -a -s "-noreset -screen 0 3926x1600x24" timeout -k 10 "$seconds" bash -euc '
        xrandr --setmonitor first 2560/677x1600/423+0+0 screen >/dev/null
        xrandr --setmonitor second 1366/361x768/203+2560+400 none >/dev/null
        exec "$@"' - "$@"
)

# Lets Wine work on the prefix build/NAME.
export_wine_prefix() {
    export WINEPREFIX="$PWD/build/$1" WINEDEBUG=-all WINEARCH=win64 WINEDLLOVERRIDES="mscoree,mshtml="
}

# wine_prefix NAME [PROGRAM...]: makes build/NAME with the sample displays once (again when they or this file change),
# and works on it. Its registry answers as Windows 10. The windows of the programs are none of a window
# manager's: without one Wine waits two seconds at each that closes. By Xinerama Wine sees monitors that are parts of one
# screen, by XRandR outputs alone.
wine_prefix() {
    export_wine_prefix "$1"
    shift
    build native-release make-samples
    mkdir -p build/samples
    build/native-release/bin/make-samples build/samples
    local wanted program
    wanted=$( (cat build/samples/displays.reg scripts/common.sh; echo "$@") | md5sum)
    [ "$(cat "$WINEPREFIX/made-from" 2>/dev/null)" = "$wanted" ] && return
    echo "making the Wine prefix $WINEPREFIX"
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    {
        printf 'REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Wine]\n"Version"="win10"\n'
        printf '\n[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]\n"UseXRandR"="N"\n'
        for program in "$@"; do
            printf '\n[HKEY_CURRENT_USER\\Software\\Wine\\AppDefaults\\%s\\X11 Driver]\n"Managed"="N"\n' "$program"
        done
    } > "$WINEPREFIX/programs.reg"
    on_screen 180 bash -c 'wineboot -i && wine regedit /S "$1" && wine regedit /S "$2"' - \
        "$WINEPREFIX/programs.reg" build/samples/displays.reg >/dev/null 2>&1
    timeout 60 wineserver -w || true
    echo "$wanted" > "$WINEPREFIX/made-from"
}

# The prefix of the test programs.
wine_test_prefix() { wine_prefix wine-test ui_win32_test.exe editor_windows_test.exe Vantelle.exe; }

# wine_sample_prefix [NAME [PROGRAM...]]: that of `./run`, or another: the sample displays, with stand-ins for what the
# system and the drivers say.
wine_sample_prefix() {
    wine_prefix "${@:-wine}"
    scripts/install-stand-ins "$WINEPREFIX" build/windows/bin build/samples/displays
}

# run_program NAME: runs a test program once, under Wine with windows/ before its name, or the script of that name.
run_program() {
    case $1 in
        windows/*) on_two_monitors 600 wine "build/windows/bin/${1#*/}.exe" --gtest_brief=1 ;;
        *_test) timeout 600 "build/native/bin/$1" --gtest_brief=1 ;;
        *) "scripts/$1" ;;
    esac
}
