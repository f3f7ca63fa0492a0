# shellcheck shell=bash
# Starting a device: the namespaces around it.

# Resolved, as links of the host are dangling once the device has its own root.
DEVICE_BUILD=$(realpath --canonicalize-missing -- "${DEVICE_BUILD:-$here/../build/release}")
DEVICE_SHARE=${DEVICE_SHARE:+$(realpath -- "$DEVICE_SHARE")}
export DEVICE_BUILD DEVICE_SHARE

require_model_library() {
    [[ ! -e $1/model ]] || compgen -G "$DEVICE_BUILD/lib/*/device-model.so" >/dev/null ||
        fail "$1 has a model name, which needs device-model.so in $DEVICE_BUILD/lib: build the target device-model"
}

# run_device DIRECTORY USER [COMMAND...]: does not return.
# Only one run at a time may change the device's own programs, as two overlays cannot share an upper folder. The processes
# that wait for the run hold the lock.
run_device() {
    local start=(setpriv --pdeathsig KILL --) options programs=fixed
    exec 9<"$1/device"
    ! flock --nonblock 9 || programs=changeable
    readarray -t options < <(user_namespace)
    limit_device
    start+=(unshare "${options[@]}" --mount --pid --uts --ipc --net --propagation private --fork --kill-child --
        perl "$here/confine" bash "$here/power_on" "$programs" "$@")
    if [[ -t 0 && -t 1 && -t 2 ]]; then
        run_at_terminal "${start[@]}"
    else
        exec perl "$here/streams" "${start[@]}"
    fi
}

# The device never gets the caller's terminal, as a process that has it open can type into it.
run_at_terminal() {
    SHELL=/bin/bash exec script --quiet --return --flush --command "$(printf '%q ' "$@")" /dev/null
}
