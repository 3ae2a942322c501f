#!/usr/bin/env bash
# Uploads and downloads over ftps:// (TLS required on both connections)
# against the pyftpdlib test server with a certificate made for the test:
# refused while the certificate is not trusted, whole once it is.
#   ftps.sh QUILLERY_CLI
set -uo pipefail
cli="$1"
here="$(cd "$(dirname "$0")/.." && pwd)"
work="$(mktemp -d)"
server=""
cleanup() { [ -n "$server" ] && kill "$server" 2>/dev/null; rm -rf "$work"; }
trap cleanup EXIT
fail() { echo "FAIL: $*"; exit 1; }
if ! /usr/bin/python3 -c "import OpenSSL, pyftpdlib" 2>/dev/null; then
  echo "SKIP: the FTPS test server needs python3-openssl and python3-pyftpdlib"
  exit 77
fi
openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj "/CN=127.0.0.1" -addext "subjectAltName=IP:127.0.0.1" \
  -keyout "$work/key.pem" -out "$work/cert.pem" 2>/dev/null || fail "openssl"
cat "$work/cert.pem" "$work/key.pem" > "$work/server.pem"
mkdir -p "$work/root" "$work/site/img"
/usr/bin/python3 "$here/support/ftpserver.py" "$work/root" --tls-cert "$work/server.pem" > "$work/port" 2>"$work/server.log" &
server=$!
for _ in $(seq 1 100); do grep -q PORT "$work/port" && break; sleep 0.1; done
port="$(sed -n 's/^PORT //p' "$work/port")"
[ -n "$port" ] || { cat "$work/server.log"; fail "the FTPS server did not start"; }
host="ftps://127.0.0.1:$port"
login=(--user tester --password secret)

printf '<html><body><img src="img/p\xc3\xa4ge one.gif"><a href="two.html">2</a></body></html>\n' > "$work/site/index.html"
printf '<html><body><a href="index.html">1</a><a href="gone.html">x</a></body></html>\n' > "$work/site/two.html"
head -c 50000 /dev/urandom > "$work/site/img/päge one.gif"

# A certificate nobody vouches for: refused, nothing sent.
if "$cli" upload --host "$host" "${login[@]}" --timeout 10 "$work/site" > "$work/out" 2>&1; then
  fail "an untrusted certificate was accepted"
fi
[ -z "$(ls -A "$work/root")" ] || fail "files went to a server whose certificate was not trusted"

"$cli" upload --host "$host" "${login[@]}" --cacert "$work/cert.pem" "$work/site" > "$work/out" 2>&1 \
  || { cat "$work/out"; fail "upload over ftps"; }
for f in index.html two.html "img/päge one.gif"; do
  cmp -s "$work/site/$f" "$work/root/$f" || fail "$f did not arrive whole"
done

"$cli" download --host "$host" "${login[@]}" --cacert "$work/cert.pem" index.html "$work/back" Back \
  > "$work/out" 2>&1
for f in index.html two.html "img/päge one.gif"; do
  cmp -s "$work/site/$f" "$work/back/$f" || { cat "$work/out"; fail "$f did not come back whole"; }
done
grep -q "gone.html" "$work/back/Autodownload.log" || fail "the missing page is not in the log"
echo "ftps: untrusted certificate refused; upload and download over ftps:// with TLS on both connections"
