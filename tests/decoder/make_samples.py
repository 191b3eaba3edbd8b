#!/usr/bin/env python3
"""make_samples.py FOLDER: small pictures of every kind and variant, as other programs write them or,
where none does, made by hand. FOLDER/<kind>_<variant>.<ext> are for the decoder, FOLDER/toolkit/
for the toolkit, FOLDER/sources/*.ppm is what they show. A writer that is missing fails the run."""
import pathlib
import shutil
import subprocess
import sys

import sample_sources as src
import sample_writers as by_hand
from sample_sources import BLACK, WIDTH, bits, packed, ppm

out = pathlib.Path(sys.argv[1]).resolve()
sources = out / "sources"


def put(name, data):
    (out / name).write_bytes(data)


def source(name):
    return str(sources / name)


def run(*words, to=None):
    """Runs a writer; with `to`, its standard output is the sample."""
    result = subprocess.run([str(word) for word in words], capture_output=True, cwd=out,
                            stdin=subprocess.DEVNULL, timeout=60)
    if result.returncode != 0 or (to is not None and not result.stdout):
        sys.exit(f"{' '.join(map(str, words))}: {result.stderr.decode(errors='replace')}")
    if to is not None:
        put(to, result.stdout)


def turned_jpeg():
    """A JPEG that says of itself to be shown turned by a quarter to the right."""
    plain = sources / "upright.jpg"
    run("gm", "convert", source("card.ppm"), "-quality", "98", "-sampling-factor", "1x1", plain)
    data = plain.read_bytes()
    exif = (b"Exif\0\0MM\0*\0\0\0\x08\0\1" + b"\x01\x12\0\3\0\0\0\1\0\6\0\0" + bytes(4))
    (sources / "turned.jpg").write_bytes(
        data[:2] + b"\xFF\xE1" + (len(exif) + 2).to_bytes(2, "big") + exif + data[2:])
    rows = src.card()
    turned = [[rows[src.HEIGHT - 1 - x][y] for x in range(src.HEIGHT)] for y in range(src.WIDTH)]
    (sources / "turnedcard.ppm").write_bytes(ppm(turned))


def make_sources():
    sources.mkdir(parents=True, exist_ok=True)
    for name, rows in src.SOURCES.items():
        (sources / f"{name}.ppm").write_bytes(ppm(rows))
    (sources / "grey.pgm").write_bytes(src.pgm(src.GREYS))
    (sources / "deep.pgm").write_bytes(src.deep_pgm(src.DEEP_GREYS))
    (sources / "deep.ppm").write_bytes(src.deep_ppm(src.DEEP_CARDS))
    (sources / "mono.pbm").write_bytes(src.pbm(src.mono()))
    (sources / "mac.pbm").write_bytes(src.pbm(src.MAC_PAGE))
    (sources / "alpha.pam").write_bytes(src.pam(src.SEE_THROUGH))
    # The writers of these want a PNG.
    for name in ("card.ppm", "evencard.ppm", "grey.pgm", "deep.pgm", "deep.ppm"):
        run("gm", "convert", source(name), source(name.replace(".", "_") + ".png"))
    run("ffmpeg", "-v", "error", "-y", "-i", source("alpha.pam"), source("alpha.png"))


def make_psd():
    card, width, height = src.card(), src.WIDTH, src.HEIGHT
    planes = by_hand.planes_of(card)
    greys = [[bytes(row) for row in src.GREYS]]
    for pack in (False, True):
        form = "packed" if pack else "raw"
        put(f"psd_rgb_{form}.psd", by_hand.psd(planes, 3, pack=pack))
        put(f"psd_grey_{form}.psd", by_hand.psd(greys, 1, pack=pack))
        put(f"psd_duotone_{form}.psd", by_hand.psd(greys, 8, palette=bytes(532), pack=pack))
        put(f"psd_rgb16_{form}.psd",
            by_hand.psd(by_hand.planes_of(src.DEEP_CARDS, 16), 3, 16, pack=pack))
        put(f"psd_grey16_{form}.psd",
            by_hand.psd([[b"".join(by_hand.be16(v) for v in row) for row in src.DEEP_GREYS]], 1,
                        16, pack=pack))
        colours = bytes(p[i] for i in range(3) for p in src.PALETTE256)
        put(f"psd_indexed_{form}.psd",
            by_hand.psd([[bytes(row) for row in src.INDEXES256]], 2, palette=colours, pack=pack))
        put(f"psd_bitmap_{form}.psd",
            by_hand.psd([[bits(p == BLACK for p in row) for row in src.mono()]], 0, 1,
                        width=width, pack=pack))
        inverted = [[tuple(255 - v for v in p) for p in row] for row in src.inks(card)]
        put(f"psd_cmyk_{form}.psd", by_hand.psd(by_hand.planes_of(inverted), 4, pack=pack))
        alpha = by_hand.planes_of(src.SEE_THROUGH)
        put(f"psd_alpha_{form}.psd", by_hand.psd(alpha, 3, pack=pack))
    put("psd_layers.psd",
        by_hand.psd(planes, 3, layers=by_hand.psd_layers(width, height, False), pack=True))
    put("psd_layers_alpha.psd",
        by_hand.psd(alpha, 3, layers=by_hand.psd_layers(width, height, True), pack=True))
    put("psd_selection.psd", by_hand.psd(alpha, 3, resources=by_hand.psd_alpha_name(b"Alpha 1")))
    put("psd_transparency.psd",
        by_hand.psd(alpha, 3, resources=by_hand.psd_alpha_name(b"Transparency")))
    run("convert-im6", source("card.ppm"), "psd_im_rgb.psd")
    run("convert-im6", source("grey.pgm"), "psd_im_grey.psd")
    run("convert-im6", source("card.ppm"), "-compress", "none", "psd_im_raw.psd")
    run("convert-im6", source("deep.ppm"), "psd_im_rgb16.psd")
    run("convert-im6", source("card.ppm"), "(", source("card.ppm"), "-negate", ")",
        "psd_im_layers.psd")


def make_tga():
    card = [[by_hand.bgr(p) for p in row] for row in src.card()]
    alpha = [[by_hand.bgr(p) for p in row] for row in src.SEE_THROUGH]
    grey = [[bytes([v]) for v in row] for row in src.GREYS]
    indexes = [[bytes([v]) for v in row] for row in src.INDEXES256]
    colours = [by_hand.bgr(p) for p in src.PALETTE256]
    five = [[by_hand.fifteen_bits(p) for p in row] for row in src.FIVE_BITS]
    for name, runs in (("raw", 0), ("runs", 8)):
        put(f"tga_rgb_{name}.tga", by_hand.tga(card, 2 + runs, 24))
        put(f"tga_grey_{name}.tga", by_hand.tga(grey, 3 + runs, 8))
        put(f"tga_palette_{name}.tga", by_hand.tga(indexes, 1 + runs, 8, colours))
        put(f"tga_alpha_{name}.tga", by_hand.tga(alpha, 2 + runs, 32, alpha_bits=8))
        put(f"tga_16_{name}.tga", by_hand.tga(five, 2 + runs, 16))
    put("tga_alpha_unused.tga",
        by_hand.tga([[by_hand.bgr(p + (0,)) for p in row] for row in src.card()], 2, 32))
    put("tga_topdown.tga", by_hand.tga(card, 2, 24, top_down=True))
    put("tga_rightleft.tga", by_hand.tga(card, 2, 24, top_down=True, right_left=True))
    put("tga_rightleft_up.tga", by_hand.tga(card, 2, 24, right_left=True))
    put("tga_palette32.tga",
        by_hand.tga(indexes, 1, 8, [c + b"\xFF" for c in colours], entry_bits=32))
    put("tga_palette15.tga",
        by_hand.tga(indexes, 1, 8, [by_hand.fifteen_bits(p) for p in src.FIVE_BIT_PALETTE],
                    entry_bits=15))
    put("tga_grey_alpha.tga",
        by_hand.tga([[bytes(p) for p in row] for row in src.ALPHA_GREYS], 3, 16, alpha_bits=8))
    put("tga_origin273.tga", by_hand.tga(card, 2, 24, origin=273))
    put("tga_note_footer.tga", by_hand.tga(card, 10, 24, footer=True, note=b"a note"))
    put("tga_by_footer.dat", by_hand.tga(card, 10, 24, footer=True))
    run("ppmtotga", "-rgb", source("card.ppm"), to="tga_netpbm_rgb.tga")
    run("ppmtotga", "-cmap", "-norle", source("pal16.ppm"), to="tga_netpbm_cmap.tga")
    run("ppmtotga", "-mono", source("grey.ppm"), to="tga_netpbm_mono.tga")
    run("pamtotga", source("alpha.pam"), to="tga_netpbm_alpha.tga")
    run("ffmpeg", "-v", "error", "-y", "-i", source("card.ppm"), "tga_ffmpeg.tga")
    run("gm", "convert", source("card.ppm"), "tga_gm.tga")
    run("gm", "convert", source("card.ppm"), "-compress", "RLE", "tga_gm_rle.tga")


def make_pcx():
    def colours(palette):
        return bytes(v for p in palette for v in p)
    even, packed_row = by_hand.even, packed
    put("pcx_mono.pcx", by_hand.pcx([[even(bits(p != BLACK for p in row))] for row in src.mono()],
                                    1, WIDTH, bytes(3) + b"\xFF\xFF\xFF"))
    put("pcx_planes16.pcx", by_hand.pcx([by_hand.bit_planes(row, 4) for row in src.INDEXES16],
                                        1, WIDTH, colours(src.PALETTE16)))
    put("pcx_packed16.pcx", by_hand.pcx([[even(packed_row(row, 4))] for row in src.INDEXES16],
                                        4, WIDTH, colours(src.PALETTE16)))
    put("pcx_palette256.pcx", by_hand.pcx([[even(bytes(row))] for row in src.INDEXES256],
                                          8, WIDTH, long_palette=colours(src.PALETTE256)))
    put("pcx_rgb.pcx", by_hand.pcx([[even(bytes(p[i] for p in row)) for i in range(3)]
                                    for row in src.card()], 8, WIDTH))
    put("pcx_tall.pcx", by_hand.pcx([[even(bytes(p[i] for p in row)) for i in range(3)]
                                     for row in src.TALL], 8, WIDTH))
    run("ppmtopcx", "-24bit", source("card.ppm"), to="pcx_netpbm_24.pcx")
    run("ppmtopcx", source("pal256.ppm"), to="pcx_netpbm_256.pcx")
    run("ppmtopcx", source("pal16.ppm"), to="pcx_netpbm_16.pcx")
    run("ppmtopcx", "-packed", source("pal16.ppm"), to="pcx_netpbm_packed.pcx")
    run("ppmtopcx", source("pal4.ppm"), to="pcx_netpbm_4.pcx")
    run("ppmtopcx", source("mono.ppm"), to="pcx_netpbm_2.pcx")
    run("gm", "convert", source("card.ppm"), "pcx_gm.pcx")
    run("gm", "convert", source("mono.ppm"), "-monochrome", "pcx_gm_mono.pcx")
    run("ffmpeg", "-v", "error", "-y", "-i", source("card.ppm"), "pcx_ffmpeg.pcx")


def make_ras():
    card, mono = src.card(), src.mono()
    grey = [bytes(row) for row in src.GREYS]
    bgr = [b"".join(by_hand.bgr(p) for p in row) for row in card]
    for kind, name in ((0, "old"), (1, "standard"), (2, "runs")):
        put(f"ras_rgb_{name}.ras", by_hand.ras(bgr, WIDTH, 24, kind))
        put(f"ras_mono_{name}.ras",
            by_hand.ras([bits(p == BLACK for p in row) for row in mono], WIDTH, 1, kind))
        put(f"ras_palette_{name}.ras",
            by_hand.ras([bytes(row) for row in src.INDEXES256], WIDTH, 8, kind, src.PALETTE256))
    put("ras_grey.ras", by_hand.ras(grey, WIDTH, 8))
    put("ras_rgb_format.ras", by_hand.ras([bytes(v for p in row for v in p) for row in card],
                                          WIDTH, 24, 3))
    run("pnmtorast", "-standard", source("card.ppm"), to="ras_netpbm.ras")
    run("pnmtorast", "-rle", source("card.ppm"), to="ras_netpbm_rle.ras")
    run("pnmtorast", "-rle", source("grey.pgm"), to="ras_netpbm_grey.ras")
    run("gm", "convert", source("card.ppm"), "ras_gm.ras")
    run("ffmpeg", "-v", "error", "-y", "-i", source("card.ppm"), "-c:v", "sunrast", "-f",
        "image2", "ras_ffmpeg.ras")


def make_two_level_kinds():
    mono, page = src.mono(), src.MAC_PAGE
    ink = [[int(p == BLACK) for p in row] for row in mono]
    put("img_mono.img", by_hand.img(ink, 1))
    # The desktop's own numbers: white and black are the first and last, others lie between.
    put("img_palette16.img", by_hand.img(src.INDEXES16, 4, src.PALETTE16))
    put("img_palette4.img", by_hand.img(src.INDEXES4, 2, src.PALETTE4))
    put("img_palette256.img", by_hand.img(src.INDEXES256, 8, src.PALETTE256))
    paper = [[int(p != BLACK) for p in row] for row in src.WHITE_LINES]
    put("msp_version1.msp", by_hand.msp(paper, 1))
    put("msp_version2.msp", by_hand.msp(paper, 2))
    put("mac_bare.mac", by_hand.mac([[p == BLACK for p in row] for row in page], False))
    put("mac_binary.mac", by_hand.mac([[p == BLACK for p in row] for row in page], True))
    run("pbmtomacp", source("mac.pbm"), to="mac_netpbm.mac")
    run("gm", "convert", source("mono.pbm"), "cals:cal_gm.cal")
    run("convert-im6", source("mono.pbm"), "cals:cal_im.cal")


def make_wpg_and_pct():
    ink = [[int(p != BLACK) for p in row] for row in src.mono()]
    put("wpg_mono.wpg", by_hand.wpg(ink, 1))
    put("wpg_palette4.wpg", by_hand.wpg(src.INDEXES4, 2, src.PALETTE4))
    put("wpg_palette16.wpg", by_hand.wpg(src.INDEXES16, 4, src.PALETTE16))
    put("wpg_palette256.wpg", by_hand.wpg(src.INDEXES256, 8, src.PALETTE256))
    flags = [[p == BLACK for p in row] for row in src.mono()]
    put("pct_version1.pct", by_hand.pct(flags, True))
    put("pct_version1_bare.pct", by_hand.pct(flags, False))
    put("pct_version1_packed.pct", by_hand.pct([[p == BLACK for p in row] for row in src.MAC_PAGE],
                                               True))
    run("ppmtopict", source("pal256.ppm"), to="pct_netpbm.pct")
    run("gm", "convert", source("card.ppm"), "pct_gm.pct")
    run("gm", "convert", source("pal256.ppm"), "-type", "Palette", "pct_gm_palette.pct")
    run("convert-im6", source("card.ppm"), "pct_im.pct")


def make_eps():
    box, fine = "%%BoundingBox: 10 20 70 60\n", "%%HiResBoundingBox: 10 20 70 60\n"
    put("eps_plain.eps", by_hand.eps(box))
    put("eps_hires.eps", by_hand.eps("%%BoundingBox: 9 19 71 61\n" + fine))
    put("eps_atend.eps", by_hand.eps("%%BoundingBox: (atend)\n", trailer=box))
    put("eps_cr.eps", by_hand.eps(box, newline="\r"))
    put("eps_crlf.eps", by_hand.eps(box, newline="\r\n"))
    put("eps_negative.eps", by_hand.eps("%%BoundingBox: -30 -20 30 20\n", at=(-30, -20)))
    put("eps_not_declared.eps", by_hand.eps(box, head="%!PS-Adobe-3.0"))
    put("eps_dos.eps", by_hand.dos_eps(by_hand.eps(box), b"II*\0" + bytes(60)))
    put("eps_no_box.eps", by_hand.eps(""))
    run("gm", "convert", source("card.ppm"), "eps_gm.eps")
    run("gm", "convert", source("card.ppm"), "ept:eps_gm_preview.eps")
    run("pnmtops", "-dpi=72", "-nocenter", "-noturn", "-scale=1", "-equalpixels",
        source("card.ppm"), to="eps_netpbm.eps")


def make_new_kinds():
    card, even = source("card_ppm.png"), source("evencard_ppm.png")
    for kind, extra in (("heic", []), ("avif", ["-A"])):
        run("heif-enc", *extra, "-q", "95", even, "-o", f"{kind}_card.{kind}")
        run("heif-enc", *extra, "-q", "95", card, "-o", f"{kind}_odd.{kind}")
        run("heif-enc", *extra, "-q", "95", "-p", "chroma=444", card, "-o", f"{kind}_444.{kind}")
        run("heif-enc", *extra, "-q", "95", source("grey_pgm.png"), "-o", f"{kind}_grey.{kind}")
        run("heif-enc", *extra, "-q", "95", source("alpha.png"), "-o", f"{kind}_alpha.{kind}")
    run("heif-enc", "-q", "95", "-b", "10", source("deep_ppm.png"), "-o", "heic_10bit.heic")
    for name, form in (("ffmpeg", "yuv444p"), ("10bit", "yuv420p10le")):
        run("ffmpeg", "-v", "error", "-y", "-i", even, "-c:v", "libaom-av1", "-still-picture", "1",
            "-crf", "8", "-pix_fmt", form, f"avif_{name}.avif")
    run("cjxl", card, "jxl_lossless.jxl", "-d", "0")
    run("cjxl", card, "jxl_lossy.jxl", "-d", "1")
    run("cjxl", card, "jxl_container.jxl", "-d", "0", "--container=1")
    run("cjxl", source("alpha.png"), "jxl_alpha.jxl", "-d", "0")
    run("cjxl", source("grey_pgm.png"), "jxl_grey.jxl", "-d", "0")
    run("cjxl", source("deep_ppm.png"), "jxl_16bit.jxl", "-d", "0")
    run("cjxl", source("deep_pgm.png"), "jxl_grey16.jxl", "-d", "0")
    turned_jpeg()
    run("cjxl", source("turned.jpg"), "jxl_turned.jxl")
    run("cjxl", source("turned.jpg"), "jxl_turned_pixels.jxl", "-j", "0", "-d", "0.1")
    run("heif-enc", "-q", "95", "-p", "chroma=444", source("turned.jpg"), "-o", "heic_camera_note.heic")
    run("heif-enc", "-A", "-q", "95", "-p", "chroma=444", source("turned.jpg"), "-o",
        "avif_camera_note.avif")
    # Three quarters to the left are one to the right.
    for kind in ("heic", "avif"):
        put(f"{kind}_turned.{kind}", by_hand.turned((out / f"{kind}_444.{kind}").read_bytes(), 3))
    make_grid()
    run("gm", "convert", source("photo.ppm"), "pcd_gm.pcd")


def make_grid():
    """As cameras store large pictures; the last tiles stand over the edges."""
    tile, tiles = (256, 256), []
    for y in (0, 256):
        for x in (0, 256, 512):
            rows = [[src.PHOTO[j][i] for i in range(x, x + 256)] for j in range(y, y + 256)]
            (sources / "tile.ppm").write_bytes(ppm(rows))
            run("gm", "convert", source("tile.ppm"), source("tile.png"))
            run("heif-enc", "-q", "95", "-p", "chroma=444", source("tile.png"), "-o",
                source("tile.heic"))
            tiles.append((sources / "tile.heic").read_bytes())
    whole = (750, 500)
    put("heic_grid.heic", by_hand.grid(tiles, 3, tile, whole))
    (sources / "tiles.ppm").write_bytes(ppm([row[:750] for row in src.PHOTO[:500]]))


def make_toolkit_kinds():
    (out / "toolkit").mkdir(exist_ok=True)
    card, grey, mono = source("card.ppm"), source("grey.pgm"), source("mono.pbm")
    plain = "toolkit/tif_plain.tif"
    run("gm", "convert", card, "-compress", "none", plain)
    for name, *options in (("lzw", "-c", "lzw"), ("lzw_predictor", "-c", "lzw:2"),
                           ("deflate", "-c", "zip"), ("packbits", "-c", "packbits"),
                           ("jpeg", "-c", "jpeg:r:95"), ("big_endian", "-B"),
                           ("planes", "-p", "separate"), ("strips", "-r", "5")):
        run("tiffcp", *options, plain, f"toolkit/tif_{name}.tif")
    run("gm", "convert", source("deep.ppm"), "-compress", "none", "toolkit/tif_16bit.tif")
    run("gm", "convert", source("deep.pgm"), "-compress", "LZW", "toolkit/tif_grey16.tif")
    run("gm", "convert", grey, "-compress", "LZW", "toolkit/tif_grey.tif")
    run("convert-im6", card, "-colorspace", "CMYK", "-compress", "none", "toolkit/tif_inks.tif")
    run("pamtotiff", "-none", "-indexbits=8", source("pal256.ppm"), to="toolkit/tif_palette.tif")
    run("pamtotiff", "-none", "-indexbits=4", source("pal16.ppm"), to="toolkit/tif_palette4.tif")
    run("pamtotiff", "-none", mono, to="toolkit/tif_mono.tif")
    run("pamtotiff", "-none", "-miniswhite", mono, to="toolkit/tif_mono_white.tif")
    run("pamtotiff", "-g3", mono, to="toolkit/tif_fax3.tif")
    run("pamtotiff", "-g4", mono, to="toolkit/tif_fax4.tif")
    run("ffmpeg", "-v", "error", "-y", "-i", source("alpha.pam"), "toolkit/tif_alpha.tif")
    # The toolkit's reader refuses plain ones of 24 bits, and tiles larger than the picture: these
    # two are read in the sandbox.
    for name, side in (("plain", "16"), ("large", "128")):
        run("tiffcp", "-c", "none", "-t", "-w", side, "-l", side, plain,
            f"toolkit/tif_tiled_{name}.tif")
    for name in ("grey", "palette", "mono", "fax4", "16bit"):
        run("tiffcp", "-c", "lzw", "-t", "-w", "16", "-l", "16", f"toolkit/tif_{name}.tif",
            f"toolkit/tif_tiled_{name}.tif")
    run("ppmtobmp", "-bpp=24", card, to="toolkit/bmp_24.bmp")
    run("ppmtobmp", "-bpp=8", source("pal256.ppm"), to="toolkit/bmp_8.bmp")
    run("ppmtobmp", "-bpp=4", source("pal16.ppm"), to="toolkit/bmp_4.bmp")
    run("ppmtobmp", "-bpp=1", mono, to="toolkit/bmp_1.bmp")
    run("ppmtobmp", "-os2", "-bpp=8", source("pal256.ppm"), to="toolkit/bmp_os2.bmp")
    put("toolkit/bmp_runs8.bmp", by_hand.bmp_runs(src.INDEXES256, src.PALETTE256))
    put("toolkit/bmp_runs4.bmp", by_hand.bmp_runs4(src.INDEXES16, src.PALETTE16))
    put("toolkit/bmp_16.bmp", by_hand.bmp([[by_hand.fifteen_bits(p) for p in row]
                                           for row in src.FIVE_BITS], 16))
    # Words of 16 bits whose masks are stated: read in the sandbox.
    put("bmp_555.bmp", by_hand.bmp([[by_hand.fifteen_bits(p) for p in row]
                                    for row in src.FIVE_BITS], 16,
                                   masks=(0x7C00, 0x3E0, 0x1F)))
    put("bmp_565.bmp", by_hand.bmp([[by_hand.sixteen_bits(p) for p in row]
                                    for row in src.FIVE_SIX], 16,
                                   masks=(0xF800, 0x7E0, 0x1F)))
    put("toolkit/bmp_32.bmp", by_hand.bmp([[by_hand.bgr(p + (0,)) for p in row]
                                           for row in src.card()], 32))
    put("toolkit/bmp_topdown.bmp", by_hand.bmp([[by_hand.bgr(p) for p in row]
                                                for row in src.card()], 24, top_down=True))
    run("gm", "convert", card, "-quality", "98", "toolkit/jpg_plain.jpg")
    run("gm", "convert", card, "-quality", "98", "-interlace", "Line", "toolkit/jpg_progressive.jpg")
    run("gm", "convert", grey, "-quality", "98", "toolkit/jpg_grey.jpg")
    run("convert-im6", card, "-colorspace", "CMYK", "-quality", "98", "toolkit/jpg_inks.jpg")
    for name, picture, *options in (
            ("plain", card), ("interlaced", card, "-interlace"), ("grey", grey), ("mono", mono),
            ("16bit", source("deep.ppm")), ("grey16", source("deep.pgm")),
            ("palette4", source("pal4.ppm")), ("palette16", source("pal16.ppm")),
            ("palette256", source("pal256.ppm"))):
        run("pnmtopng", "-quiet", *options, picture, to=f"toolkit/png_{name}.png")
    run("gm", "convert", source("alpha.png"), "-interlace", "Line", "toolkit/png_alpha.png")


if (out / ".stamp").exists():
    shutil.rmtree(out)
out.mkdir(parents=True, exist_ok=True)
make_sources()
for make in (make_psd, make_tga, make_pcx, make_ras, make_two_level_kinds, make_wpg_and_pct,
             make_eps, make_new_kinds, make_toolkit_kinds):
    make()
(out / ".stamp").touch()
