#!/usr/bin/env bash
# A moved install works from a third folder: it lists its modulons, creates and edits a counter variation with
# its bundled plug-in, renders the symbol and completes modulon names; with its modulons gone it says where it
# looked and fails, while a library named with --lib-path still works.
source "$(dirname "$0")/common.sh"
install_moved
work="$scratch/work"
mkdir -p "$work"
cd "$work"
plovix=("$prefix/bin/plovix")

listing=$("${plovix[@]}" --list-modulons)
grep -q "^lpm_counter	arithmetic|counters	$prefix/share/plovix/modulons/	" <<<"$listing" ||
  fail "the moved install lists its modulons from its own share/plovix/modulons: $listing"

"${plovix[@]}" --batch --project "$work" --modulon lpm_counter --plugin-args "LPM_WIDTH=8 LPM_DIRECTION=UP" \
  count8.v 2>"$scratch/create.err" || fail "creating a counter: $(cat "$scratch/create.err")"
grep -q 'LPM_WIDTH NUMERIC "8"\|LPM_WIDTH NUMERIC 8' count8.v || fail "the counter is 8 bits wide"
"${plovix[@]}" --batch --project "$work" --plugin-args "LPM_WIDTH=12" count8.v 2>"$scratch/edit.err" ||
  fail "editing the counter: $(cat "$scratch/edit.err")"
grep -q 'LPM_WIDTH NUMERIC "12"\|LPM_WIDTH NUMERIC 12' count8.v || fail "the edited counter is 12 bits wide"
"${plovix[@]}" --render-symbol count8.sym >count8.svg || fail "rendering the symbol"
grep -q "<title>count8</title>" count8.svg || fail "the symbol's picture"

# The completion offers the modulon names the installed command lists.
completions=$(
  PATH="$prefix/bin:$PATH"
  source "$prefix/share/bash-completion/completions/plovix"
  COMP_WORDS=(plovix --modulon lpm_co) COMP_CWORD=2
  _plovix
  echo "${COMPREPLY[*]}"
)
[[ " $completions " == *" lpm_counter "* && " $completions" != *" "[^l]* ]] ||
  fail "completing --modulon lpm_co gave: $completions"

# Without the bundled modulons the command names where it looked and fails; a library of one's own still works.
mv "$prefix/share/plovix/modulons" "$scratch/modulons"
if "${plovix[@]}" --list-modulons >/dev/null 2>"$scratch/none.err"; then fail "listing without a library succeeds"; fi
grep -q "$prefix/share/plovix/modulons" "$scratch/none.err" || fail "the places looked in: $(cat "$scratch/none.err")"
"${plovix[@]}" --lib-path "$scratch/modulons" --list-modulons | grep "^lpm_counter	" >/dev/null ||
  fail "a library given with --lib-path is listed"
echo "moved install: listed, created, edited, rendered, completed; no library reported"
