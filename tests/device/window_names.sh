#!/usr/bin/env bash
# What assistive technology finds in the window.
# shellcheck source=tests/device/window_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/window_lib.sh"

start_surroundings
device new "$phone"
drive window_names.py
