#!/bin/sh
# Runs a checker, which must succeed without a word of warning. 77: it is not installed.
command -v "$1" >/dev/null || { echo "$1 is missing"; exit 77; }
dicho=$("$@" 2>&1)
codigo=$?
[ -z "$dicho" ] || echo "$dicho"
[ $codigo -eq 0 ] && ! echo "$dicho" | grep -Eiq 'warning|error|^[EW]:'
