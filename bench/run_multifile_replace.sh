#!/usr/bin/env bash
# Multi-file replacement over a generated site: PAGES pages (default 2000,
# about 20 KB each, CR LF, some UTF-8) in one folder. The same replacement,
# without regard to case, is made by `quillery-cli replace` on one copy and
# by `sed -i` (and by `grep -rli | xargs sed -i`) on two others; prints the
# times and whether the trees end up the same bytes.
#   bash bench/run_multifile_replace.sh [BUILD_DIR] [PAGES]
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
pages="${2:-2000}"
work="${TMPDIR:-/tmp}/quillery-bench-multifile"
rm -rf "$work"
mkdir -p "$work/site"
perl -e '
  my ($dir, $n) = @ARGV;
  for my $i (1 .. $n) {
    open(my $f, ">:raw", sprintf("%s/page%04d.html", $dir, $i)) or die;
    print $f "<HTML>\r\n<HEAD><TITLE>Page $i of Old Company</TITLE></HEAD>\r\n<BODY>\r\n";
    for my $r (1 .. 90) {
      print $f "<P>Caf\xc3\xa9 row $r: the OLD COMPANY sells the widgets; see <A HREF=\"docs/p$r.html\">the old company page</A>.</P>\r\n"
        if $r % 3 == 0;
      print $f "<P>Plain text row $r with nothing to change in it at all, only words and more words.</P>\r\n"
        if $r % 3 != 0;
    }
    print $f "</BODY>\r\n</HTML>\r\n";
  }' "$work/site" "$pages"
: > "$work/bench.ini"
du -sh "$work/site" | sed "s/\t.*/ in $pages pages/"
for copy in quillery sed xargs; do cp -r "$work/site" "$work/$copy"; done
sync

ms() { echo $(( ($2 - $1) / 1000000 )); }

sync
t0=$(date +%s%N)
"$build/bin/quillery-cli" --ini "$work/bench.ini" replace -e "old company" "New Company" "$work/quillery/*.html" 2> "$work/quillery.log"
t1=$(date +%s%N)
echo "quillery-cli replace: $(ms "$t0" "$t1") ms ($(tr -d '\r' < "$work/quillery.log" | grep -o '[0-9]* replacements made' ))"

sync
t0=$(date +%s%N)
sed -i 's/old company/New Company/gI' "$work/sed"/*.html
t1=$(date +%s%N)
echo "sed -i:               $(ms "$t0" "$t1") ms"

sync
t0=$(date +%s%N)
grep -rli --null "old company" "$work/xargs" | xargs -0 sed -i 's/old company/New Company/gI'
t1=$(date +%s%N)
echo "grep -rli | xargs sed -i: $(ms "$t0" "$t1") ms"

if diff -r -q "$work/quillery" "$work/sed" > /dev/null; then echo "quillery and sed trees identical"; else echo "trees DIFFER"; fi
