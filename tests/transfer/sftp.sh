#!/usr/bin/env bash
# Uploads and downloads over sftp:// against a private OpenSSH server on
# 127.0.0.1, started for the test with its own host key and a key for the
# user. Skipped (exit 77) where the machine has no OpenSSH server.
#   sftp.sh QUILLERY_CLI
set -uo pipefail
cli="$1"
sshd=/usr/sbin/sshd
if [ ! -x "$sshd" ]; then
  echo "SKIP: no OpenSSH server ($sshd) on this machine; install openssh-server to run the sftp test"
  exit 77
fi
work="$(mktemp -d)"
pidfile="$work/sshd.pid"
cleanup() { [ -f "$pidfile" ] && kill "$(cat "$pidfile")" 2>/dev/null; rm -rf "$work"; }
trap cleanup EXIT
[ -n "${SFTP_KEEP:-}" ] && trap - EXIT
fail() { echo "FAIL: $*"; [ -f "$work/log" ] && tail -5 "$work/log"; exit 1; }

# libssh2 (behind libcurl) and today's OpenSSH agree on ECDSA keys in PEM form.
ssh-keygen -q -t ecdsa -m PEM -N "" -f "$work/hostkey" || fail "ssh-keygen"
mkdir -p "$work/home/.ssh" "$work/remote" "$work/site/img"
ssh-keygen -q -t ecdsa -m PEM -N "" -f "$work/home/.ssh/id_rsa" || fail "ssh-keygen"
cp "$work/home/.ssh/id_rsa.pub" "$work/authorized_keys"
port="$(python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1",0)); print(s.getsockname()[1])')"
cat > "$work/sshd_config" <<EOF
Port $port
ListenAddress 127.0.0.1
HostKey $work/hostkey
AuthorizedKeysFile $work/authorized_keys
PasswordAuthentication no
KbdInteractiveAuthentication no
PubkeyAuthentication yes
PermitRootLogin prohibit-password
StrictModes no
UsePAM no
PidFile $pidfile
Subsystem sftp internal-sftp
EOF
[ "$(id -u)" -eq 0 ] && mkdir -p /run/sshd
if ! "$sshd" -f "$work/sshd_config" -E "$work/log"; then
  echo "SKIP: the OpenSSH server would not start here: $(tail -1 "$work/log")"
  exit 77
fi
for _ in $(seq 1 50); do [ -f "$pidfile" ] && break; sleep 0.1; done
export HOME="$work/home"
user="$(id -un)"
host="sftp://127.0.0.1:$port"

# A key the user has not seen: refused, and nothing is sent.
printf '<p>x</p>' > "$work/first.html"
if "$cli" upload --host "$host" --user "$user" --password unused --dir "$work/remote" "$work/first.html" \
     > "$work/out" 2>&1; then
  fail "an unknown host key was accepted"
fi
grep -q "is not known yet" "$work/out" || { cat "$work/out"; fail "no question about the new key"; }
[ -e "$work/remote/first.html" ] && fail "a file went to a server whose key was not accepted"

# Known: a small site with a blank and letters beyond ASCII in its names.
echo "[127.0.0.1]:$port $(cut -d' ' -f1,2 "$work/hostkey.pub")" > "$work/home/.ssh/known_hosts"
printf '<html><body><img src="img/r\xc3\xa9sum\xc3\xa9 photo.gif"><a href="two.html">2</a></body></html>\n' \
  > "$work/site/index.html"
printf '<html><body><a href="index.html">1</a><a href="gone.html">x</a></body></html>\n' > "$work/site/two.html"
head -c 70000 /dev/urandom > "$work/site/img/résumé photo.gif"
"$cli" upload --host "$host" --user "$user" --password unused --dir "$work/remote" "$work/site" \
  > "$work/out" 2>&1 || { cat "$work/out"; fail "upload over sftp"; }
for f in index.html two.html "img/résumé photo.gif"; do
  cmp -s "$work/site/$f" "$work/remote/$f" || fail "$f did not arrive whole"
done

# The same site fetched back by the download crawl, with its missing page logged.
"$cli" download --host "$host" --user "$user" --password unused --dir "$work/remote" \
  index.html "$work/back" Back > "$work/out" 2>&1
for f in index.html two.html "img/résumé photo.gif"; do
  cmp -s "$work/site/$f" "$work/back/$f" || { cat "$work/out"; fail "$f did not come back whole"; }
done
grep -q "gone.html" "$work/back/Autodownload.log" || fail "the missing page is not in the log"
[ -f "$work/back/Back.prj" ] || fail "no website project for the download"
echo "sftp: host key question, upload and download of a site with non-ASCII names over sftp://"
