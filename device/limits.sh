# shellcheck shell=bash
# What runs away on a device must not take the workstation down with it.

most_processes=4096

# For this process and what it starts. Root cannot be bound to a number of processes without a control group.
limit_device() {
    # The first to go when memory runs out, which only the workstation's root can take back.
    echo 1000 >/proc/self/oom_score_adj
    ulimit -u "$most_processes"
    ((EUID != 0)) || join_control_groups
}

# One group for all devices, in the one hierarchy of the control groups or in each of the old ones. It is empty when no device
# runs. Where a container does not let its root make groups, there are none.
join_control_groups() {
    local hierarchy group
    for hierarchy in /sys/fs/cgroup{,/memory,/pids}; do
        [[ -w $hierarchy/cgroup.procs ]] || continue
        group=$hierarchy/tarnwick-devices
        mkdir -p "$group" 2>/dev/null || continue
        limit_group "$group"
        echo "$BASHPID" >"$group/cgroup.procs"
    done 2>/dev/null
}

limit_group() {
    local memory limit
    # Three quarters, in bytes.
    memory=$(awk '/^MemTotal:/ { printf "%.0f", $2 * 768 }' /proc/meminfo)
    for limit in "pids.max $most_processes" "memory.max $memory" "memory.limit_in_bytes $memory"; do
        [[ ! -e $1/${limit% *} ]] || echo "${limit#* }" >"$1/${limit% *}" || true
    done
}
