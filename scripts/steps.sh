# Sourced, after lib.sh, by test and by the scripts that run parts of it for longer: steps, which are run, timed
# and counted.
# shellcheck shell=bash

# shellcheck source=lib.sh
[[ ${project-} ]] || source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
results=$project/build/test

# fuzz TARGET SECONDS [OPTION...]: every kept input once, then new ones made from them.
fuzz() {
    local found=$results/found/$1
    mkdir -p "$found"
    "$project/build/core-clang/tests/fuzz/$1" -max_total_time="$2" -timeout=10 "${@:3}" \
        -artifact_prefix="$results/$1-" "$found" "$project/tests/fuzz/corpus/${1#fuzz_}"
}

# with_small_disk FOLDER COMMAND...: runs the command with a file system of 128 KB mounted at FOLDER, which only
# the command sees and whose path is in QUILLON_SMALL_DISK; without one where mounting is not allowed.
with_small_disk() {
    local folder=$1 view=(unshare --mount)
    shift
    (( EUID == 0 )) || view+=(--map-current-user --keep-caps)
    # shellcheck disable=SC2016
    view+=(sh -c 'mount -t tmpfs -o size=128k none "$0" && exec "$@"' "$folder")
    mkdir -p "$folder"
    if "${view[@]}" true; then
        QUILLON_SMALL_DISK=$(windows_path "$folder") "${view[@]}" "$@"
    else
        "$@"
    fi
}

# in_windows PROGRAM FILTER [OPTION...]: runs a test program of build/$preset/tests on a display and in a
# prefix of its own.
in_windows() {
    local scratch=$results/$1-scratch
    rm -rf "$scratch"
    mkdir -p "$scratch"
    QUILLON_PREFIX=$results/$1-prefix${QUILLON_WINE:+-$QUILLON_WINE} QUILLON_SCRATCH=$(windows_path "$scratch") \
        QUILLON_EXE=$(windows_path "$program") \
        with_small_disk "$results/$1-disk" "$project/tests/ftp/servers" "$project/scripts/headless" \
        timeout --foreground --kill-after=10 "${QUILLON_TEST_SECONDS:-900}" \
        "$project/scripts/wine" "$project/build/$preset/tests/$1.exe" "--gtest_filter=$2" "${@:3}"
}

# step NAME COMMAND...: runs the command, logs its output, and reports and records the result. A GoogleTest program
# counts its tests, and one more as failed when it crashed or ended before its summary; any other command counts
# as one test.
step() {
    local name=$1 log=$results/$1.log start=$SECONDS code=0 passed=0 failed=0
    shift
    ("$@") >"$log" 2>&1 </dev/null || code=$?
    if grep -q '^\[==========\] Running' "$log"; then
        passed=$(grep -c '^\[       OK \]' "$log" || true)
        failed=$(grep -cE '^\[  FAILED  \] .* \([0-9]+ ms\)' "$log" || true)
        if ! grep -qE '^\[==========\].* ran\.' "$log" || (( code != 0 && failed == 0 )); then
            failed=$((failed + 1))
        fi
    elif (( code == 0 )); then passed=1
    else failed=1
    fi
    (( failed == 0 )) || show_failures "$log" >&2
    say "$(printf '%-18s %4d passed %3d failed %5d s' "$name" "$passed" "$failed" $((SECONDS - start)))"
    printf '%d %d\n' "$passed" "$failed" >>"$results/counts"
}

# What each failed test of a log printed, and how the log ends.
show_failures() {
    awk '/^\[ RUN / { block = "" } { block = block $0 "\n" }
         /^\[  FAILED  \] .*ms\)/ { printf "%s", block }' "$1"
    tail -n 20 "$1"
}

# side_by_side FUNCTION...: runs the functions at the same time and waits for all of them. When this
# script is stopped, so are they and what they started.
side_by_side() {
    local work
    mkdir -p "$results"
    rm -f "$results"/counts "$results"/*.log
    started=()
    trap 'for work in "${started[@]}"; do kill -- "-$work" 2>/dev/null || true; done' EXIT
    trap 'exit 1' INT TERM
    set -m  # each in a process group of its own
    for work; do
        "$work" &
        started+=($!)
    done
    set +m
    for work in "${started[@]}"; do
        wait "$work" || { say "a part of the tests did not finish"; echo 0 1 >>"$results/counts"; }
    done
    started=()
}

# Prints the sums as the last line; fails unless all passed and there was something to pass.
report() {
    local passed=0 failed=0 p f
    while read -r p f; do
        passed=$((passed + p)) failed=$((failed + f))
    done <"$results/counts"
    say "$SECONDS s in all; logs in $results"
    echo "$passed passed, $failed failed"
    (( failed == 0 && passed > 0 ))
}
