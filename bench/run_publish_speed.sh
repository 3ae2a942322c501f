#!/usr/bin/env bash
# Generates a 20 MB page and its 20-alias aliases.inf, publishes the page with
# every pass on (UNIX line ends, characters to entities, the aliases, slashes
# inside tags), then does the same substitutions with `perl -0777 -p` on the
# same file; prints the time of each, Quillery's peak memory, and whether
# the two outputs are the same bytes.
#   bash bench/run_publish_speed.sh [BUILD_DIR] [ROUNDS]
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
rounds="${2:-1}"
work="${TMPDIR:-/tmp}/quillery-bench-publish"
mkdir -p "$work"
page="$work/page.html"
"$build/bench/bench_publish_speed" generate "$page" 20
cp "$build/bin/character.inf" "$work/character.inf"

# The same passes with `perl -p`, the file read whole (-0777: faster than line
# by line, and a tag may span lines): CR LF to LF, the entity table of
# character.inf (its characters as UTF-8 bytes), the aliases of aliases.inf
# in file order ("NL_" as LF, the text being UNIX text; whole word: no character other than a delimiter on either
# side; exact case unless the flag says otherwise), and backslashes to
# slashes between "<" and the next ">".
peer() {
    perl -0777 -pe '
      BEGIN {
        local $/ = "\n";
        open(my $t, "<", "$ENV{work}/character.inf") or die;
        while (<$t>) {
          s/\s+$//; my ($c, $rest) = split /;/, $_, 2;
          next unless $c > 0; my ($x) = $rest =~ /^([^;]*;)/;
          my $k = chr($c); utf8::encode($k); $e{$k} = $x;
        }
        $ent = join "|", map { quotemeta } sort keys %e; $ent = qr/($ent)/;
        my $nd = qr/[^!.,?;:()\[\]{} \r\n\t]/;
        open(my $a, "<", "$ENV{work}/aliases.inf") or die;
        while (<$a>) {
          s/\r?\n$//; my ($term, $with, $case, $whole) = split /\x02/, $_, 4;
          next unless length $term;
          s/NL_/\n/g for $term, $with;
          my $re = quotemeta $term;
          $re = "(?<!$nd)$re(?!$nd)" if lc($whole // "") eq "yes";
          $re = "(?i)$re" unless lc($case // "") eq "yes";
          push @aliases, [qr/$re/, $with];
        }
      }
      s/\r\n/\n/g;
      s/$ent/$e{$1}/g;
      for my $a (@aliases) { s/$a->[0]/$a->[1]/g }
      s{<([^>]*)>}{my $x = $1; $x =~ tr#\\#/#; "<$x>"}ge;
    ' "$page" > "$work/perl.html"
}
export work

# Quillery's line gives PublishFile's own time; the process line, like
# perl's, counts the program's start and exit too. Quillery's save flushes
# its file to disk (perl's output is left to the kernel), and on a journalled
# file system that flush also writes whatever else is pending, so the disk is
# synced before each run: neither pays for the other's output.
ms_since() { echo $(( ($(date +%s%N) - $1) / 1000000 )); }
for ((i = 1; i <= rounds; i++)); do
    sync
    start=$(date +%s%N)
    "$build/bench/bench_publish_speed" publish "$page" "$work/quillery.html"
    echo "quillery  process $(ms_since "$start") ms"
    sync
    start=$(date +%s%N)
    peer
    echo "perl -p   process $(ms_since "$start") ms"
done
if cmp -s "$work/quillery.html" "$work/perl.html"; then
    echo "outputs identical ($(stat -c %s "$work/quillery.html") bytes)"
else
    echo "outputs DIFFER" >&2
    exit 1
fi
