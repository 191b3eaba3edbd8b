"""Writers of kinds and variants that no installed program writes."""
import struct

from sample_sources import bits, packed

be16 = struct.Struct(">H").pack
be32 = struct.Struct(">I").pack
le16 = struct.Struct("<H").pack
le32 = struct.Struct("<I").pack


def pack_bits(row):
    """Runs as 257 - n and the byte, others as n - 1 and the bytes."""
    out, i = bytearray(), 0
    while i < len(row):
        run = 1
        while i + run < len(row) and run < 128 and row[i + run] == row[i]:
            run += 1
        if run > 2:
            out += bytes([257 - run, row[i]])
            i += run
            continue
        start = i
        while (i < len(row) and i - start < 128 and
               not (i + 2 < len(row) and row[i] == row[i + 1] == row[i + 2])):
            i += 1
        out += bytes([i - start - 1]) + row[start:i]
    return bytes(out)


# ---- Layered pictures (big endian, plane by plane).

def psd(planes, mode, depth=8, width=None, palette=b"", pack=False, layers=b"", resources=b""):
    """`planes`: rows of bytes of every plane."""
    height = len(planes[0])
    head = (b"8BPS" + be16(1) + bytes(6) + be16(len(planes)) + be32(height) +
            be32(width or len(planes[0][0]) * 8 // depth) + be16(depth) + be16(mode))
    sections = b"".join(be32(len(part)) + part for part in (palette, resources, layers))
    rows = [row for plane in planes for row in plane]
    if not pack:
        return head + sections + be16(0) + b"".join(rows)
    rows = [pack_bits(row) for row in rows]
    return (head + sections + be16(1) + b"".join(be16(len(row)) for row in rows) + b"".join(rows))


def planes_of(rows, depth=8):
    size = depth // 8
    return [[b"".join(p[i].to_bytes(size, "big") for p in row) for row in rows]
            for i in range(len(rows[0][0]))]


def psd_layers(width, height, with_alpha):
    """One layer of plain green, which the merged picture does not look like."""
    channels = [bytes([0]) * (width * height), bytes([255]) * (width * height),
                bytes([0]) * (width * height)]
    record = struct.pack(">iiii", 0, 0, height, width) + be16(3)
    for number, data in enumerate(channels):
        record += struct.pack(">hI", number, len(data) + 2)
    record += b"8BIMnorm" + bytes([255, 0, 0, 0]) + be32(12) + be32(0) + be32(0) + b"\3one"
    info = struct.pack(">h", -1 if with_alpha else 1) + record
    info += b"".join(be16(0) + data for data in channels)
    info += bytes(len(info) % 2)
    return be32(len(info)) + info + be32(0)


def psd_alpha_name(name):
    """The names of the channels beside the colours."""
    data = bytes([len(name)]) + name
    return b"8BIM" + be16(1006) + be16(0) + be32(len(data)) + data + bytes(len(data) % 2)


# ---- Targa (little endian).

def tga_runs(pixels):
    """Packets of up to 128 equal or different pixels; they may go over the ends of rows."""
    out, i = bytearray(), 0
    while i < len(pixels):
        run = 1
        while i + run < len(pixels) and run < 128 and pixels[i + run] == pixels[i]:
            run += 1
        if run > 1:
            out += bytes([127 + run]) + pixels[i]
            i += run
            continue
        start = i
        while (i < len(pixels) and i - start < 128 and
               not (i + 1 < len(pixels) and pixels[i] == pixels[i + 1])):
            i += 1
        out += bytes([i - start - 1]) + b"".join(pixels[start:i])
    return bytes(out)


def tga(rows, kind, bpp, palette=(), entry_bits=24, first=0, top_down=False, right_left=False,
        alpha_bits=0, footer=False, note=b"", origin=0):
    """`rows` hold the bytes of every pixel, the palette those of every colour."""
    ordered = rows if top_down else rows[::-1]
    ordered = [row[::-1] for row in ordered] if right_left else ordered
    pixels = [p for row in ordered for p in row]
    head = bytes([len(note), 1 if palette else 0, kind]) + le16(first) + le16(len(palette))
    head += bytes([entry_bits if palette else 0]) + le16(0) + le16(origin)
    head += le16(len(rows[0])) + le16(len(rows))
    head += bytes([bpp, alpha_bits | right_left << 4 | top_down << 5])
    data = tga_runs(pixels) if kind >= 8 else b"".join(pixels)
    end = bytes(8) + b"TRUEVISION-XFILE.\0" if footer else b""
    return head + note + b"".join(palette) + data + end


def bgr(pixel):
    return bytes([pixel[2], pixel[1], pixel[0], *pixel[3:]])


def fifteen_bits(pixel):
    return le16(pixel[0] << 10 | pixel[1] << 5 | pixel[2])


def sixteen_bits(pixel):
    """Six bits of green."""
    return le16(pixel[0] << 11 | pixel[1] << 5 | pixel[2])


# ---- Paintbrush (little endian).

def pcx(rows, depth, width, palette=b"", long_palette=b"", version=5):
    """`rows`: for every row its planes' bytes, each of even length."""
    planes, line = len(rows[0]), len(rows[0][0])
    head = bytes([10, version, 1, depth]) + le16(0) + le16(0) + le16(width - 1)
    head += le16(len(rows) - 1) + le16(72) + le16(72) + palette.ljust(48, b"\0")
    head += bytes([0, planes]) + le16(line) + le16(1) + bytes(58)
    out = bytearray(head)
    for row in rows:
        data, i = b"".join(row), 0
        while i < len(data):
            run = 1
            while i + run < len(data) and run < 63 and data[i + run] == data[i]:
                run += 1
            if run > 1 or data[i] >= 0xC0:
                out.append(0xC0 | run)
            out.append(data[i])
            i += run
    return bytes(out) + (b"\x0C" + long_palette if long_palette else b"")


def even(data):
    return data + bytes(len(data) % 2)


def bit_planes(indexes, count):
    return [even(bits(i >> plane & 1 for i in indexes)) for plane in range(count)]


# ---- Rasters of the workstation (big endian).

def ras(rows, width, depth, kind=1, palette=()):
    """`rows`: bytes of a row, filled up to an even length here. Kind 2: runs."""
    data = b"".join(even(row) for row in rows)
    if kind == 2:
        out, i = bytearray(), 0
        while i < len(data):
            run = 1
            while i + run < len(data) and run < 256 and data[i + run] == data[i]:
                run += 1
            if run > 2:
                out += bytes([0x80, run - 1, data[i]])
            elif data[i] == 0x80:
                run = 1
                out += b"\x80\0"
            else:
                run = 1
                out.append(data[i])
            i += run
        data = bytes(out)
    colours = b"".join(bytes(p[i] for p in palette) for i in range(3)) if palette else b""
    head = [0x59A66A95, width, len(rows), depth, len(data), kind, 1 if palette else 0, len(colours)]
    return b"".join(be32(v) for v in head) + colours + data


# ---- Bit images of the desktop (big endian).

def img(indexes, planes, palette=()):
    """Rows as runs, literals and patterns; equal rows follow as one that repeats."""
    width, height = len(indexes[0]), len(indexes)
    extra = b"".join(be16(v * 1000 // 255) for p in palette for v in p)
    extra = b"XIMG" + be16(0) + extra if palette else b""
    out = bytearray(be16(1) + be16(8 + len(extra) // 2) + be16(planes) + be16(2) + be16(85) +
                    be16(85) + be16(width) + be16(height) + extra)
    y = 0
    while y < height:
        again = 1
        while y + again < height and again < 255 and indexes[y + again] == indexes[y]:
            again += 1
        if again > 1:
            out += bytes([0, 0, 255, again])
        for plane in range(planes):
            out += img_line(bits(i >> plane & 1 for i in indexes[y]))
        y += again
    return bytes(out)


def img_line(data):
    out, i = bytearray(), 0
    while i < len(data):
        if data[i] in (0, 255):
            run = 1
            while i + run < len(data) and run < 127 and data[i + run] == data[i]:
                run += 1
            out.append((0x80 if data[i] else 0) | run)
            i += run
        elif data[i:i + 2] == data[i + 2:i + 4] and i + 4 <= len(data):
            out += bytes([0, 2]) + data[i:i + 2]
            i += 4
        else:
            start = i
            while i < len(data) and data[i] not in (0, 255):
                i += 1
            out += bytes([0x80, i - start]) + data[start:i]
    return bytes(out)


# ---- Paint program of the early windows (little endian), 1 is white.

def msp(flags, version):
    width, height = len(flags[0]), len(flags)
    words = [0x6144, 0x4D6E] if version == 1 else [0x694C, 0x536E]
    words += [width, height, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0]
    for word in words[:12]:
        words[12] ^= word
    rows = [bits(row) for row in flags]
    head = b"".join(le16(w) for w in words)
    if version == 1:
        return head + b"".join(rows)
    # A row of nothing but white is left out.
    rows = [b"" if all(row) else msp_row(data) for row, data in zip(flags, rows)]
    return head + b"".join(le16(len(row)) for row in rows) + b"".join(rows)


def msp_row(data):
    out, i = bytearray(), 0
    while i < len(data):
        run = 1
        while i + run < len(data) and data[i + run] == data[i]:
            run += 1
        if run > 2:
            out += bytes([0, run, data[i]])
            i += run
        else:
            count = min(3, len(data) - i)
            out += bytes([count]) + data[i:i + count]
            i += count
    return bytes(out)


# ---- Pictures of the word processor.

def wpg_runs(rows):
    """Of a row: runs of a byte, runs of FF, literals; a row like the one before by a count."""
    out, before, same = bytearray(), None, 0
    for row in [*rows, None]:
        if row is not None and row == before and same < 127:
            same += 1
            continue
        if same:
            out += bytes([0, same])
            same = 0
        before, i = row, 0
        while row is not None and i < len(row):
            run = 1
            while i + run < len(row) and run < 127 and row[i + run] == row[i]:
                run += 1
            if run > 1 and row[i] == 255:
                out += bytes([0x80, run])
            elif run > 1:
                out += bytes([0x80 | run, row[i]])
            else:
                out += bytes([1, row[i]])
            i += run
    return bytes(out)


def wpg(indexes, depth, palette=()):
    width, height = len(indexes[0]), len(indexes)
    out = b"\xFFWPC" + le32(16) + bytes([1, 0x16, 1, 0]) + bytes(4)
    records = [(0x0F, bytes([1, 0]) + le16(width * 12) + le16(height * 12))]
    if palette:
        records.append((0x0E, le16(0) + le16(len(palette)) + bytes(v for p in palette for v in p)))
    data = wpg_runs([packed(row, depth) for row in indexes])
    records.append((0x0B, le16(width) + le16(height) + le16(depth) + le16(75) + le16(75) + data))
    for kind, content in [*records, (0x10, b"")]:
        length = len(content)
        out += bytes([kind])
        out += bytes([length]) if length < 255 else b"\xFF" + le16(length)
        out += content
    return out


# ---- Pages of the first paint program with a mouse: 576 by 720, 1 is black.

def mac(rows, named):
    page = be32(2) + bytes(508) + b"".join(pack_bits(bits(row)) for row in rows)
    if not named:
        return page
    head = bytearray(128)
    head[1:6] = b"\4page"
    head[65:73] = b"PNTGMPNT"
    head[83:87] = be32(len(page))
    return bytes(head) + page + bytes(-len(page) % 128)


# ---- Pictures of the same house: a bitmap in version 1, with and without the empty head.

def pct(rows, headed):
    width, height, line = len(rows[0]), len(rows), (len(rows[0]) + 15) // 16 * 2
    frame = be16(0) + be16(0) + be16(height) + be16(width)
    data = b""
    for row in rows:
        run = pack_bits(bits(row, 2))
        # Short rows are never packed.
        data += bytes([len(run)]) + run if line >= 8 else bits(row, 2)
    body = b"\x11\x01" + b"\x01" + be16(10) + frame
    body += (b"\x98" if line >= 8 else b"\x90") + be16(line) + frame + frame + frame + be16(0) + data + b"\xFF"
    return (bytes(512) if headed else b"") + be16(len(body) + 2 & 0xFFFF) + frame + body


# ---- Drawings in PostScript: a blue ground, a red half on the left, a green bar at the bottom.

DRAWING = """gsave 0 0 1 setrgbcolor {0} {1} 60 40 rectfill
1 0 0 setrgbcolor {0} {1} 30 40 rectfill
0 1 0 setrgbcolor {0} {1} 60 10 rectfill grestore
showpage
"""


def eps(box, at=(10, 20), newline="\n", head="%!PS-Adobe-3.0 EPSF-3.0", trailer=""):
    lines = f"{head}\n{box}%%EndComments\n{DRAWING.format(*at)}%%Trailer\n{trailer}%%EOF\n"
    return lines.replace("\n", newline).encode("ascii")


def dos_eps(postscript, preview):
    start = 32
    head = b"\xC5\xD0\xD3\xC6" + le32(start) + le32(len(postscript)) + le32(0) + le32(0)
    head += le32(start + len(postscript)) + le32(len(preview)) + le16(0xFFFF)
    return head.ljust(start, b"\0") + postscript + preview


# ---- Bitmaps of the windows (little endian), rows a multiple of four bytes.

def bmp_file(width, height, bpp, data, palette=(), packing=0, masks=()):
    colours = b"".join(bgr(p) + b"\0" for p in palette) + b"".join(le32(m) for m in masks)
    start = 54 + len(colours)
    info = (le32(40) + le32(width) + le32(height & 0xFFFFFFFF) + le16(1) + le16(bpp) +
            le32(packing) + le32(len(data)) + le32(2835) + le32(2835) + le32(len(palette)) + le32(0))
    return b"BM" + le32(start + len(data)) + le32(0) + le32(start) + info + colours + data


def bmp(rows, bpp, top_down=False, masks=()):
    """`masks`: the bits of red, green and blue in a pixel, where they are stated."""
    lines = [b"".join(row) for row in (rows if top_down else rows[::-1])]
    data = b"".join(line + bytes(-len(line) % 4) for line in lines)
    return bmp_file(len(rows[0]), -len(rows) if top_down else len(rows), bpp, data,
                    packing=3 if masks else 0, masks=masks)


def bmp_runs4(indexes, palette):
    """Rows of runs of two colours in turn, with ends of rows and of the picture."""
    data = bytearray()
    for row in indexes[::-1]:
        for x in range(0, len(row), 2):
            pair = row[x:x + 2]
            data += bytes([len(pair), pair[0] << 4 | pair[-1]])
        data += b"\0\0"
    return bmp_file(len(indexes[0]), len(indexes), 4, bytes(data) + b"\0\1", palette, packing=2)


def bmp_runs(indexes, palette):
    """Runs, literals of even length, ends of rows, end of the picture."""
    data = bytearray()
    for row in indexes[::-1]:
        data += bytes([3, row[0]]) if row[0] == row[1] == row[2] else bytes(
            v for i in row[:3] for v in (1, i))
        rest = bytes(row[3:])
        data += bytes([0, len(rest)]) + even(rest) + b"\0\0"
    return bmp_file(len(indexes[0]), len(indexes), 8, bytes(data) + b"\0\1", palette, packing=1)


# ---- Boxes of the new kinds: a note that the picture is to be shown turned.

def boxes(data):
    at = 0
    while at + 8 <= len(data):
        length = int.from_bytes(data[at:at + 4], "big") or len(data) - at
        yield data[at + 4:at + 8], data[at + 8:at + length]
        at += length


def box(name, content):
    return be32(len(content) + 8) + name + content


def turned(data, quarters):
    """The main item gets a property: to be turned so many quarters to the left."""
    old = next(inner for name, inner in boxes(data) if name == b"meta")
    main = next(inner for name, inner in boxes(old[4:]) if name == b"pitm")[4:6]

    def properties(content):
        out = b""
        count = 0
        for name, inner in boxes(content):
            if name == b"ipco":
                count = sum(1 for _ in boxes(inner)) + 1
                inner += box(b"irot", bytes([quarters]))
            elif name == b"ipma":
                items = int.from_bytes(inner[4:8], "big")
                grown, at = inner[:8], 8
                for _ in range(items):
                    end = at + 3 + inner[at + 2]
                    more = bytes([0x80 | count]) if inner[at:at + 2] == main else b""
                    grown += inner[at:at + 2] + bytes([inner[at + 2] + len(more)])
                    grown += inner[at + 3:end] + more
                    at = end
                inner = grown
            out += box(name, inner)
        return out

    def meta(content, moved):
        out = content[:4]
        for name, inner in boxes(content[4:]):
            if name == b"iprp":
                inner = properties(inner)
            elif name == b"iloc":
                inner = places(inner, moved)
            out += box(name, inner)
        return out

    def places(inner, moved):
        """The pieces of items that lie after this box have moved on."""
        version, sizes = inner[0], inner[4]
        at = 8
        out = bytearray(inner)
        assert sizes == 0x44 and inner[5] >> 4 in (0, 4)
        for _ in range(int.from_bytes(inner[6:8], "big")):
            within = version > 0 and inner[at + 3] == 1
            at += 2 + (2 if version > 0 else 0) + 2 + (inner[5] >> 4)
            pieces = int.from_bytes(inner[at:at + 2], "big")
            at += 2
            for _ in range(pieces):
                place = int.from_bytes(inner[at:at + 4], "big") + (0 if within else moved)
                out[at:at + 4] = be32(place)
                at += 8
        return bytes(out)

    moved = len(meta(old, 0)) - len(old)
    return b"".join(box(name, meta(inner, moved) if name == b"meta" else inner)
                    for name, inner in boxes(data))


def grid(files, columns, tile, whole):
    """One picture of several, which stand in rows; all are coded alike. Sizes are (width, height)."""
    def full(name, content, version=0, flags=0):
        return box(name, bytes([version]) + flags.to_bytes(3, "big") + content)

    def inside(data, *names):
        for name in names:
            data = next(inner for found, inner in boxes(data) if found == name)
            data = data[4:] if name == b"meta" else data
        return data

    def size(pair):
        return full(b"ispe", be32(pair[0]) + be32(pair[1]))

    coded = [inside(data, b"mdat") for data in files]
    numbers = range(1, len(files) + 1)
    main = len(files) + 1
    layout = bytes([0, 0, len(files) // columns - 1, columns - 1]) + be16(whole[0]) + be16(whole[1])
    start = box(b"ftyp", b"heic" + be32(0) + b"mif1heic")

    def meta(place):
        items = b"".join(full(b"infe", be16(i) + be16(0) + b"hvc1\0", 2, 1) for i in numbers)
        items += full(b"infe", be16(main) + be16(0) + b"grid\0", 2)
        places = b""
        for number, data in zip(numbers, coded):
            places += be16(number) + be16(0) + be16(0) + be16(1) + be32(place) + be32(len(data))
            place += len(data)
        # Not in the file's data but in this box.
        places += be16(main) + be16(1) + be16(0) + be16(1) + be32(0) + be32(len(layout))
        common = box(b"hvcC", inside(files[0], b"meta", b"iprp", b"ipco", b"hvcC"))
        uses = b"".join(be16(i) + b"\x02\x81\x02" for i in numbers) + be16(main) + b"\x01\x03"
        return full(b"meta", full(b"hdlr", be32(0) + b"pict" + bytes(13)) +
                    full(b"pitm", be16(main)) +
                    full(b"iloc", b"\x44\0" + be16(main) + places, 1) +
                    full(b"iinf", be16(main) + items) +
                    full(b"iref", box(b"dimg", be16(main) + be16(len(files)) +
                                      b"".join(be16(i) for i in numbers))) +
                    box(b"iprp", box(b"ipco", common + size(tile) + size(whole)) +
                        full(b"ipma", be32(main) + uses)) +
                    box(b"idat", layout))

    return (start + meta(len(start) + len(meta(0)) + 8) + box(b"mdat", b"".join(coded)))
