# Shared by the scripts: sourced, with the project's folder as the current one.

packages_install() {
    local missing=()
    local package
    for package in $(cat scripts/packages.txt); do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "installing ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [targets...]: quiet unless it fails.
build() {
    local preset=$1 log="build/$1.log"
    shift
    mkdir -p build
    { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } >"$log" 2>&1 &&
        cmake --build --preset "$preset" ${*:+--target "$@"} -- -j"$(nproc)" >"$log" 2>&1 && return
    grep -vE '^\[[0-9]+/[0-9]+\] (Build|Link)' "$log" | tail -n 80
    return 1
}

# A command on a screen of its own, ended with its group if it takes longer than SECONDS.
on_screen() {
    local seconds=$1
    shift
    xvfb-run -a -s '-screen 0 2560x1600x24' timeout -k 10 "$seconds" "$@"
}

# wine_prefix NAME [PROGRAM...]: makes build/NAME with the sample displays once (again when they or this file change),
# and sets WINEPREFIX to it. Its registry answers as Windows 10. The windows of the programs are none of a window
# manager's: without one Wine waits two seconds at each that closes.
wine_prefix() {
    export WINEPREFIX="$PWD/build/$1" WINEDEBUG=-all WINEARCH=win64 WINEDLLOVERRIDES="mscoree,mshtml="
    shift
    build native make-samples
    mkdir -p build/samples
    build/native/bin/make-samples build/samples
    local wanted program
    wanted=$( (cat build/samples/displays.reg scripts/common.sh; echo "$@") | md5sum)
    [ "$(cat "$WINEPREFIX/made-from" 2>/dev/null)" = "$wanted" ] && return
    echo "making the Wine prefix $WINEPREFIX"
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    on_screen 180 wineboot -i >/dev/null 2>&1
    on_screen 60 wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null 2>&1
    for program in "$@"; do
        on_screen 60 wine reg add "HKCU\\Software\\Wine\\AppDefaults\\$program\\X11 Driver" /v Managed /d N /f \
            >/dev/null 2>&1
    done
    on_screen 60 wine regedit /S build/samples/displays.reg >/dev/null 2>&1
    timeout 60 wineserver -w || true
    echo "$wanted" > "$WINEPREFIX/made-from"
}

# The prefix of the test programs.
wine_test_prefix() { wine_prefix wine-test ui_win32_test.exe editor_windows_test.exe Vantelle.exe; }
