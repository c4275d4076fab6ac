#!/usr/bin/env bash
# exports.sh LIBRARY HEADER: the library exports the functions of its header and nothing else.
set -euo pipefail
exported=$(nm --dynamic --defined-only "$1" | awk '$2 != "A" { sub(/@.*/, "", $3); print $3 }' | sort)
declared=$(tr '\n' ' ' <"$2" | grep -oE 'KAVELIN_API [^;(]+\(' | grep -oE 'kavelin_[a-z_]+\($' | tr -d '(' | sort)
diff <(printf '%s\n' "$declared") <(printf '%s\n' "$exported") || { echo "< declared only, > exported only"; exit 1; }
echo "OK $(wc -l <<<"$exported") functions"
