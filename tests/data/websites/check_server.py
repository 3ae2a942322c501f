#!/usr/bin/env python3
"""A small web server for the link checker's tests: answers by path, counts
requests at a time, and prints its port on the first line."""
import http.server, socketserver, sys, threading, time

lock = threading.Lock()
state = {"now": 0, "max": 0, "busy": 0, "methods": []}

class Handler(http.server.BaseHTTPRequestHandler):
    def log_message(self, *args):
        pass

    def leave(self):
        # A request stops counting once its answer is ready, before it is
        # sent: the client may start its next request the moment it has it.
        with lock:
            if self.counted:
                self.counted = False
                state["now"] -= 1

    def answer(self, code, headers=(), body=b""):
        self.leave()
        self.send_response(code)
        for k, v in headers:
            self.send_header(k, v)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if self.command != "HEAD":
            self.wfile.write(body)

    def handle_any(self):
        with lock:
            state["now"] += 1
            state["max"] = max(state["max"], state["now"])
            state["methods"].append(self.command + " " + self.path)
        self.counted = True
        try:
            p = self.path
            if p.startswith("/stats"):
                body = ("%d\n%s" % (state["max"], "\n".join(state["methods"]))).encode()
                return self.answer(200, body=body)
            if p.startswith("/ok"):
                return self.answer(200, body=b"fine")
            if p.startswith("/gone"):
                return self.answer(404)
            if p.startswith("/removed"):
                return self.answer(410)
            if p.startswith("/nohead"):
                return self.answer(405) if self.command == "HEAD" else self.answer(200, body=b"x" * 100000)
            if p.startswith("/moved"):
                return self.answer(301, [("Location", "/ok")])
            if p.startswith("/busy"):
                with lock:
                    state["busy"] += 1
                    first = state["busy"] == 1
                return self.answer(429, [("Retry-After", "1")]) if first else self.answer(200)
            if p.startswith("/always-busy"):
                return self.answer(429, [("Retry-After", "1")])
            if p.startswith("/error"):
                return self.answer(500)
            if p.startswith("/private"):
                return self.answer(403)
            if p.startswith("/slow"):
                time.sleep(8)
                return self.answer(200)
            if p.startswith("/wait"):
                time.sleep(0.3)
                return self.answer(200)
            return self.answer(404)
        finally:
            self.leave()

    do_GET = handle_any
    do_HEAD = handle_any

class Server(socketserver.ThreadingMixIn, http.server.HTTPServer):
    daemon_threads = True

server = Server(("127.0.0.1", 0), Handler)
print(server.server_address[1], flush=True)
server.serve_forever()
