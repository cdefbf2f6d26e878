#!/usr/bin/env python3
"""A photo service on the loopback, for machines without a key of the real one: editorial collection, search, paging,
download pings and pictures in any size, all drawn by itself. Any key is accepted; none is refused, as the real one does.

Usage: demo_photos.py [--port 8017] [--photos 200] [--tell]
A search for "none" finds nothing, one for "error" fails with status 500, one for "limit" with status 429, and one for
"lost" gets no answer: the connection breaks.
"""
import argparse
import colorsys
import http.server
import json
import math
import random
import struct
import sys
import urllib.parse
import zlib

WORDS = ["sea", "forest", "city", "mountain", "desert", "river", "sky", "garden", "harbour", "meadow"]
NAMES = [("Ada", "Lind"), ("Bruno", "Maier"), ("Chika", "Sato"), ("Dana", None), ("Elif", "Demir"), ("Farid", "Nasser")]
LARGEST_WIDTH = 2400


def photo_traits(index):
    """Width, height, hue and word of a photo: the same for the same number."""
    chance = random.Random(index)
    width, height = chance.choice([(3000, 2000), (2000, 3000), (2400, 2400), (3200, 1800), (1800, 3200)])
    return width, height, chance.random(), WORDS[index % len(WORDS)]


def rgb(hue, saturation, value):
    return tuple(round(part * 255) for part in colorsys.hsv_to_rgb(hue % 1, saturation, value))


def photo_json(index, base):
    width, height, hue, word = photo_traits(index)
    identifier = f"demo-{index}"
    first, last = NAMES[index % len(NAMES)]
    username = first.lower()
    picture = f"{base}/pictures/{identifier}.png"
    page = f"{base}/@{username}"
    return {
        "id": identifier, "width": width, "height": height, "color": "#%02X%02X%02X" % rgb(hue, 0.5, 0.6),
        "description": f"A {word}, drawn by the demo service", "likes": index * 7 % 500,
        "user": {
            "id": username, "username": username, "first_name": first, "last_name": last,
            "name": first + (" " + last if last else ""), "bio": None, "location": None, "portfolio_url": None,
            "profile_image": {size: f"{picture}?w={w}" for size, w in (("small", 32), ("medium", 64), ("large", 128))},
            "links": {"html": page, "photos": page + "/photos", "likes": page + "/likes"},
            "total_collections": 1, "total_likes": 0, "total_photos": 10,
        },
        "urls": {"raw": picture, "full": f"{picture}?w=2400", "regular": f"{picture}?w=1080", "small": f"{picture}?w=400",
                 "thumb": f"{picture}?w=200"},
        "links": {"self": f"{base}/photos/{identifier}", "html": f"{base}/photos/{identifier}",
                  "download": picture, "download_location": f"{base}/photos/{identifier}/download"},
    }


def mountains(chance, hue):
    """Peaks from far to near, each with its place, height and slope in parts of the width, and its colour."""
    for ridge in range(4):
        colour = bytes(rgb(hue, 0.25 + 0.15 * ridge, 0.8 - 0.17 * ridge))
        for _ in range(3 + ridge):
            yield chance.random() * 1.2 - 0.1, 0.35 + 0.17 * ridge + chance.random() * 0.14, 0.9 + chance.random(), colour


def draw(index, width):
    """A PNG of mountains under a sky with a sun, in the photo's own hue."""
    full_width, full_height, hue, _ = photo_traits(index)
    height = max(1, width * full_height // full_width)
    chance = random.Random(index * 31)
    sky = 0.55 + chance.random() * 0.55  # from blue over violet to a warm evening
    sun_x, sun_y, sun_radius = (0.2 + 0.6 * chance.random()) * width, (0.15 + 0.2 * chance.random()) * height, 0.09 * width
    sun = bytes(rgb(0.13, 0.15, 1))
    peaks = list(mountains(chance, hue))
    rows = bytearray()
    for y in range(height):
        at = y / height
        row = bytearray(bytes(rgb(sky + 0.12 * at, 0.5 - 0.4 * min(1, at * 1.6), 0.98)) * width)

        def paint(left, right, colour):
            left, right = max(0, left), min(width, right)
            first, last = math.ceil(left), math.floor(right)
            if first < last:
                row[3 * first:3 * last] = colour * (last - first)
            for x, share in ((first - 1, first - left), (last, right - last)):  # smooth edges
                if first <= last and 0 < share < 1:
                    for channel in range(3 * x, 3 * x + 3):
                        row[channel] += int((colour[channel - 3 * x] - row[channel]) * share)

        if abs(y - sun_y) < sun_radius:
            half = (sun_radius ** 2 - (y - sun_y) ** 2) ** 0.5
            paint(sun_x - half, sun_x + half, sun)
        for x, top, slope, colour in peaks:
            if at > top:
                half = (at - top) * height * slope
                paint(x * width - half, x * width + half, colour)
        rows += b"\0" + row

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(rows), 1))
            + chunk(b"IEND", b""))


def number(query, key, default, low, high):
    """A number of the query, the last where the key comes twice: an address may carry one already."""
    try:
        return min(high, max(low, int(float(query.get(key, [default])[-1]))))
    except (ValueError, OverflowError):
        return default


class Service(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    wbufsize = 65536
    photos = 200
    tells = False

    def do_GET(self):
        url = urllib.parse.urlsplit(self.path)
        query = urllib.parse.parse_qs(url.query)
        parts = [part for part in url.path.split("/") if part]
        if parts[:1] == ["pictures"] and len(parts) == 2:
            return self.picture(parts[1], query)
        if parts[:1] == ["photos"] and parts[2:] == ["download"]:
            self.tell("download", parts[1])
            return self.answer(200 if query.get("client_id") else 401, {"url": self.base() + "/pictures/" + parts[1]})
        if not self.headers.get("Authorization", "").startswith("Client-ID "):
            return self.answer(401, {"errors": ["OAuth error: The access token is invalid"]})
        if parts[:1] == ["collections"] and parts[2:] == ["photos"]:
            return self.answer(200, self.page(range(self.photos), query))
        if parts == ["search", "photos"]:
            return self.search(query)
        self.answer(404, {"errors": ["Couldn't find what was asked for"]})

    def search(self, query):
        text = query.get("query", [""])[0].strip().lower()
        if text == "error":
            return self.answer(500, {"errors": ["Something went wrong"]})
        if text == "lost":
            self.close_connection = True
            return None
        if text == "limit":
            return self.send(429, "text/plain", b"Rate Limit Exceeded")
        hits = [] if text == "none" else [i for i in range(self.photos) if photo_traits(i)[3] in text or text in photo_traits(i)[3]]
        self.answer(200, {"total": len(hits), "results": self.page(hits, query)})

    def picture(self, name, query):
        try:
            index = int(name.removeprefix("demo-").removesuffix(".png"))
        except ValueError:
            return self.answer(404, {"errors": ["No such picture"]})
        self.tell("picture", f"demo-{index}")
        width = number(query, "w", 1080, 1, LARGEST_WIDTH) * number(query, "dpr", 1, 1, 4)
        self.send(200, "image/png", draw(index, min(width, LARGEST_WIDTH)))

    def page(self, indices, query):
        page, per_page = number(query, "page", 1, 1, 10**6), number(query, "per_page", 10, 1, 30)
        return [photo_json(index, self.base()) for index in list(indices)[(page - 1) * per_page:page * per_page]]

    def tell(self, *words):
        if self.tells:
            print(" ".join(words) + "\n", end="", flush=True)  # in one piece: threads tell at the same time

    def base(self):
        return "http://127.0.0.1:%d" % self.server.server_port

    def answer(self, status, value):
        self.send(status, "application/json", json.dumps(value).encode())

    def send(self, status, kind, body):
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)
        self.wfile.flush()

    def log_message(self, *_):
        """Nothing is logged: addresses carry the key."""


class Server(http.server.ThreadingHTTPServer):
    def handle_error(self, request, client_address):
        """A client that hangs up in the middle is nothing to speak of."""
        if not isinstance(sys.exc_info()[1], ConnectionError):
            super().handle_error(request, client_address)


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--port", type=int, default=8017, help="0 takes a free one, which is printed")
    options.add_argument("--photos", type=int, default=200)
    options.add_argument("--tell", action="store_true", help="print each picture and download that is asked for")
    given = options.parse_args()
    Service.photos = given.photos
    Service.tells = given.tell
    try:
        server = Server(("127.0.0.1", given.port), Service)
    except OSError as error:
        print(f"demo photo service: port {given.port}: {error.strerror}", file=sys.stderr)
        return 1
    server.daemon_threads = True
    print(server.server_port, flush=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
