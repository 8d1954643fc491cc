#!/bin/sh
# kovtool_test.sh KOVTOOL MAKE_DECK SAMPLES: the exit codes and outputs of `kovtool rewrite`.
set -u
tool=$1
make_deck=$2
samples=$3
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failed=0
complain() { echo "FAILED: $*"; failed=1; }
# expect CODE ARGUMENTS...: runs the tool and checks its exit code; standard error goes to $dir/err.
expect() {
    wanted=$1
    shift
    "$tool" "$@" >"$dir/out" 2>"$dir/err"
    got=$?
    [ "$got" -eq "$wanted" ] || complain "kovtool $*: exit $got, not $wanted: $(cat "$dir/err")"
}
same() { cmp -s "$1" "$2" || complain "$1 and $2 differ"; }
absent() { [ ! -e "$1" ] || complain "$1 was written"; }

for name in two-station-line ventilation-only; do
    expect 0 rewrite "$samples/$name.kov" "$dir/$name.kov"
    same "$samples/$name.kov" "$dir/$name.kov"
done
"$make_deck" 31000 >"$dir/large.kov"
[ "$(wc -l <"$dir/large.kov")" -ge 30000 ] || complain "the large deck is too short"
expect 0 rewrite "$dir/large.kov" "$dir/large-out.kov"
same "$dir/large.kov" "$dir/large-out.kov"

# OUT may be IN.
sed 's/$/\r/' "$samples/two-station-line.kov" >"$dir/crlf.kov"
cp "$dir/crlf.kov" "$dir/in-place.kov"
expect 0 rewrite "$dir/in-place.kov" "$dir/in-place.kov"
same "$dir/crlf.kov" "$dir/in-place.kov"

# A failed read names the Form and the file, and writes nothing.
head -n 40 "$samples/two-station-line.kov" >"$dir/cut short.kov"
expect 1 rewrite "$dir/cut short.kov" "$dir/nothing.kov"
printf 'Error Reading Form 3\nIn File cut short.kov\n' >"$dir/wanted"
same "$dir/wanted" "$dir/err"
absent "$dir/nothing.kov"

# With --partial what was read is written all the same.
expect 1 rewrite --partial "$dir/cut short.kov" "$dir/partial.kov"
same "$dir/wanted" "$dir/err"
[ "$(head -n 5 "$dir/partial.kov")" = "$(head -n 5 "$samples/two-station-line.kov")" ] || complain "the partial file lacks its head"

# Print groups that were never read can't be written: OUT stays as it is.
cat >"$dir/groups.kov" <<'DECK'
Print groups missing
12.       7.        1997.
 0         0         1
 0
 0
0.
0.
10.        3
 1         60
DECK
echo "precious" >"$dir/old.kov"
expect 1 rewrite "$dir/groups.kov" "$dir/old.kov"
expect 3 rewrite --partial "$dir/groups.kov" "$dir/old.kov"
[ "$(cat "$dir/old.kov")" = "precious" ] || complain "a failed writing touched its output"

# A disc that takes no more leaves OUT as it was, also where it is IN, and nothing beside it. The limit of a file's size stands
# for the full disc here.
expect_full() {
    (
        trap '' XFSZ
        ulimit -f 1
        exec "$tool" rewrite "$1" "$2"
    ) 2>"$dir/err"
    got=$?
    [ "$got" -eq 2 ] || complain "no room for $2: exit $got, not 2: $(cat "$dir/err")"
    grep -q "can't write" "$dir/err" || complain "no room for $2: nothing told"
}
mkdir "$dir/full"
cp "$samples/two-station-line.kov" "$dir/full/deck.kov"
expect_full "$dir/full/deck.kov" "$dir/full/deck.kov"
same "$samples/two-station-line.kov" "$dir/full/deck.kov"
expect_full "$dir/full/deck.kov" "$dir/full/new.kov"
[ "$(ls "$dir/full")" = "deck.kov" ] || complain "a full disc left something behind: $(ls "$dir/full")"
[ ! -e /dev/full ] || expect 2 rewrite "$samples/two-station-line.kov" /dev/full

# OUT keeps its permissions, a link stays a link, and a device is written to as it is.
cp "$samples/two-station-line.kov" "$dir/kept.kov"
chmod 640 "$dir/kept.kov"
ln -s kept.kov "$dir/link.kov"
expect 0 rewrite "$samples/ventilation-only.kov" "$dir/link.kov"
same "$samples/ventilation-only.kov" "$dir/kept.kov"
[ -L "$dir/link.kov" ] || complain "the link was replaced"
[ "$(ls -l "$dir/kept.kov" | cut -c1-10)" = "-rw-r-----" ] || complain "the permissions were changed"
mkfifo "$dir/pipe"
cat "$dir/pipe" >"$dir/piped.kov" &
expect 0 rewrite "$samples/ventilation-only.kov" "$dir/pipe"
wait $!
same "$samples/ventilation-only.kov" "$dir/piped.kov"
expect 0 rewrite "$samples/ventilation-only.kov" /dev/stdout
same "$samples/ventilation-only.kov" "$dir/out"

# What can't be opened or written, and wrong usage.
expect 2 rewrite "$dir/no such file.kov" "$dir/nothing.kov"
expect 2 rewrite "$dir" "$dir/nothing.kov"
expect 2 rewrite "$samples/two-station-line.kov" "$dir/no such folder/out.kov"
expect 2 rewrite "$samples/two-station-line.kov"
expect 2 rewrite
expect 2
expect 2 rewrite --unknown a b
expect 2 nonsense
absent "$dir/nothing.kov"
expect 0 --help
grep -q rewrite "$dir/out" || complain "--help does not tell of rewrite"
expect 0 --version
grep -q '[0-9]\.[0-9]' "$dir/out" || complain "--version tells no version"
# Decks by hand: their outcome stands beside them.
for deck in "$(dirname "$0")"/by-hand/*.kov; do
    name=${deck%.kov}
    rm -f "$dir/by-hand.out"
    if [ -f "$name.form" ]; then
        expect 1 rewrite "$deck" "$dir/by-hand.out"
        absent "$dir/by-hand.out"
        printf 'Error Reading %s\nIn File %s\n' "$(cat "$name.form")" "${deck##*/}" >"$dir/wanted"
        same "$dir/wanted" "$dir/err"
        [ ! -f "$name.out" ] || expect 1 rewrite --partial "$deck" "$dir/by-hand.out"
    else
        expect 0 rewrite "$deck" "$dir/by-hand.out"
    fi
    [ ! -f "$name.out" ] || same "$name.out" "$dir/by-hand.out"
done

exit $failed
