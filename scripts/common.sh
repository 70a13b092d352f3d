# SPDX-License-Identifier: GPL-3.0-or-later
# What run and test share; sourced, not run.

step() { printf '\n== %s (%s s)\n' "$1" "$SECONDS"; }

# configure PRESET [OPTIONS...]: quiet unless it fails.
configure() {
    local log
    log=$(mktemp)
    cmake --preset "$@" >"$log" 2>&1 || { cat "$log"; rm -f "$log"; return 1; }
    rm -f "$log"
}
