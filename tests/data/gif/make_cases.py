#!/usr/bin/env python3
"""Writes the small GIFs of the GIF tests and, block by block, the files the
animation writer and the transparency are expected to give for them. Run it
from this folder; the files are committed, so the tests need no Python."""
import os
import struct

def le16(v):
    return struct.pack('<H', v)

def lzw(pixels, min_code=2):
    # A valid stream that never grows the code size: a clear code before
    # every second pixel keeps the table at one entry.
    clear, end = 1 << min_code, (1 << min_code) + 1
    size = min_code + 1
    codes = []
    for i, p in enumerate(pixels):
        if i % 2 == 0:
            codes.append(clear)
        codes.append(p)
    codes.append(end)
    bits, nbits, out = 0, 0, bytearray()
    for c in codes:
        bits |= c << nbits
        nbits += size
        while nbits >= 8:
            out.append(bits & 0xFF)
            bits >>= 8
            nbits -= 8
    if nbits:
        out.append(bits & 0xFF)
    data = bytearray([min_code])
    for i in range(0, len(out), 255):
        chunk = out[i:i + 255]
        data += bytes([len(chunk)]) + chunk
    return bytes(data + b'\x00')

def table(colours):
    return b''.join(bytes(c) for c in colours)

def screen(w, h, flags, colours=None, bg=0, aspect=0):
    return le16(w) + le16(h) + bytes([flags, bg, aspect]) + (table(colours) if colours else b'')

def gce(flags, delay, index):
    return b'\x21\xF9\x04' + bytes([flags]) + le16(delay) + bytes([index, 0])

def image(w, h, flags=0, colours=None, left=0, top=0, pixels=None):
    pix = pixels if pixels is not None else [(x + y) % 4 for y in range(h) for x in range(w)]
    return (b'\x2C' + le16(left) + le16(top) + le16(w) + le16(h) + bytes([flags])
            + (table(colours) if colours else b'') + lzw(pix))

def comment(text):
    return b'\x21\xFE' + bytes([len(text)]) + text + b'\x00'

NETSCAPE = b'\x21\xFF\x0BNETSCAPE2.0\x03\x01\x05\x00\x00'
WARM = [(255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 255)]
COOL = [(0, 0, 0), (64, 64, 64), (128, 128, 128), (0x41, 0x61, 0x7A)]
LOCAL = [(10, 20, 30), (40, 50, 60), (70, 80, 90), (100, 110, 120)]

# Frames: a GIF89a with its own graphic control; a GIF87a with none; one
# with a local table only; one with a loop block, a comment, interlace and a
# sorted global table; one that ends in a comment after its image.
A_IMG = image(4, 4)
B_IMG = image(6, 3)
C_IMG = image(3, 5, flags=0x81, colours=LOCAL)
D_IMG = image(4, 4, flags=0x40)
E_IMG = image(5, 2)
frames = {
    'a.gif': b'GIF89a' + screen(4, 4, 0x81, WARM) + gce(0x05, 50, 2) + A_IMG + b'\x3B',
    'b.gif': b'GIF87a' + screen(6, 3, 0x81, COOL) + B_IMG + b'\x3B',
    'c.gif': b'GIF89a' + screen(3, 5, 0x00) + C_IMG + b'\x3B',
    'd.gif': b'GIF89a' + screen(4, 4, 0x89, COOL) + NETSCAPE + comment(b'hello') + gce(0x00, 7, 0) + D_IMG + b'\x3B',
    'e.gif': b'GIF89a' + screen(5, 2, 0x81, WARM) + gce(0x08, 3, 0) + E_IMG + comment(b'end') + b'\x3B',
}

COMMENT = (b'This animated Gif file was created using Quillery 4.01\r\n'
           b'Quillery, the desktop editor for people who write HTML by hand.\r\n'
           b'Its frames were joined block by block: no pixels were decoded.')
assert len(COMMENT) == 183

def animation(w, h, first_screen_flags, first_table, repeat, frame_blocks, trailer=b'59'):
    return (b'GIF89a' + le16(w) + le16(h) + bytes([first_screen_flags, 0, 0]) + table(first_table)
            + b'\x21\xFF\x0BNETSCAPE2.0\x03\x01' + le16(repeat) + b'\x00'
            + b''.join(frame_blocks) + b'\x21\xFE' + bytes([183]) + COMMENT + b'\x00' + trailer)

def rebuilt(img, flags, colours):
    # The image block with its flags byte replaced and the file's table added.
    return img[:9] + bytes([flags]) + table(colours) + img[10:]

expected = {
    # a (1000 ms, own disposal dropped), b (0 ms), c (2565 ms), d (kept flags,
    # 40 ms), e (30 ms); repeat 256; width typed 2 (below the largest frame: 6),
    # height typed 9 (above: 9).
    'shared.gif': animation(6, 9, 0x81, WARM, 256, [
        gce(0x09, 100, 2) + A_IMG,
        gce(0x00, 0, 0) + B_IMG,
        gce(0x00, 256, 0) + C_IMG,
        gce(0x00, 4, 0) + comment(b'hello')[0:0] + D_IMG,
        gce(0x08, 3, 0) + E_IMG,
    ]),
    'local.gif': animation(6, 9, 0x81, WARM, 256, [
        gce(0x09, 100, 2) + rebuilt(A_IMG, 0x81, WARM),
        gce(0x00, 0, 0) + rebuilt(B_IMG, 0x81, COOL),
        gce(0x00, 256, 0) + C_IMG,
        gce(0x00, 4, 0) + rebuilt(D_IMG, 0x40 | 0x20 | 0x81, COOL),
        gce(0x08, 3, 0) + rebuilt(E_IMG, 0x81, WARM),
    ]),
    'standard.gif': animation(6, 9, 0x81, WARM, 256, [
        gce(0x09, 100, 2) + A_IMG,
        gce(0x00, 0, 0) + B_IMG,
        gce(0x00, 256, 0) + C_IMG,
        gce(0x00, 4, 0) + D_IMG,
        gce(0x08, 3, 0) + E_IMG,
    ], trailer=b'\x3B'),
}

# Transparency: the colour (0, 0, 255), index 2 of WARM.
T1 = b'GIF87a' + screen(4, 4, 0x81, WARM) + A_IMG + b'\x3B'
T2 = b'GIF89a' + screen(4, 4, 0x81, WARM) + NETSCAPE + gce(0x04, 50, 0) + comment(b'x') + A_IMG + A_IMG + b'\x3B'
transparency = {
    't1.gif': T1,
    't1-expected.gif': b'GIF89a' + screen(4, 4, 0x81, WARM) + b'\x21\xF9\x04\x01\x00\x00\x02\x00' + A_IMG + b'\x3B',
    't2.gif': T2,
    't2-expected.gif': b'GIF89a' + screen(4, 4, 0x81, WARM) + NETSCAPE + gce(0x05, 50, 2) + comment(b'x') + A_IMG + A_IMG + b'\x3B',
}

for folder, files in (('frames', frames), ('animation', expected), ('transparency', transparency)):
    os.makedirs(folder, exist_ok=True)
    for name, data in files.items():
        with open(os.path.join(folder, name), 'wb') as f:
            f.write(data)
