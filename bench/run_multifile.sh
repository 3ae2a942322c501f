#!/usr/bin/env bash
# Multi-file search and replacement over a generated site: PAGES pages
# (default 5000, about 8 KB each, CR LF, some UTF-8) in one folder.
#  - find: `quillery-cli find` against `grep -rliF` and `rg -li -F` (when
#    ripgrep is installed), each listing the pages that hold a word;
#  - replace: `quillery-cli replace` on one copy against
#    `find -name '*.html' -exec sed -i 's/x/y/gI' {} +` on another.
# Prints wall times, peak memory of the quillery runs, and whether the
# listings and the rewritten trees agree.
#   bash bench/run_multifile.sh [BUILD_DIR] [PAGES]
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
pages="${2:-5000}"
cli="$build/bin/quillery-cli"
work="${TMPDIR:-/tmp}/quillery-bench-multifile"
rm -rf "$work"
mkdir -p "$work/site"
# One page in eight holds the word searched for.
perl -e '
  my ($dir, $n) = @ARGV;
  for my $i (1 .. $n) {
    open(my $f, ">:raw", sprintf("%s/page%04d.html", $dir, $i)) or die;
    print $f "<HTML>\r\n<HEAD><TITLE>Page $i of Old Company</TITLE></HEAD>\r\n<BODY>\r\n";
    for my $r (1 .. 64) {
      if ($r % 3 == 0) {
        print $f "<P>Caf\xc3\xa9 row $r: the OLD COMPANY sells widgets; see <A HREF=\"docs/p$r.html\">the old company</A>.</P>\r\n";
      } elsif ($r == 40 && $i % 8 == 0) {
        print $f "<P>Row $r names the Zeppelin, which only some pages talk about at all.</P>\r\n";
      } else {
        print $f "<P>Plain text row $r with nothing to change in it, only words and more words.</P>\r\n";
      }
    }
    print $f "</BODY>\r\n</HTML>\r\n";
  }' "$work/site" "$pages"
: > "$work/bench.ini"
du -sh "$work/site" | sed "s/\t.*/ in $pages pages/"

ms() { echo $(( ($2 - $1) / 1000000 )); }
# Runs a command, prints "NAME: T ms"; the best of three (warm cache).
best_of_three() {
  local name="$1" out="$2"; shift 2
  local best=999999999 t0 t1
  for _ in 1 2 3; do
    t0=$(date +%s%N); "$@" > "$out" 2>/dev/null || true; t1=$(date +%s%N)
    [ $(( t1 - t0 )) -lt "$best" ] && best=$(( t1 - t0 ))
  done
  printf '%-28s %6d ms\n' "$name:" $(( best / 1000000 ))
}

echo "== find \"zeppelin\" (without regard to case) =="
cat "$work"/site/*.html > /dev/null
best_of_three "quillery-cli find" "$work/find.quillery" "$cli" --ini "$work/bench.ini" find -e zeppelin "$work/site/*.html"
best_of_three "grep -rliF" "$work/find.grep" grep -rliF zeppelin "$work/site"
if command -v rg > /dev/null; then
  best_of_three "rg -li -F" "$work/find.rg" rg -li -F zeppelin "$work/site"
fi
rss=$( { /usr/bin/time -f '%M' "$cli" --ini "$work/bench.ini" find -e zeppelin "$work/site/*.html" > /dev/null 2>/dev/null; } 2>&1 | tail -1)
echo "quillery-cli find peak memory: $((rss / 1024)) MB"
if diff <(sort "$work/find.quillery") <(sort "$work/find.grep") > /dev/null; then
  echo "same $(wc -l < "$work/find.grep") files listed"
else
  echo "LISTINGS DIFFER"
fi

echo "== replace \"old company\" by \"New Company\" (without regard to case) =="
for copy in quillery sed; do rm -rf "${work:?}/$copy"; cp -r "$work/site" "$work/$copy"; done
sync
t0=$(date +%s%N)
/usr/bin/time -f '%M' -o "$work/replace.rss" \
  "$cli" --ini "$work/bench.ini" replace -e "old company" "New Company" "$work/quillery/*.html" 2> "$work/quillery.log" || true
t1=$(date +%s%N)
echo "quillery-cli replace:        $(ms "$t0" "$t1") ms, peak memory $(( $(tail -1 "$work/replace.rss") / 1024 )) MB ($(tr -d '\r' < "$work/quillery.log" | grep -o '[0-9]* replacements made'))"
sync
t0=$(date +%s%N)
find "$work/sed" -name '*.html' -exec sed -i 's/old company/New Company/gI' {} +
t1=$(date +%s%N)
echo "find -exec sed -i:           $(ms "$t0" "$t1") ms"
if diff -r -q "$work/quillery" "$work/sed" > /dev/null; then echo "quillery and sed trees identical"; else echo "trees DIFFER"; fi
rm -rf "$work"
