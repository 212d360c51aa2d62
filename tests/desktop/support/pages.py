"""Web pages of invented sites, and which of them are open in a browser right now."""

import html
import select
import threading
import time
import urllib.parse
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

from support.processes import wait_until

# A page says that it is open by a connection that it holds for as long as it is: the server sees its end in the
# moment in which the tab closes, and a browser that stands still keeps it. It begins after the page was loaded, so
# that the browser does not show a page that never ends loading.
PAGE = """<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>{title}</title></head>
<body><h1>{title}</h1>
{body}
<script>
addEventListener("load", () => setTimeout(() => new EventSource("/held-open?page=" + encodeURIComponent(location)), 0));
{script}
</script></body></html>
"""

# Asks before it is left, once somebody has clicked or typed into it.
ASKS_BEFORE_LEAVING = 'addEventListener("beforeunload", event => { event.preventDefault(); event.returnValue = true; });'


class Pages:
    """A web server on localhost that answers for every site, as the proxy of the browsers that are given it.

    Whatever else a browser asks for (updates, pages over TLS) it does not get, so nothing leaves this machine."""

    def __init__(self):
        self._pages = {}
        self._held = []
        self._lock = threading.Lock()
        self._server = ThreadingHTTPServer(("127.0.0.1", 0), self._handler())
        self._server.daemon_threads = True
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def close(self):
        self._server.shutdown()
        self._server.server_close()

    @property
    def port(self):
        return self._server.server_address[1]

    def add(self, url, title, body="<p>Text.</p>", script=""):
        """Puts a page on the web and returns its address ("http://news.example.org/today")."""
        self._pages[url] = PAGE.format(title=html.escape(title), body=body, script=script)
        return url

    def add_large(self, url, title, elements=20_000):
        """A page with many links, each of which the accessibility tree describes."""
        return self.add(url, title, "\n".join(f'<a href="#{i}">Entry {i}</a><br>' for i in range(elements // 2)))

    def open(self):
        """Addresses of the pages that are open, sorted; one that is open twice is there twice."""
        with self._lock:
            return sorted(self._held)

    def wait_until_open(self, *urls):
        """Waits until exactly these pages are open."""
        wait_until(lambda: self.open() == sorted(urls), lambda: f"open are {sorted(urls)}, not {self.open()}", 60)

    def stay_open(self, *urls, seconds=2.0):
        """Fails when another set of pages is open at any moment of the next seconds."""
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            assert self.open() == sorted(urls), f"{self.open()} are open, not {sorted(urls)}"
            time.sleep(0.05)

    def _handler(pages):
        class Handler(BaseHTTPRequestHandler):
            def do_GET(self):
                # A browser gives a proxy the whole address.
                address = urllib.parse.urlsplit(self.path)
                if address.path == "/held-open":
                    self._hold(urllib.parse.parse_qs(address.query)["page"][0])
                    return
                page = pages._pages.get(urllib.parse.urlunsplit(address._replace(fragment="")))
                if page is None:
                    self.send_error(404)
                    return
                content = page.encode()
                self.send_response(200)
                self.send_header("Content-Type", "text/html; charset=utf-8")
                self.send_header("Content-Length", str(len(content)))
                self.send_header("Cache-Control", "no-store")
                self.end_headers()
                self.wfile.write(content)

            def _hold(self, page):
                self.send_response(200)
                self.send_header("Content-Type", "text/event-stream")
                self.send_header("Cache-Control", "no-store")
                self.end_headers()
                self.wfile.write(b": here\n\n")
                with pages._lock:
                    pages._held.append(page)
                try:
                    # The page says nothing more: readable means that its end of the connection is gone.
                    select.select([self.connection], [], [])
                finally:
                    with pages._lock:
                        pages._held.remove(page)

            def do_CONNECT(self):
                self.send_error(502)

            def log_message(self, *arguments):
                pass

        return Handler
