# shellcheck shell=bash
# What scripts/run, scripts/test and scripts/lint share: installing what is missing, configuring, building. Sourced, never
# run. Every failure ends the script with one line on standard error; nothing ever waits for an answer.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs="$root/build/logs"

# shellcheck disable=SC2034 # for whoever sources this
build_packages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-serialport-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libxcb1-dev libzip-dev pkg-config
    libgtest-dev libgmock-dev python3-markdown
    xvfb xauth openbox fonts-dejavu-core fonts-noto-core fonts-liberation fonts-cantarell
    dbus qt6-xdgdesktopportal-platformtheme at-spi2-core gir1.2-atspi-2.0 python3-pyatspi xdotool
)
# shellcheck disable=SC2034
fuzz_packages=(clang libclang-rt-14-dev)

if [ -t 1 ]; then
    say() { printf '\033[1m== %s\033[0m\n' "$*"; }
else
    say() { printf '== %s\n' "$*"; }
    export CLICOLOR=0 NO_COLOR=1 GTEST_COLOR=no GCC_COLORS=
fi

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# is_installed <package>
is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# need_writable_build <preset>: the folder for what is built, with room in it: a whole build takes 1.4 GB.
need_writable_build() {
    local needed=2048 free
    [ ! -e "$root/build/$1/build.ninja" ] || needed=256
    mkdir -p "$logs" 2>/dev/null && [ -w "$logs" ] || fail "cannot write to $root/build"
    free=$(df -Pm "$root/build" | awk 'NR == 2 { print $4 }')
    [ "$free" -ge "$needed" ] || fail "only $free MB of disk left for $root/build; $needed MB are needed"
}

# need_packages <package>...: installs those that are missing; quick when none is.
need_packages() {
    local missing=() package
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
        fail "apt was not found; on this system install by hand what Debian calls: $*"
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=(env)
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null && sudo -n true 2>/dev/null ||
            fail "these packages are missing and only root, or sudo without a password, may install them: ${missing[*]}"
        as_root=(sudo -n env)
    fi
    # The run level keeps the daemons that come with some packages from being started.
    local apt=("${as_root[@]}" RUNLEVEL=1 DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300
        -o Acquire::Retries=3)

    say "Installing ${missing[*]}"
    local log="$logs/apt.log" is_list_fresh=yes
    "${apt[@]}" -o APT::Update::Error-Mode=any update >"$log" 2>&1 </dev/null || is_list_fresh=no
    if ! "${apt[@]}" install --no-install-recommends "${missing[@]}" >>"$log" 2>&1 </dev/null; then
        if grep -qiE "no space left|enough free space" "$log"; then
            fail "no disk space left to install: ${missing[*]} (details in $log)"
        elif [ "$is_list_fresh" = no ] || grep -qE "Temporary failure resolving|Could not (connect|resolve)" "$log"; then
            fail "no network, or no Debian mirror in reach, to install: ${missing[*]} (details in $log)"
        fi
        fail "apt could not install: ${missing[*]} (details in $log)"
    fi
}

# How much to do at a time: one job a core, as long as each has about a gigabyte of memory.
parallel_jobs() {
    local cores gigabytes
    cores=$(nproc)
    gigabytes=$(awk '/^MemAvailable:/ { print int($2 / 1000000) }' /proc/meminfo)
    [ "$gigabytes" -ge 1 ] || gigabytes=1
    echo $((cores < gigabytes ? cores : gigabytes))
}

# quietly <log> <failure> <command>...: shows what the command said only when it fails.
quietly() {
    local log="$logs/$1" failure=$2
    shift 2
    if ! "$@" >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        fail "$failure"
    fi
}

# configure <preset> [cmake arguments]
configure() {
    local preset=$1 fresh=()
    shift
    # A checkout that was moved brings a cache along that still points to the old place.
    if [ -f "$root/build/$preset/CMakeCache.txt" ] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$root/build/$preset/CMakeCache.txt"; then
        fresh=(--fresh)
    fi
    say "Configuring build/$preset"
    cd "$root"
    quietly configure.log "configuring build/$preset failed" cmake --preset "$preset" "${fresh[@]}" "$@"
}

# build <preset> [targets]
build() {
    local preset=$1 targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    say "Building build/$preset${*:+: $*}"
    cmake --build --preset "$preset" --parallel "$(parallel_jobs)" "${targets[@]}" || fail "building build/$preset failed"
}
