"""The pictures that the samples hold: rows of pixels, each a tuple of 8-bit numbers."""

WIDTH, HEIGHT = 45, 31  # odd, so that rows need filling up in every packed form
WHITE, BLACK = (255, 255, 255), (0, 0, 0)


def table(width, height, pixel):
    return [[pixel(x, y) for x in range(width)] for y in range(height)]


def card_pixel(x, y, width, height):
    """A ramp in either direction, with a corner each in red, green, blue and black."""
    left, right = x < width // 5, x >= width - width // 5
    top, bottom = y < height // 4, y >= height - height // 4
    for holds, colour in ((left and top, (255, 0, 0)), (right and top, (0, 255, 0)),
                          (left and bottom, (0, 0, 255)), (right and bottom, BLACK)):
        if holds:
            return colour
    across, down = x * 255 // (width - 1), y * 255 // (height - 1)
    return across, down, (510 - across - down) // 2


def card(width=WIDTH, height=HEIGHT):
    return table(width, height, lambda x, y: card_pixel(x, y, width, height))


def mono(width=WIDTH, height=HEIGHT):
    return table(width, height,
                 lambda x, y: BLACK if (x * x // 9 + 3 * y) // 5 % 2 else WHITE)


# A kind has a short form for rows of nothing but white.
WHITE_LINES = [row if y % 7 != 5 else [WHITE] * WIDTH for y, row in enumerate(mono())]

GREYS = table(WIDTH, HEIGHT, lambda x, y: x * 4 + y * 2)
GREY = [[(v, v, v) for v in row] for row in GREYS]

# Two bytes a part; the low ones differ from the high ones.
DEEP_GREYS = table(WIDTH, HEIGHT, lambda x, y: x * 1400 + y * 100)
DEEP_GREY = [[(round(v / 257),) * 3 for v in row] for row in DEEP_GREYS]
DEEP_CARDS = [[tuple(min(65535, v * 257 + 60) for v in p) for p in row] for row in card()]

PALETTE4 = [(250, 240, 10), (200, 0, 100), (0, 120, 60), (20, 30, 220)]
PALETTE16 = [(i * 16, 255 - i * 13, i * i) for i in range(16)]
PALETTE256 = [(i, 255 - i, i * 7 % 256) for i in range(256)]
INDEXES4 = table(WIDTH, HEIGHT, lambda x, y: (x // 4 + y // 3) % 4)
INDEXES16 = table(WIDTH, HEIGHT, lambda x, y: (x // 3 + y // 2 * 5) % 16)
INDEXES256 = table(WIDTH, HEIGHT, lambda x, y: (x * 5 + y * 3) % 256)


def coloured(indexes, palette):
    return [[palette[i] for i in row] for row in indexes]


def alpha_of(x, y):
    return 255 if y > 2 * HEIGHT // 3 else x * 255 // (WIDTH - 1)


SEE_THROUGH = [[p + (alpha_of(x, y),) for x, p in enumerate(row)]
               for y, row in enumerate(card())]


def over_white(rows):
    return [[tuple((c * p[3] + 255 * (255 - p[3]) + 127) // 255 for c in p[:3]) for p in row]
            for row in rows]


def holes(rows):
    """Alpha of one bit: there or not."""
    return [[p[:3] + (255 if p[3] >= 128 else 0,) for p in row] for row in rows]


# Five bits a colour part, as numbers 0 to 31.
FIVE_BITS = [[tuple(v >> 3 for v in p) for p in row] for row in card()]
FIVE_BIT_CARD = [[tuple((v * 255 + 15) // 31 for v in p) for p in row] for row in FIVE_BITS]

# Five, six and five bits.
FIVE_SIX = [[(p[0] >> 3, p[1] >> 2, p[2] >> 3) for p in row] for row in card()]
FIVE_SIX_CARD = [[((p[0] * 255 + 15) // 31, (p[1] * 255 + 31) // 63, (p[2] * 255 + 15) // 31)
                  for p in row] for row in FIVE_SIX]
FIVE_BIT_PALETTE = [tuple(v >> 3 for v in p) for p in PALETTE256]
FIVE_BIT_PALETTE_CARD = coloured(INDEXES256, [tuple((v * 255 + 15) // 31 for v in p)
                                              for p in FIVE_BIT_PALETTE])
# Greys with an alpha of their own, and what they are over white.
ALPHA_GREYS = [[(GREYS[y][x], SEE_THROUGH[y][x][3]) for x in range(WIDTH)] for y in range(HEIGHT)]
OVER_WHITE_GREYS = over_white([[(v, v, v, a) for v, a in row] for row in ALPHA_GREYS])

# The number of its last row is a mark of other kinds, read from the small end.
TALL = card(45, 274)

# The page of the paint program that gave the kind its name has this size, always.
MAC_PAGE = mono(576, 720)
PHOTO = card(768, 512)


def inks(rows):
    """Cyan, magenta, yellow, black of each pixel, 255 full ink."""
    def of(pixel):
        light = max(pixel)
        if light == 0:
            return 0, 0, 0, 255
        return tuple(round((light - v) * 255 / light) for v in pixel) + (255 - light,)
    return [[of(p) for p in row] for row in rows]


SOURCES = {
    "card": card(), "mono": mono(), "grey": GREY, "deepgrey": DEEP_GREY,
    "pal4": coloured(INDEXES4, PALETTE4), "pal16": coloured(INDEXES16, PALETTE16),
    "pal256": coloured(INDEXES256, PALETTE256), "alpha": over_white(SEE_THROUGH),
    "holes": over_white(holes(SEE_THROUGH)), "fivebit": FIVE_BIT_CARD, "mac": MAC_PAGE, "whitelines": WHITE_LINES,
    "photo": PHOTO, "evencard": card(48, 32), "tall": TALL, "fivepal": FIVE_BIT_PALETTE_CARD,
    "opaquegreys": OVER_WHITE_GREYS, "fivesix": FIVE_SIX_CARD,
}


# ---- Simple files that the writers of other programs take.

def ppm(rows):
    return (b"P6\n%d %d\n255\n" % (len(rows[0]), len(rows)) +
            bytes(v for row in rows for p in row for v in p))


def deep_ppm(rows):
    return (b"P6\n%d %d\n65535\n" % (len(rows[0]), len(rows)) +
            b"".join(v.to_bytes(2, "big") for row in rows for p in row for v in p))


def pgm(rows):
    return b"P5\n%d %d\n255\n" % (len(rows[0]), len(rows)) + bytes(v for row in rows for v in row)


def deep_pgm(rows):
    return (b"P5\n%d %d\n65535\n" % (len(rows[0]), len(rows)) +
            b"".join(v.to_bytes(2, "big") for row in rows for v in row))


def pbm(rows):
    return (b"P4\n%d %d\n" % (len(rows[0]), len(rows)) +
            b"".join(bits(p == BLACK for p in row) for row in rows))


def pam(rows):
    return (b"P7\nWIDTH %d\nHEIGHT %d\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n" %
            (len(rows[0]), len(rows)) + bytes(v for row in rows for p in row for v in p))


def bits(flags, multiple=1):
    """Packed from the high bit on; rows are a multiple of so many bytes."""
    out, byte, used = bytearray(), 0, 0
    for flag in flags:
        byte, used = byte << 1 | bool(flag), used + 1
        if used == 8:
            out.append(byte)
            byte = used = 0
    if used:
        out.append(byte << (8 - used))
    return bytes(out) + bytes(-len(out) % multiple)


def packed(indexes, depth):
    """Indexes of 1, 2, 4 or 8 bits, the left one in the high bits."""
    return bits(i >> b & 1 for i in indexes for b in range(depth - 1, -1, -1))
