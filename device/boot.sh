# shellcheck shell=bash
# Starting a device: the namespaces around it.

# Resolved, as links of the host are dangling once the device has its own root.
DEVICE_BUILD=$(realpath --canonicalize-missing -- "${DEVICE_BUILD:-$here/../build/release}")
DEVICE_SHARE=${DEVICE_SHARE:+$(realpath -- "$DEVICE_SHARE")}
export DEVICE_BUILD DEVICE_SHARE

require_model_library() {
    [[ ! -e $1/model || -e $DEVICE_BUILD/lib/device-model.so ]] ||
        fail "$1 has a model name, which needs $DEVICE_BUILD/lib/device-model.so: build the target device-model"
}

# run_device DIRECTORY USER [COMMAND...]
# Only one run at a time may change the device's own programs, as two overlays cannot share an upper folder. The process
# that waits for the run holds the lock.
run_device() {
    start_device "$@" 9<"$1/device"
}

# The device never gets the caller's terminal, as a process that has it open can type into it. The device gets a terminal
# of its own in between, or none.
start_device() {
    local start=(setpriv --pdeathsig KILL --) options programs=fixed
    ! flock --nonblock 9 || programs=changeable
    readarray -t options < <(user_namespace)
    start+=(unshare "${options[@]}" --mount --pid --uts --ipc --net --propagation private --fork --kill-child --
        bash "$here/power_on" "$programs" "$@")
    if [[ -t 0 && -t 1 && -t 2 ]]; then
        run_at_terminal "${start[@]}"
    else
        run_in_session "${start[@]}"
    fi
}

run_at_terminal() {
    SHELL=/bin/bash setpriv --pdeathsig KILL -- \
        script --quiet --return --flush --command "$(printf '%q ' "$@")" /dev/null
}

# Passes the caller's interrupt on. Any other signal that ends this shell ends the device too, as unshare would ignore it.
run_in_session() {
    local session status
    env --default-signal=INT,QUIT setpriv --pdeathsig KILL -- setsid "$@" <&0 &
    session=$!
    # shellcheck disable=SC2064  # the number as it is now
    trap "kill -s INT -- -$session" INT
    while :; do
        status=0
        wait "$session" || status=$?
        kill -0 "$session" 2>/dev/null || break
    done
    trap - INT
    return "$status"
}
