# shellcheck shell=bash
# Starting a device: the namespaces around it.

# Real paths: links of the host lead nowhere once the device has its own root.
DEVICE_BUILD=$(realpath --canonicalize-missing -- "${DEVICE_BUILD:-$here/../build/release}")
DEVICE_SHARE=${DEVICE_SHARE:+$(realpath -- "$DEVICE_SHARE")}
export DEVICE_BUILD DEVICE_SHARE

require_model_library() {
    [[ ! -e $1/model || -e $DEVICE_BUILD/lib/device-model.so ]] ||
        fail "$1 has a model name, which needs $DEVICE_BUILD/lib/device-model.so: build the target device-model"
}

# Runs a command on a device as one of its users and returns its status. A signal that ends this shell ends the device
# too: unshare itself would sit a SIGTERM out.
run_device() {
    local options
    options=$(user_namespace)
    # shellcheck disable=SC2086  # words, not one word
    setpriv --pdeathsig KILL -- \
        unshare $options --mount --pid --uts --ipc --net --propagation private --fork --kill-child -- \
        bash "$here/power_on" "$@"
}
