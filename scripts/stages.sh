# Runs a list of stages and tells how far it is: sourced, with the project's folder as the current one.
#
#     stage "native tests" ctest --preset native    adds one to the list
#     run_stages                                    runs them all; false if one failed, of which `stages_failed` tells
#
# On a terminal one line moves on; elsewhere there are plain lines at the start and end of a stage and every minute
# between. A stage's output goes to build/log/. Of one that fails the last lines are shown, and how to repeat it alone.
# A stage that needs what a failed one makes fails by itself: all are tried.

stage_names=()
stage_commands=()
stage() { # NAME COMMAND...
    stage_names+=("$1")
    shift
    stage_commands+=("${*@Q}")
}

# What a log's last line of progress says: "[12/297]" of a build, " 3/22 Test" of ctest, "step 2/9" of a script.
stage_progress() {
    tail -c 4096 "$1" | tr '\r' '\n' | sed -nE \
        -e 's,^\[([0-9]+)/([0-9]+)\].*,\1 of \2,p' \
        -e 's,^ *([0-9]+)/([0-9]+) Test .*,\1 of \2,p' \
        -e 's,^step ([0-9]+)/([0-9]+).*,\1 of \2,p' | tail -n 1
}

run_stage() { # INDEX
    local name=${stage_names[$1]} command=${stage_commands[$1]} start=$SECONDS pid status=0 said=0 head log
    head=$(printf '[%*d/%d] %s' "${#stage_total}" $(($1 + 1)) "$stage_total" "$name")
    log="build/log/$(printf '%02d' $(($1 + 1)))-${name//[^A-Za-z0-9.-]/-}.log"
    : >"$log"
    [ -t 1 ] || echo "$head"
    bash -c "set -euo pipefail; . scripts/common.sh; $command" >"$log" 2>&1 </dev/null &
    pid=$!
    while kill -0 "$pid" 2>/dev/null; do
        sleep 0.5
        if [ -t 1 ]; then
            printf '\r\033[K%s  %s  %d s' "$head" "$(stage_progress "$log")" $((SECONDS - start))
        elif [ $((SECONDS - start - said)) -ge 60 ]; then
            said=$((SECONDS - start))
            printf '%*s %s, %d s\n' "${#head}" '' "$(stage_progress "$log")" $said
        fi
    done
    wait "$pid" || status=$?
    [ ! -t 1 ] || printf '\r\033[K'
    if [ $status -eq 0 ]; then
        echo "$head: ok, $((SECONDS - start)) s"
    else
        echo "$head: FAILED (status $status), $((SECONDS - start)) s"
        grep -vE '^\[[0-9]+/[0-9]+\] (Build|Link)' "$log" | tail -n 60 | sed 's/^/    /'
        echo "    the whole output: $log"
        echo "    to repeat it alone: ${command//\'/}"
    fi
    return $status
}

run_stages() {
    stage_total=${#stage_names[@]}
    local index
    stages_failed=0
    mkdir -p build/log
    rm -f build/log/*
    for index in "${!stage_names[@]}"; do
        run_stage "$index" || stages_failed=$((stages_failed + 1))
    done
    [ $stages_failed -eq 0 ]
}
