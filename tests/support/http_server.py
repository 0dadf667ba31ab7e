"""A web server and proxy on loopback that keeps what it is asked.

    http_server.py FOLDER

Prints its port, then serves until standard input ends. A request for a path is answered
with the file of that name under FOLDER, "/moved/NAME" with a redirection to /NAME, and
"/stalled" never. A request for a whole address, as a proxy gets it, is fetched from there.
Each request line is added to FOLDER/requests.
"""
import http.server
import pathlib
import sys
import threading
import urllib.error
import urllib.request

FOLDER = pathlib.Path(sys.argv[1])


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        with open(FOLDER / "requests", "a") as requests:
            requests.write(self.requestline + "\n")
        if self.path.lower().startswith("http://"):
            self.relay()
        elif self.path == "/stalled":
            threading.Event().wait()
        elif self.path.startswith("/moved/"):
            self.send_response(302)
            self.send_header("Location", self.path[len("/moved"):])
            self.end_headers()
        else:
            self.serve(FOLDER / self.path.lstrip("/"))

    def serve(self, file):
        if file.is_file():
            self.answer(200, file.read_bytes())
        else:
            self.answer(404, b"9.9.9")

    def relay(self):
        direct = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        try:
            with direct.open(self.path) as answer:
                self.answer(answer.status, answer.read())
        except urllib.error.HTTPError as error:
            self.answer(error.code, b"")

    def answer(self, status, body):
        self.send_response(status)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
server.daemon_threads = True
threading.Thread(target=server.serve_forever, daemon=True).start()
print(server.server_address[1], flush=True)
sys.stdin.read()
