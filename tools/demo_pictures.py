"""Draws the demo drive's snapshots: scenes of games that never were, 320 by 240 in 16 colours.

snapshot(genre, seed) gives a Canvas; gif(canvas) and bmp(canvas) give the bytes of a picture file.
The same genre and seed give the same picture on every machine. demo/snapshots holds one picture of
each scene as JPEG.
"""

import random
import struct

WIDTH, HEIGHT = 320, 240

# The places of a palette.
BLACK, SKY0, SKY5, SUN, EMBER, BLUE, PALE, SILVER, IVORY, EARTH, SOIL, LEAF = (
    0, 1, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)


def _mix(a, b, part):
    return tuple(round(x + (y - x) * part) for x, y in zip(a, b))


def _palette(sky, dusk, sun, ember, blue, earth, leaf):
    ramp = [_mix(sky, dusk, i / 5) for i in range(6)]
    return [(6, 6, 14), *ramp, sun, ember, blue, _mix(blue, (255, 255, 255), 0.55),
            (192, 192, 198), (252, 244, 226), earth, _mix(earth, (255, 255, 255), 0.25), leaf]


PALETTES = [
    _palette((14, 16, 52), (92, 80, 158), (255, 198, 120), (226, 114, 91), (140, 150, 240),
             (34, 30, 70), (92, 190, 170)),
    _palette((30, 12, 44), (176, 74, 92), (255, 222, 150), (232, 122, 84), (150, 130, 230),
             (52, 20, 50), (120, 176, 120)),
    _palette((6, 26, 50), (64, 138, 172), (255, 240, 190), (236, 130, 96), (110, 176, 240),
             (14, 44, 62), (110, 214, 160)),
    _palette((10, 10, 24), (70, 60, 96), (250, 160, 110), (196, 74, 66), (120, 130, 220),
             (40, 34, 52), (210, 180, 90)),
    _palette((22, 30, 84), (150, 176, 236), (255, 226, 140), (222, 108, 80), (96, 112, 214),
             (60, 54, 110), (104, 196, 120)),
]

# Letters of 3 by 5 dots for the score lines, a row in three bits, the top row first.
GLYPHS = {
    "0": 0o75557, "1": 0o26227, "2": 0o71747, "3": 0o71317, "4": 0o55711, "5": 0o74717,
    "6": 0o74757, "7": 0o71222, "8": 0o75757, "9": 0o75717, "U": 0o55557, "P": 0o75744,
    "H": 0o55755, "I": 0o72227, "T": 0o72222, "M": 0o57755, "E": 0o74647, "R": 0o75765,
    "S": 0o74717, "C": 0o74447, "O": 0o75557, "A": 0o75755, "D": 0o65556, "L": 0o44447,
}

SHIP = ("....#....", "...###...", "...#o#...", "..##o##..", ".###o###.", "#########", "#.#.*.#.#")
SAUCER = ("...###...", "..#ooo#..", ".#######.", "##o#o#o##", ".#.....#.")
MOTH = ("#...#...#", "##..#..##", "#########", ".##ooo##.", "..#*#*#..", "...###...", "....#....")
BEETLE = ("#...#...#", ".#.###.#.", "..#o#o#..", "#########", "..#####..", "#########", "..#.#.#..")
ROBOT = ("...#...", ".#####.", ".#o#o#.", ".#####.", "#######", "#.#*#.#", "..#.#..", ".##.##.")
FIGHTER = ("##..............", "####......oo....", "###########oo###", ".*##############",
           "..*..######.....", "....##..........")
RUNNER = ("..###..", "..#oo..", "..###..", ".#####.", "#.###.#", "..###..", ".##.##.", "##...##")
PLAYER_L = ("...###......", "...###......", "..#####.....", ".#########..", "##.####..##.",
            "#..####.....", "..##.##.....", ".##...##....", "##.....##...")
CAR = ("...######...", "..#oooooo#..", ".##########.", "############", "##*######*##", ".##......##.")


class Canvas:
    def __init__(self, palette):
        self.palette = palette
        self.dots = bytearray(WIDTH * HEIGHT)

    def rect(self, x, y, w, h, colour):
        left, right = max(0, int(x)), min(WIDTH, int(x + w))
        for row in range(max(0, int(y)), min(HEIGHT, int(y + h))):
            if right > left:
                start = row * WIDTH
                self.dots[start + left:start + right] = bytes([colour]) * (right - left)

    def frame(self, x, y, w, h, colour, thick=1):
        self.rect(x, y, w, thick, colour)
        self.rect(x, y + h - thick, w, thick, colour)
        self.rect(x, y, thick, h, colour)
        self.rect(x + w - thick, y, thick, h, colour)

    def disc(self, cx, cy, radius, colour):
        for dy in range(-radius, radius + 1):
            half = int((radius * radius - dy * dy) ** 0.5)
            self.rect(cx - half, cy + dy, 2 * half + 1, 1, colour)

    def line(self, x0, y0, x1, y1, colour):
        steps = max(abs(x1 - x0), abs(y1 - y0), 1)
        for i in range(steps + 1):
            self.rect(x0 + (x1 - x0) * i // steps, y0 + (y1 - y0) * i // steps, 1, 1, colour)

    def sprite(self, rows, x, y, colours, scale=1, mirrored=False):
        """colours: the colour for each of the marks `#`, `o` and `*`."""
        for dy, row in enumerate(rows):
            for dx, mark in enumerate(reversed(row) if mirrored else row):
                if mark != ".":
                    self.rect(x + dx * scale, y + dy * scale, scale, scale,
                              colours["#o*".index(mark)])

    def text(self, words, x, y, colour, scale=2):
        for letter in words:
            bits = GLYPHS.get(letter, 0)
            for place in range(15):
                if bits >> (14 - place) & 1:
                    self.rect(x + place % 3 * scale, y + place // 3 * scale, scale, scale, colour)
            x += 4 * scale

    def sky(self, bottom=HEIGHT):
        """Six shades, with a row of checks between two of them."""
        band = bottom / 6
        for i in range(6):
            self.rect(0, i * band, WIDTH, band + 1, SKY0 + i)
            if i:
                for x in range(0, WIDTH, 2):
                    self.rect(x, i * band - 1, 1, 1, SKY0 + i)
                    self.rect(x + 1, i * band - 3, 1, 1, SKY0 + i)

    def stars(self, rng, count, bottom=HEIGHT):
        for _ in range(count):
            x, y, size = rng.randrange(WIDTH), rng.randrange(bottom), rng.choice((1, 1, 1, 2))
            self.rect(x, y, size, size, rng.choice((PALE, SILVER, IVORY, BLUE)))

    def ridge(self, rng, base, height, colour, step=9):
        level = height // 2
        for x in range(0, WIDTH, 2):
            if x % step < 2:
                slope = rng.randint(-2, 2)
            level = min(height, max(3, level + slope))
            self.rect(x, base - level, 2, level, colour)

    def score(self, rng):
        self.text("1UP", 8, 6, EMBER)
        self.text(f"{rng.randrange(100, 9999) * 10:06d}", 40, 6, IVORY)
        self.text("HI", 196, 6, EMBER)
        self.text(f"{rng.randrange(10000, 60000) * 10:06d}", 220, 6, IVORY)


def maze(c, rng):
    """Corridors round mirrored blocks, a robot with a lamp, and beetles."""
    cell, columns, rows = 16, 20, 13
    top = 24
    half = [[False] * (columns // 2) for _ in range(rows)]
    for y in range(1, rows - 1, 2):
        for x in range(1, columns // 2):
            half[y][x] = rng.random() < 0.72
    for y in range(2, rows - 1, 2):
        for x in range(1, columns // 2, 2):
            half[y][x] = half[y - 1][x] and half[y + 1][x] and rng.random() < 0.3
    wall = [row + row[::-1] for row in half]
    c.frame(2, top - 6, WIDTH - 4, rows * cell + 12, BLUE, 2)
    for y in range(rows):
        for x in range(columns):
            left, upper = x * cell, top + y * cell
            if wall[y][x]:
                c.rect(left, upper + 2, cell, cell - 4, BLUE)
                c.rect(left + (not x or not wall[y][x - 1]) * 2, upper + 4,
                       cell - (x + 1 >= columns or not wall[y][x + 1]) * 2
                       - (not x or not wall[y][x - 1]) * 2, cell - 8, SKY0 + 1)
            else:
                c.rect(left + 7, upper + 7, 2, 2, SUN)
    free = [(x, y) for y in range(rows) for x in range(columns) if not wall[y][x]]
    for colour in (EMBER, LEAF, PALE):
        x, y = rng.choice(free)
        c.sprite(BEETLE, x * cell - 1, top + y * cell + 1, (colour, IVORY, SUN), 2)
    x, y = rng.choice(free)
    c.disc(x * cell + 8, top + y * cell + 8, 20, SKY5)
    c.disc(x * cell + 8, top + y * cell + 8, 15, PALE)
    c.sprite(ROBOT, x * cell + 1, top + y * cell, (EARTH, IVORY, EMBER), 2)
    c.score(rng)


def space(c, rng):
    """Rows of visitors above a lone ship."""
    c.stars(rng, 130)
    radius = rng.randint(24, 44)
    x, y = rng.randint(30, 290), rng.randint(140, 180)
    c.disc(x, y, radius, SKY0 + 2)
    c.disc(x - radius // 5, y - radius // 5, radius * 3 // 4, SKY0 + 3)
    c.disc(x - radius // 3, y - radius // 3, radius // 2, SKY0 + 4)
    shift = rng.randint(-12, 12)
    for row, (shape, body, eye) in enumerate(((SAUCER, EMBER, SUN), (MOTH, BLUE, IVORY),
                                              (MOTH, PALE, SKY0), (SAUCER, LEAF, IVORY))):
        for column in range(8):
            if rng.random() < 0.86:
                c.sprite(shape, 34 + shift + column * 33, 34 + row * 24, (body, eye, SUN), 2)
    ship = rng.randint(60, 250)
    c.sprite(SHIP, ship, 208, (SILVER, BLUE, SUN), 3)
    for i in range(rng.randint(2, 4)):
        c.rect(ship + 12, 190 - i * 26, 3, 10, SUN)
    for _ in range(5):
        c.rect(rng.randrange(20, 300), rng.randrange(130, 200), 2, 7, EMBER)
    c.score(rng)


def scroller(c, rng):
    """A fighter over mountains at dusk."""
    c.sky(200)
    c.stars(rng, 40, 70)
    c.disc(rng.randint(60, 260), rng.randint(96, 130), rng.randint(20, 30), SUN)
    c.ridge(rng, 196, 86, SKY0 + 3, 13)
    c.ridge(rng, 204, 52, SKY0 + 1, 7)
    c.rect(0, 200, WIDTH, 40, EARTH)
    c.ridge(rng, 202, 20, EARTH, 5)
    for x in range(0, WIDTH, 22):
        height = rng.randint(4, 26)
        c.rect(x, 236 - height, 12, height + 4, BLACK)
        c.rect(x + 2, 239 - height, 3, 3, SUN if rng.random() < 0.5 else BLACK)
    y = rng.randint(70, 140)
    c.sprite(FIGHTER, 34, y, (SILVER, PALE, EMBER), 3)
    for i in range(4):
        c.rect(90 + i * 26, y + 9, 14, 3, SUN)
    for i in range(5):
        c.sprite(SAUCER, 196 + rng.randint(0, 96), 34 + i * 30, (EMBER, IVORY, SUN), 2)
    c.disc(212, y + 10, 11, EMBER)
    c.disc(212, y + 10, 7, SUN)
    c.disc(212, y + 10, 3, IVORY)
    c.score(rng)


def platforms(c, rng):
    """Girders with ladders, coins and somebody on the way up."""
    c.sky()
    c.stars(rng, 50, 150)
    for x in range(0, WIDTH, 40):
        height = rng.randint(60, 170)
        c.rect(x, HEIGHT - height, 36, height, SKY0)
        for wy in range(HEIGHT - height + 8, HEIGHT - 8, 14):
            for wx in range(x + 6, x + 32, 10):
                c.rect(wx, wy, 4, 6, SUN if rng.random() < 0.25 else SKY0 + 1)
    floors = [74, 116, 158, 200]
    for i, y in enumerate(floors):
        left = 0 if i == 3 else rng.randint(0, 40)
        width = WIDTH if i == 3 else rng.randint(220, 280)
        c.rect(left, y, width, 10, EMBER)
        c.rect(left, y, width, 2, SUN)
        for x in range(left, left + width, 10):
            c.line(x, y + 8, x + 5, y + 3, EARTH)
            c.line(x + 5, y + 3, x + 10, y + 8, EARTH)
        if i:
            x = rng.randint(60, 230)
            for side in (0, 12):
                c.rect(x + side, y - 42, 3, 42, PALE)
            for rung in range(y - 38, y, 7):
                c.rect(x, rung, 14, 2, PALE)
        for _ in range(3):
            x = rng.randint(50, 250)
            c.disc(x, y - 10, 5, SUN)
            c.rect(x - 1, y - 13, 2, 6, IVORY)
    c.sprite(RUNNER, rng.randint(60, 240), floors[rng.randint(1, 3)] - 24, (BLUE, IVORY, SUN), 3)
    for i in range(2):
        c.sprite(BEETLE, rng.randint(50, 230), floors[i] - 14, (LEAF, IVORY, SUN), 2)
    c.rect(0, 210, WIDTH, 30, EARTH)
    for x in range(0, WIDTH, 16):
        c.frame(x, 210, 16, 15, SOIL)
        c.frame(x - 8, 225, 16, 15, SOIL)
    c.score(rng)


def blocks(c, rng):
    """A shaft that fills with blocks, and the next ones beside it."""
    c.sky()
    for x in range(0, WIDTH, 20):
        for y in range(0, HEIGHT, 20):
            c.frame(x, y, 20, 20, SKY0)
    size, columns, rows, left, top = 14, 11, 15, 24, 24
    c.rect(left - 4, top - 4, columns * size + 8, rows * size + 8, SILVER)
    c.rect(left, top, columns * size, rows * size, BLACK)

    def block(x, y, colour):
        c.rect(x, y, size - 1, size - 1, colour)
        c.rect(x, y, size - 1, 2, IVORY)
        c.rect(x + size - 4, y + size - 4, 2, 2, SKY0)

    shades = (EMBER, BLUE, LEAF, SUN, PALE)
    for column in range(columns):
        for row in range(rng.randint(3, 8)):
            block(left + column * size, top + (rows - 1 - row) * size,
                  shades[(column * 2 + row // 2 + rng.randint(0, 1)) % 5])
    piece = rng.choice((((0, 0), (1, 0), (2, 0)), ((0, 0), (0, 1), (1, 1)), ((0, 0), (1, 1), (2, 0))))
    for place, (dx, dy) in enumerate(piece):
        block(left + (4 + dx) * size, top + (1 + dy) * size, shades[place])
        block(228 + dx * size, 58 + dy * size, shades[4 - place])
    c.frame(206, 40, 86, 62, SILVER, 2)
    for place, word in enumerate(("SCORE", "TIME", "HI")):
        y = 118 + place * 38
        c.rect(206, y, 86, 30, BLACK)
        c.frame(206, y, 86, 30, BLUE)
        c.text(word, 212, y + 4, EMBER)
        c.text(f"{rng.randrange(99999):05d}", 212, y + 17, IVORY)


def road(c, rng):
    """A road that bends away to the hills."""
    horizon = 104
    c.sky(horizon)
    c.disc(rng.randint(80, 240), horizon - 18, 26, SUN)
    for slit in range(4):
        c.rect(0, horizon - 24 + slit * 7, WIDTH, 1 + slit // 2, SKY5)
    c.ridge(rng, horizon, 40, SKY0 + 1, 11)
    bend = rng.choice((-1, 1)) * rng.uniform(0.5, 1.0)
    for row in range(horizon, HEIGHT):
        depth = row - horizon + 1
        stripe = int(2600 / depth) // 14 % 2
        middle = 160 + bend * (HEIGHT - row) ** 2 / 160
        half = depth * 0.95 + 4
        c.rect(0, row, WIDTH, 1, LEAF if stripe else SKY0 + 2)
        c.rect(middle - half * 1.12, row, half * 2.24, 1, EMBER if stripe else IVORY)
        c.rect(middle - half, row, half * 2, 1, EARTH if stripe else SOIL)
        if stripe:
            for lane in (-0.34, 0.3):
                c.rect(middle + half * lane, row, max(1, half * 0.05), 1, IVORY)
    for x, y, scale, body in ((150 + bend * 40, 134, 2, BLUE), (92 + bend * 10, 166, 3, LEAF)):
        c.sprite(CAR, int(x), y, (body, PALE, SUN), scale)
    c.sprite(CAR, 132, 192, (EMBER, PALE, SUN), 5)
    for side in (16, 286):
        for height, size in ((152, 16), (200, 28)):
            c.rect(side + size // 4, height, 4, size, EARTH)
            c.disc(side + size // 4 + 2, height - size // 3, size // 2, SKY0 + 1)
    c.score(rng)


def arena(c, rng):
    """Two opponents before a temple gate."""
    c.sky(170)
    c.disc(160, 92, 50, SUN)
    for slit in range(5):
        c.rect(100, 100 + slit * 9, 120, 1 + slit, SKY0 + 3)
    c.ridge(rng, 168, 44, SKY0 + 2, 12)
    for x in (84, 222):
        c.rect(x, 66, 14, 110, EMBER)
        c.rect(x, 66, 4, 110, SUN)
    c.rect(58, 56, 204, 12, EMBER)
    c.rect(66, 78, 188, 7, EMBER)
    c.rect(50, 50, 220, 7, BLACK)
    c.rect(0, 168, WIDTH, 72, EARTH)
    for i in range(-10, 11):
        c.line(160 + i * 14, 168, 160 + i * 60, 239, SOIL)
    for y in (168, 180, 198, 222):
        c.rect(0, y, WIDTH, 1, SOIL)
    gap = rng.randint(0, 22)
    c.sprite(PLAYER_L, 58 + gap, 124, (BLUE, IVORY, SUN), 8)
    c.sprite(PLAYER_L, 166 - gap, 124, (BLACK, IVORY, SUN), 8, mirrored=True)
    for x, width, mirrored in ((12, rng.randint(60, 132), False), (176, rng.randint(40, 120), True)):
        c.rect(x, 26, 132, 10, EARTH)
        c.rect(x + 132 - width if not mirrored else x, 26, width, 10, SUN)
        c.frame(x, 26, 132, 10, IVORY)
    c.text(f"{rng.randint(11, 89)}", 153, 27, IVORY)
    c.score(rng)


def court(c, rng):
    """A net, two players and a ball in the floodlight."""
    c.rect(0, 0, WIDTH, HEIGHT, SKY0 + 1)
    for y in range(22, 62, 6):
        for x in range(0, WIDTH, 6):
            c.rect(x + (y // 6 % 2) * 3, y, 3, 3,
                   rng.choice((SKY0, EMBER, PALE, SUN, SILVER, SKY0 + 3, SKY0)))
    c.rect(0, 62, WIDTH, 10, BLUE)
    for x in range(6, WIDTH, 44):
        c.rect(x, 65, 26, 4, PALE)
    for row in range(72, HEIGHT):
        c.rect(0, row, WIDTH, 1, EMBER if (row // 12) % 2 else SKY0 + 3)
    for row in range(84, 228):
        half = 74 + (row - 84) * 0.5
        c.rect(160 - half, row, half * 2, 1, LEAF)
        for edge in (-half, half - 3, -half * 0.72, half * 0.72 - 2):
            c.rect(160 + edge, row, 3, 1, IVORY)
    for y, half in ((84, 74), (110, 63), (190, 92), (225, 146)):
        c.rect(160 - half, y, half * 2, 3, IVORY)
    c.rect(158, 110, 3, 80, IVORY)
    c.rect(52, 130, 216, 16, SILVER)
    for x in range(52, 268, 4):
        c.rect(x, 133, 1, 13, EARTH)
    for y in range(134, 146, 4):
        c.rect(52, y, 216, 1, EARTH)
    c.rect(52, 130, 216, 3, IVORY)
    c.sprite(RUNNER, rng.randint(110, 190), 82, (BLUE, IVORY, SUN), 3)
    c.sprite(RUNNER, rng.randint(90, 200), 176, (EARTH, IVORY, SUN), 6)
    x, y = rng.randint(110, 210), rng.randint(96, 124)
    c.disc(x + 3, y + 14, 3, EARTH)
    c.disc(x, y, 4, SUN)
    c.disc(x - 1, y - 1, 1, IVORY)
    c.rect(0, 0, WIDTH, 22, BLACK)
    c.score(rng)


SCENES = {
    "Labyrinth": maze, "Maze": maze,
    "Space": space, "Shooter 3D": space,
    "Shooter": scroller,
    "Platform": platforms, "Action": platforms, "Arcade": platforms,
    "Puzzle": blocks, "Breakout": blocks, "Gambling": blocks, "Pinball": blocks, "Pool": blocks,
    "Trivia": blocks,
    "Racing": road,
    "Fighting": arena,
    "Sports": court,
}


def scene(genre):
    """What the picture of a game of that genre shows."""
    return SCENES.get(genre, platforms)


def snapshot(genre, seed):
    """The picture of a game: its genre says what it shows, the seed text all else."""
    rng = random.Random(seed)
    canvas = Canvas(rng.choice(PALETTES))
    scene(genre)(canvas, rng)
    return canvas


def bmp(canvas):
    """An uncompressed Windows bitmap of 8 bits a dot."""
    colours = b"".join(bytes((b, g, r, 0)) for r, g, b in canvas.palette)
    rows = [canvas.dots[y * WIDTH:(y + 1) * WIDTH] for y in reversed(range(HEIGHT))]
    offset = 14 + 40 + len(colours)
    head = struct.pack("<2sIHHI", b"BM", offset + WIDTH * HEIGHT, 0, 0, offset)
    info = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 8, 0, WIDTH * HEIGHT, 2835, 2835,
                       len(canvas.palette), 0)
    return head + info + colours + b"".join(rows)


def _lzw(dots, bits):
    """The codes of a GIF's picture, least significant bit first."""
    clear, end = 1 << bits, (1 << bits) + 1
    out, held, count = bytearray(), 0, 0
    table, width = {}, bits + 1

    def put(code):
        nonlocal held, count
        held |= code << count
        count += width
        while count >= 8:
            out.append(held & 255)
            held >>= 8
            count -= 8

    put(clear)
    word, following = dots[0], end + 1
    for dot in dots[1:]:
        longer = table.get((word, dot))
        if longer is not None:
            word = longer
            continue
        put(word)
        if following < 4096:
            table[word, dot] = following
            if following == 1 << width:
                width += 1
            following += 1
        else:
            put(clear)
            table, width, following = {}, bits + 1, end + 1
        word = dot
    put(word)
    put(end)
    if count:
        out.append(held & 255)
    return bytes(out)


def gif(canvas):
    """A GIF of 16 colours."""
    colours = b"".join(bytes(colour) for colour in canvas.palette)
    data = _lzw(canvas.dots, 4)
    parts = [data[i:i + 255] for i in range(0, len(data), 255)]
    return b"".join((
        b"GIF87a", struct.pack("<HHBBB", WIDTH, HEIGHT, 0xF3, 0, 0), colours,
        struct.pack("<BHHHHBB", 0x2C, 0, 0, WIDTH, HEIGHT, 0, 4),
        *(bytes([len(part)]) + part for part in parts), b"\0;"))
