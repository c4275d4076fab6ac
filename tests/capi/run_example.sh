#!/usr/bin/env bash
# run_example.sh PROGRAM ACCOUNT YEAR: runs an example on a copy of the account and looks at what it printed.
set -euo pipefail
program=$1 account=$2 year=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$account" "${account%.kavelin}.system.kavelin" "$work/"

"$program" "$work/$(basename "$account")" "$year" >"$work/rows" || { echo "$program failed"; exit 1; }
cat "$work/rows"
# Ten rows in the order of their ranks, each with its share of the capital, none above the one before.
awk -F '\t' '
    NR == 1 {
        for (i = 1; i <= NF; ++i) column[$i] = i
        rank = column["cNo"]; amount = column["资金占用额"]; share = column["所占比重"]
        if (!rank || !amount || !share) { print "a column is missing: " $0; exit 1 }
        next
    }
    $rank != NR - 1 { print "row " NR - 1 " has the rank " $rank; bad = 1 }
    $amount + 0 <= 0 { print "row " NR - 1 " ties up no capital: " $amount; bad = 1 }
    NR > 2 && $share + 0 > last + 0 { print "row " NR - 1 " has a larger share than the one before"; bad = 1 }
    { last = $share; sum += $share }
    END {
        if (NR != 11) { print NR - 1 " rows, not 10"; bad = 1 }
        if (sum <= 0 || sum > 100) { print "the shares sum to " sum; bad = 1 }
        exit bad
    }' "$work/rows"

# An account that is not there is an error of the library, told in a sentence.
if "$program" "$work/none.kavelin" "$year" >"$work/rows" 2>"$work/error"; then
    echo "$program did not fail without an account"; exit 1
fi
grep -q 'none.kavelin' "$work/error" || { echo "no word of the account:"; cat "$work/error"; exit 1; }
echo "OK"
