#!/usr/bin/env bash
# Link checking of a generated site: PAGES pages (default 5000) of 30 links
# each (pages, images, anchors, a few missing files, web and mail addresses)
# with an index page that links to every page, and a project file that lists
# them all. Times `quillery-cli check` on the project, a grep pipeline that
# only pulls the link values out of the same pages, and, when installed,
# linkchecker on the same local links (web addresses ignored), and prints the
# peak memory of quillery-cli.
#   bash bench/run_linkcheck_speed.sh [BUILD_DIR] [PAGES]
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
pages="${2:-5000}"
work="${TMPDIR:-/tmp}/quillery-bench-linkcheck"
rm -rf "$work"
mkdir -p "$work/site/img"
perl -e '
  my ($dir, $n) = @ARGV;
  for my $i (1 .. 40) { open(my $g, ">", "$dir/img/pic$i.gif") or die; print $g "GIF89a"; }
  open(my $idx, ">", "$dir/index.html") or die;
  print $idx "<html><body>\n";
  for my $i (1 .. $n) {
    printf $idx "<a href=\"page%05d.html\">Page %d</a>\n", $i, $i;
    open(my $f, ">", sprintf("%s/page%05d.html", $dir, $i)) or die;
    print $f "<html><head><title>Page $i</title></head>\n<body background=\"img/pic1.gif\">\n";
    for my $r (1 .. 29) {
      my $t = ($i + $r) % $n + 1;
      if ($r % 6 == 0) { printf $f "<p>Row %d <img src=\"img/pic%d.gif\" alt=\"x\"></p>\n", $r, $r; }
      elsif ($r % 10 == 1) { printf $f "<p>See <a href=\"http://www.example.com/p%d.html\">the web</a>.</p>\n", $r; }
      elsif ($r == 13) { printf $f "<p>Mail <a href=\"mailto:someone\@example.com\">us</a>.</p>\n"; }
      elsif ($r == 17 && $i % 50 == 0) { printf $f "<p>Old <a href=\"gone%d.html\">page</a>.</p>\n", $i; }
      elsif ($r == 19) { printf $f "<p>Top <a href=\"page%05d.html#top\">there</a>.</p>\n", $t; }
      else { printf $f "<p>Go to <a href=\"page%05d.html\">page %d</a> for more words about it.</p>\n", $t, $t; }
    }
    print $f "</body></html>\n";
  }
  print $idx "</body></html>\n";' "$work/site" "$pages"
{
  printf '[Details]\r\nName=Bench Site\r\nLocal Directory=%s\r\n[Files]\r\n' "$work/site"
  printf '0=%s\r\n' "$work/site/index.html"
  for ((i = 1; i <= pages; i++)); do printf '%d=%s/page%05d.html\r\n' "$i" "$work/site" "$i"; done
} > "$work/site.prj"
: > "$work/bench.ini"
echo "$(du -sh "$work/site" | cut -f1) in $pages pages"
cat "$work/site"/*.html > /dev/null   # the pages in the page cache for every runner

ms() { echo $(( ($2 - $1) / 1000000 )); }

t0=$(date +%s%N)
/usr/bin/time -f "%M" -o "$work/mem" "$build/bin/quillery-cli" --ini "$work/bench.ini" check "$work/site.prj" \
  > "$work/quillery.out" 2> "$work/quillery.log" || true
t1=$(date +%s%N)
echo "quillery-cli check: $(ms "$t0" "$t1") ms, peak $(( $(tail -1 "$work/mem") / 1024 )) MiB ($(tail -1 "$work/quillery.log"))"

t0=$(date +%s%N)
grep -rhoiE '(href|src|background|lowsrc)=[^ >]+' "$work/site" | sort -u > "$work/grep.out"
t1=$(date +%s%N)
echo "grep -rhoiE ... | sort -u: $(ms "$t0" "$t1") ms ($(wc -l < "$work/grep.out") distinct values, no check)"

if command -v linkchecker > /dev/null; then
  t0=$(date +%s%N)
  linkchecker --no-status --no-warnings --ignore-url='^https?:' --ignore-url='^mailto:' \
    --threads=4 "file://$work/site/index.html" > "$work/linkchecker.out" 2>&1 || true
  t1=$(date +%s%N)
  echo "linkchecker (local links): $(ms "$t0" "$t1") ms ($(grep -Eo '[0-9]+ links? in [0-9]+ URLs checked' "$work/linkchecker.out" | head -1); $(grep -Eo '[0-9]+ errors? found' "$work/linkchecker.out" | head -1))"
else
  echo "linkchecker: not installed"
fi
