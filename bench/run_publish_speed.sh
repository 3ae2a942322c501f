#!/usr/bin/env bash
# Generates a 20 MB page and publishes it with every pass on (UNIX line ends,
# characters to entities, one alias, slashes inside tags), then does the
# same substitutions with a perl pipeline on the same file; prints one time
# for each and whether the two outputs are the same bytes.
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
work="${TMPDIR:-/tmp}/quillery-bench-publish"
mkdir -p "$work"
page="$work/page.html"
[ -f "$page" ] || "$build/bench/bench_publish_speed" generate "$page" 20
cp "$build/bin/character.inf" "$work/character.inf"

"$build/bench/bench_publish_speed" publish "$page" "$work/quillery.html"

# The same passes in perl: the entity table from character.inf, the alias,
# and backslashes to slashes between "<" and the next ">".
start=$(date +%s%N)
perl -CSD -Mutf8 -e '
  open(my $t, "<:encoding(UTF-8)", $ARGV[0]) or die; my %e;
  while (<$t>) { s/\s+$//; my ($c, $rest) = split /;/, $_, 2; next unless $c > 0;
                 my ($x) = $rest =~ /^([^;]*;)/; $e{chr($c)} = $x; }
  my $cls = join("", map { quotemeta } keys %e);
  local $/; open(my $in, "<:encoding(UTF-8)", $ARGV[1]) or die; my $s = <$in>;
  $s =~ s/\r\n/\n/g;
  $s =~ s/([$cls])/$e{$1}/g;
  $s =~ s/%%NAME%%/Jane Doe/g;
  $s =~ s{<([^>]*)>}{my $x = $1; $x =~ tr#\\#/#; "<$x>"}ge;
  open(my $out, ">:encoding(UTF-8)", $ARGV[2]) or die; print $out $s;
' "$work/character.inf" "$page" "$work/perl.html"
end=$(date +%s%N)
echo "perl      publish $(( (end - start) / 1000000 )) ms"
if cmp -s "$work/quillery.html" "$work/perl.html"; then echo "outputs identical"; else echo "outputs DIFFER"; fi
