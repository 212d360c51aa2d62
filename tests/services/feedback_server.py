"""An HTTPS server that takes feedback well or badly, as the first part of the path says.

Usage: feedback_server.py DIRECTORY. Writes the certificate that it is to be trusted by to DIRECTORY/certificate.pem,
then prints its port, then a line of JSON for every request."""

import http.server
import json
import os
import ssl
import subprocess
import sys
import time


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"])).decode()
        manner = self.path.split("/")[1]
        print(json.dumps({"path": self.path, "headers": {name.lower(): value for name, value in self.headers.items()},
                          "body": body}), flush=True)
        getattr(self, "answer_" + manner)()

    def do_GET(self):
        print(json.dumps({"path": self.path, "method": "GET"}), flush=True)
        self.answer(200, b"{}")

    def answer(self, status, content=b"", **headers):
        self.send_response(status)
        for name, value in headers.items():
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)

    def answer_object(self):
        self.answer(201, b'{"id": 7}')

    def answer_nothing(self):
        self.answer(204)

    def answer_refusal(self):
        self.answer(422, b'{"error": "too short"}')

    def answer_failure(self):
        self.answer(503, b"<h1>Down</h1>")

    def answer_login(self):
        self.answer(401, **{"WWW-Authenticate": 'Basic realm="private"'})

    def answer_redirection(self):
        self.answer(307, Location=f"https://localhost:{self.server.server_port}/object/api/feedbacks")

    def answer_downgrade(self):
        self.answer(302, Location=f"http://localhost:{self.server.server_port}/object/api/feedbacks")

    def answer_garbage(self):
        self.answer(200, b"<html>Welcome to the lounge</html>")

    def answer_flood(self):
        self.answer(200, b"{" + b" " * 200_000 + b"}")

    def answer_half(self):
        self.send_response(200)
        self.send_header("Content-Length", "1000")
        self.end_headers()
        self.wfile.write(b'{"id"')
        self.close_connection = True

    def answer_hangup(self):
        self.close_connection = True

    def answer_silence(self):
        time.sleep(3600)

    def answer_drip(self):
        self.send_response(200)
        self.send_header("Content-Length", "100000")
        self.end_headers()
        while True:
            self.wfile.write(b" ")
            time.sleep(0.05)

    def log_message(self, *arguments):
        pass


class Server(http.server.ThreadingHTTPServer):
    def handle_error(self, request, client_address):
        pass


def main():
    directory = sys.argv[1]
    certificate, key = (os.path.join(directory, name) for name in ("certificate.pem", "key.pem"))
    subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                    "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost,IP:127.0.0.1", "-days", "2",
                    "-keyout", key, "-out", certificate], check=True, capture_output=True)
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(certificate, key)
    server = Server(("127.0.0.1", 0), Handler)
    server.socket = context.wrap_socket(server.socket, server_side=True)
    print(server.server_port, flush=True)
    server.serve_forever()


if __name__ == "__main__":
    main()
