"""A web server and proxy on loopback that keeps what it is asked: http_server.py FOLDER

Prints its port, then serves until standard input ends. A request for a path is answered
with the file of that name in the folder, "/moved/NAME" with a redirection to /NAME, and
"/stalled" never. A request for a whole address, as a proxy gets it, is fetched from there.
Each request line is added to the file "requests".
"""
import http.server
import os
import sys
import threading
import urllib.error
import urllib.request


class Handler(http.server.SimpleHTTPRequestHandler):
    error_message_format = "9.9.9"

    def do_GET(self):
        with open("requests", "a") as requests:
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
            super().do_GET()

    def relay(self):
        direct = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        try:
            with direct.open(self.path) as answer:
                self.send_response(answer.status)
                self.end_headers()
                self.wfile.write(answer.read())
        except urllib.error.HTTPError as error:
            self.send_error(error.code)

    def log_message(self, *_):
        pass


os.chdir(sys.argv[1])
server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
server.daemon_threads = True
threading.Thread(target=server.serve_forever, daemon=True).start()
print(server.server_address[1], flush=True)
sys.stdin.read()
