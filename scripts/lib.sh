# Sourced by the other scripts: paths, messages, and how programs are started in Wine.
# shellcheck shell=bash disable=SC2034

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cache=${XDG_CACHE_HOME:-~/.cache}/quillon
# Locales for QUILLON_LOCALE, from which Windows programs take their code page, and QUILLON_LANGUAGE, from
# which they take the user's language: casing, formats, and the texts of Wine's own dialogs.
locales=$cache/locales
prefix=$(realpath -ms "${QUILLON_PREFIX:-$project/build/wine-prefix}")

say() { printf '%s\n' "$*" >&2; }
die() { say "$(basename "$0"): $*"; exit 1; }

# Whether the kernel runs 32-bit programs, tried with an ELF file that only exits. Its unused header fields are
# not zero, so that no emulator registered for such files recognises it.
runs_32_bits() {
    local probe code=0
    mkdir -p "$project/build"
    probe=$(mktemp -p "$project/build" 32-bits.XXXXXX)
    {
        printf '\x7fELF\1\1\1\1\1\1\1\1\1\1\1\1\2\0\3\0\1\0\0\0'  # a program for the 80386
        printf '\x54\x80\4\x8\x34\0\0\0\0\0\0\0\0\0\0\0\x34\0\x20\0\1\0\x28\0\0\0\0\0'  # begins at 8048054
        printf '\1\0\0\0\0\0\0\0\0\x80\4\x8\0\x80\4\x8\x60\0\0\0\x60\0\0\0\5\0\0\0\0\x10\0\0'
        printf '\x31\xdb\x31\xc0\x40\xcd\x80\0\0\0\0\0'  # exit(0)
    } >"$probe"
    chmod +x "$probe"
    ("$probe") 2>/dev/null || code=$?
    rm -f "$probe"
    return "$code"
}

# Which build is run here: the 32-bit one, which ships, wherever the machine can run it.
if [[ ! ${QUILLON_BITS-} ]]; then
    if runs_32_bits; then QUILLON_BITS=32; else QUILLON_BITS=64; fi
    export QUILLON_BITS
fi
bits=$QUILLON_BITS
preset=win$bits
wine_root=
if (( bits == 32 )); then
    program=$project/dist/Quillon.exe
    # Where apt cannot install 32-bit Wine, setup makes an i386 Debian of its own here.
    wine_root=$cache/wine-root
else
    program=$project/build/$preset/Quillon.exe
fi
# QUILLON_WINE=trixie uses the Wine of that Debian release, which setup installs beside this one.
[[ ! ${QUILLON_WINE-} ]] || wine_root=$cache/wine-root-$QUILLON_WINE-$bits

# configure PRESET [OPTION...]: prepares build/PRESET; silent unless CMake complains.
configure() {
    mkdir -p "$project/build"
    local log=$project/build/configure-$1.log
    CMAKE_CXX_COMPILER_LAUNCHER=$(command -v ccache || true) cmake --preset "$@" >"$log" 2>&1 || die "$(<"$log")"
}

# build_program [TARGET...]: builds $program, and further targets.
build_program() {
    if (( bits == 32 )); then
        "$project/scripts/build"
    else
        say "Building $program"
        configure "$preset"
        set -- Quillon "$@"
    fi
    (( $# == 0 )) || cmake --build "$project/build/$preset" --target "$@" -- --quiet
}

# The Windows path of a Unix path. Drive Z: of a prefix is the root directory.
windows_path() {
    local path
    path=$(realpath -ms "$1")
    printf 'Z:%s' "${path//\//\\}"
}

# Sets view to the words that run one of Wine's Unix commands (wine, wineserver) for $prefix. HOME is in the
# prefix so that nothing, not even the trash, touches the user's own; the first override keeps Wine's programs
# out of the user's menus, the second keeps Wine from asking for downloads.
set_view() {
    view=(env WINEPREFIX="$prefix" WINEARCH="$preset" WINEDEBUG="${WINEDEBUG--all}"
        LC_ALL='' LANG="${QUILLON_LOCALE:-C.UTF-8}" LC_CTYPE="${QUILLON_LOCALE:-C.UTF-8}"
        LC_MESSAGES="${QUILLON_LANGUAGE:-${QUILLON_LOCALE:+en_US.UTF-8}}" LOCPATH="$locales"
        WINEDLLOVERRIDES='winemenubuilder.exe=d;mscoree,mshtml='
        XAUTHORITY="${XAUTHORITY:-${HOME-}/.Xauthority}" HOME="$prefix/home")
    [[ -d $wine_root ]] || return 0
    # The command sees the i386 root's /usr in place of the machine's, and everything else, including the
    # checkout, displays and ports, unchanged. The mounts go when it ends.
    view+=(FONTCONFIG_PATH="$wine_root/etc/fonts" unshare --mount)
    (( EUID == 0 )) || view+=(--map-current-user --keep-caps)
    # shellcheck disable=SC2016
    view+=(sh -c 'mount --bind "$0/etc/alternatives" /etc/alternatives &&
                  mount --bind "$0/usr" /usr && exec "$@"' "$wine_root")
}

in_wine() {
    local view
    set_view
    "${view[@]}" "$@"
}

# Makes $prefix if it is missing, as a copy of a template in the cache, which takes Wine 15 seconds once. The
# system's own files, nine tenths of the whole, are shared by hard links.
ensure_prefix() {
    [[ ! -d $prefix ]] || return 0
    local version template new=$prefix.new.$$
    version=$(in_wine wine --version | grep -o '[0-9][0-9.]*' | head -n 1)
    template=$cache/wine-prefix-$version-$bits
    [[ -d $template ]] || make_template "$template"
    say "Making the Wine prefix $prefix"
    mkdir -p "$(dirname "$prefix")"
    cp -a "$template/prefix" "$new"
    cp -al "$template/system32" "$new/drive_c/windows/" 2>/dev/null ||
        cp -a "$template/system32" "$new/drive_c/windows/"
    mv -T "$new" "$prefix"
}

make_template() {
    local template=$1 new=$1.new.$$ link
    say "Making the Wine prefix that every checkout starts from (some 15 s)"
    mkdir -p "$new/prefix/home"
    prefix=$new/prefix DISPLAY='' in_wine wine wineboot --init >/dev/null 2>&1 ||
        die "Wine could not make a prefix"
    prefix=$new/prefix in_wine wineserver -k || true  # or it has ended by itself
    # Debian's Wine looks for its own fonts, the buttons of captions among them, only here.
    cp "$([[ ! -d $wine_root ]] || echo "$wine_root")"/usr/share/wine/fonts/* \
        "$new/prefix/drive_c/windows/Fonts/"
    # Documents, Desktop and so on: folders of the prefix, not links to the user's.
    for link in "$new"/prefix/drive_c/users/*/*; do
        if [[ -L $link ]]; then rm "$link" && mkdir "$link"; fi
    done
    mv "$new/prefix/drive_c/windows/system32" "$new/"
    mv -T "$new" "$template" 2>/dev/null || rm -rf "$new"  # another checkout was faster
}

# set_desktop SIZE DPI: draws the prefix's windows inside a desktop window of SIZE (WIDTHxHEIGHT), which
# stands in for a window manager, or as separate windows where SIZE is "none". Where Wine finds no Courier
# New, the font of pages, it would take a proportional one; Liberation Mono has the same widths. A program that
# crashes ends, and no dialog waits for an answer.
set_desktop() {
    local wanted kept=$prefix/desktop.reg desktop='"Desktop"="Default"'
    [[ $1 != none ]] || desktop='"Desktop"=-'
    wanted=$(printf '%s\r\n' 'REGEDIT4' '' \
        '[HKEY_CURRENT_USER\Software\Wine\Explorer]' "$desktop" '' \
        '[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]' "\"Default\"=\"$1\"" '' \
        '[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]' '"Courier New"="Liberation Mono"' '' \
        '[HKEY_CURRENT_USER\Software\Wine\WineDbg]' '"ShowCrashDialog"=dword:00000000' '' \
        '[HKEY_CURRENT_USER\Control Panel\Desktop]' "$(printf '"LogPixels"=dword:%08x' "$2")")
    [[ ! -f $kept || $(<"$kept") != "$wanted" ]] || return 0
    printf '%s\n' "$wanted" >"$kept.new"
    in_wine wine regedit /S "$(windows_path "$kept.new")"
    mv "$kept.new" "$kept"
}
