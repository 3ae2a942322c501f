#!/usr/bin/env bash
# A table of 1,000 rows by 10 columns, as the table editor writes it, read
# back into the editor's model and regenerated; then Python's html.parser
# reading the same table into rows of cells, for comparison.
set -euo pipefail
build="${1:-build}"
dir="${TMPDIR:-/tmp}/quillery-table-bench"
mkdir -p "$dir"
file="$dir/table-1000x10.html"
"$build/bench/bench_table_speed" generate "$file" 1000 10
"$build/bench/bench_table_speed" run "$file" 5

command -v python3 >/dev/null || { echo "python3 not installed: no comparison"; exit 0; }
python3 - "$file" <<'PY'
import sys, time
from html.parser import HTMLParser
text = open(sys.argv[1], encoding='utf-8').read()
class Cells(HTMLParser):
    def __init__(self):
        super().__init__(convert_charrefs=False)
        self.rows, self.cell = [], None
    def handle_starttag(self, tag, attrs):
        if tag == 'tr': self.rows.append([])
        elif tag in ('td', 'th'): self.cell = []
        elif self.cell is not None: self.cell.append(self.get_starttag_text())
    def handle_endtag(self, tag):
        if tag in ('td', 'th'): self.rows[-1].append(''.join(self.cell)); self.cell = None
        elif self.cell is not None: self.cell.append('</%s>' % tag.upper())
    def handle_data(self, data):
        if self.cell is not None: self.cell.append(data)
    def handle_entityref(self, name):
        if self.cell is not None: self.cell.append('&%s;' % name)
times = []
for _ in range(5):
    t0 = time.perf_counter(); p = Cells(); p.feed(text); p.close(); times.append((time.perf_counter() - t0) * 1000)
print('python3 html.parser, same table: %d rows, read %.1f-%.1f ms' % (len(p.rows), min(times), max(times)))
PY
