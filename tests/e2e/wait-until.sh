# Shared by the end-to-end scripts; source it.

# wait_until SECONDS COMMAND...: polls every 0.1 s until the command succeeds.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$deadline" ] || return 1
        sleep 0.1
    done
}
