#!/usr/bin/python3
# A real FTP server on 127.0.0.1 for the transfer tests (pyftpdlib).
# Usage: ftpserver.py ROOT [--user U --password P] [--locked DIR]
#        [--drop-after BYTES --drop-times N] [--silent] [--read-limit BPS] [--tls-cert PEM]
# Prints "PORT n" once it listens. --locked makes DIR (below ROOT) read-only
# for the user; --drop-after closes the connection of an upload after that
# many bytes, the first N times; --silent accepts connections and never
# says a word; --read-limit takes uploads no faster than BPS bytes a second;
# --tls-cert PEM (certificate and key) makes it an FTPS server that requires TLS.
import argparse
import logging
import socket
import sys
import time

ap = argparse.ArgumentParser()
ap.add_argument("root")
ap.add_argument("--user", default="tester")
ap.add_argument("--password", default="secret")
ap.add_argument("--locked", default="")
ap.add_argument("--drop-after", type=int, default=0)
ap.add_argument("--drop-times", type=int, default=1)
ap.add_argument("--silent", action="store_true")
ap.add_argument("--read-limit", type=int, default=0)
ap.add_argument("--tls-cert", default="")
args = ap.parse_args()

if args.silent:
    s = socket.socket()
    s.bind(("127.0.0.1", 0))
    s.listen(16)
    print("PORT %d" % s.getsockname()[1], flush=True)
    held = []
    while True:
        c, _ = s.accept()
        held.append(c)

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler, DTPHandler, ThrottledDTPHandler
from pyftpdlib.servers import FTPServer

logging.basicConfig(level=logging.CRITICAL)
auth = DummyAuthorizer()
auth.add_user(args.user, args.password, args.root, perm="elradfmwMT")
if args.locked:
    import os
    auth.override_perm(args.user, os.path.join(args.root, args.locked), perm="elr", recursive=True)

drops = {"left": args.drop_times}


BaseDTP = ThrottledDTPHandler if args.read_limit else DTPHandler
if args.read_limit:
    ThrottledDTPHandler.read_limit = args.read_limit


class DroppingDTP(BaseDTP):
    def handle_read(self):
        BaseDTP.handle_read(self)
        if args.drop_after and drops["left"] > 0 and self.get_transmitted_bytes() >= args.drop_after:
            drops["left"] -= 1
            # The whole session goes, as when a server or a line fails.
            self.cmd_channel.close()
            self.close()

    handle_read_event = handle_read


BaseHandler = FTPHandler
if args.tls_cert:
    from pyftpdlib.handlers import TLS_FTPHandler
    BaseHandler = TLS_FTPHandler


class Handler(BaseHandler):
    dtp_handler = DroppingDTP
    authorizer = auth
    passive_ports = None
    banner = "quillery test server ready"
    if args.tls_cert:
        certfile = args.tls_cert
        tls_control_required = True
        tls_data_required = True


if args.tls_cert:
    from pyftpdlib.handlers import TLS_DTPHandler

    class TlsDTP(TLS_DTPHandler):
        # pyftpdlib 1.5.7 stops reading a data connection before its first
        # command, even while its TLS handshake runs, and so drops clients
        # (curl) that start the handshake at once; later releases read on.
        def readable(self):
            return self._ssl_accepting or TLS_DTPHandler.readable(self)

    Handler.dtp_handler = TlsDTP   # the dropping and throttling tricks are plain FTP only
Handler.use_sendfile = False
server = FTPServer(("127.0.0.1", 0), Handler)
server.max_cons = 64
print("PORT %d" % server.socket.getsockname()[1], flush=True)
server.serve_forever(handle_exit=True)
