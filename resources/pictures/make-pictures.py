#!/usr/bin/env python3
"""Draws the pictures that are built into the program and writes them as C++ sources.

Each is drawn with smooth edges and turned into the system's 8-bit palette. Run it after a change of
the drawings; the sources that it writes are kept with the others. With --check it writes nothing and
fails if they are not what it would write.
"""

import math
import os
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

# The system palette, red, green, blue in hexadecimal digits. The last entry is transparent.
PALETTE = """
	000000 080808 101010 181818 202020 282828 303030 383838 404040 484848 505050 585858 606060 686868 707070 787878
	808080 888888 909090 989898 A0A0A0 A8A8A8 B0B0B0 B8B8B8 C0C0C0 C8C8C8 D0D0D0 D8D8D8 E0E0E0 E8E8E8 F0F0F0 F8F8F8
	0000FF 0000E5 0000CC 0000B3 00009A 000081 000069 000050 000037 00001E FF0000 E40000 CB0000 B20000 990000 800000
	690000 500000 370000 1E0000 00FF00 00E400 00CB00 00B200 009900 008000 006900 005000 003700 001E00 009833 FFFFFF
	CBFFFF CBFFCB CBFF98 CBFF66 CBFF33 CBFF00 98FFFF 98FFCB 98FF98 98FF66 98FF33 98FF00 66FFFF 66FFCB 66FF98 66FF66
	66FF33 66FF00 33FFFF 33FFCB 33FF98 33FF66 33FF33 33FF00 FF98FF FF98CB FF9898 FF9866 FF9833 FF9800 0066FF 0066CB
	CBCBFF CBCBCB CBCB98 CBCB66 CBCB33 CBCB00 98CBFF 98CBCB 98CB98 98CB66 98CB33 98CB00 66CBFF 66CBCB 66CB98 66CB66
	66CB33 66CB00 33CBFF 33CBCB 33CB98 33CB66 33CB33 33CB00 FF66FF FF66CB FF6698 FF6666 FF6633 FF6600 006698 006666
	CB98FF CB98CB CB9898 CB9866 CB9833 CB9800 9898FF 9898CB 989898 989866 989833 989800 6698FF 6698CB 669898 669866
	669833 669800 3398FF 3398CB 339898 339866 339833 339800 E68600 FF33CB FF3398 FF3366 FF3333 FF3300 006633 006600
	CB66FF CB66CB CB6698 CB6666 CB6633 CB6600 9866FF 9866CB 986698 986666 986633 986600 6666FF 6666CB 666698 666666
	666633 666600 3366FF 3366CB 336698 336666 336633 336600 FF00FF FF00CB FF0098 FF0066 FF0033 FFAF13 0033FF 0033CB
	CB33FF CB33CB CB3398 CB3366 CB3333 CB3300 9833FF 9833CB 983398 983366 983333 983300 6633FF 6633CB 663398 663366
	663333 663300 3333FF 3333CB 333398 333366 333333 333300 FFCB66 FFCB98 FFCBCB FFCBFF 003398 003366 003333 003300
	CB00FF CB00CB CB0098 CB0066 CB0033 FFE346 9800FF 9800CB 980098 980066 980033 980000 6600FF 6600CB 660098 660066
	660033 660000 3300FF 3300CB 330098 330066 330033 330000 FFCB33 FFCB00 FFFF00 FFFF33 FFFF66 FFFF98 FFFFCB FFFFFF
"""
COLORS = [tuple(int(text[at:at + 2], 16) for at in (0, 2, 4)) for text in PALETTE.split()]
TRANSPARENT = 255
# Samples for each pixel, across and down.
SAMPLES = 4


def index_of(color):
	"""The palette's entry that is nearest to a color."""
	def distance(index):
		red, green, blue = COLORS[index]
		middle = (red + color[0]) / 2
		return ((512 + middle) * (red - color[0]) ** 2 / 256 + 4 * (green - color[1]) ** 2
			+ (767 - middle) * (blue - color[2]) ** 2 / 256)
	return min(range(TRANSPARENT), key=distance)


def mix(first, second, share):
	return tuple(a + (b - a) * share for a, b in zip(first, second))


def render(width, height, color_at):
	"""Rows of palette entries. color_at gives a point's color, or None for nothing."""
	cache = {}
	rows = []
	for y in range(height):
		row = []
		for x in range(width):
			hits = []
			for sub in range(SAMPLES * SAMPLES):
				color = color_at(x + (sub % SAMPLES + 0.5) / SAMPLES,
					y + (sub // SAMPLES + 0.5) / SAMPLES)
				if color is not None:
					hits.append(color)
			if len(hits) * 2 < SAMPLES * SAMPLES:
				row.append(TRANSPARENT)
				continue
			color = tuple(round(sum(part) / len(hits)) for part in zip(*hits))
			if color not in cache:
				cache[color] = index_of(color)
			row.append(cache[color])
		rows.append(row)
	return rows


def in_box(x, y, left, top, right, bottom, radius=0.0):
	"""Whether a point lies in a rectangle with round corners."""
	dx = max(left + radius - x, x - right + radius, 0)
	dy = max(top + radius - y, y - bottom + radius, 0)
	return (left <= x <= right and top <= y <= bottom) and dx * dx + dy * dy <= radius * radius + 1e-9


def missing(x, y):
	"""A sheet of paper with a sad face."""
	if not in_box(x, y, 6, 2, 44, 48, 4):
		return None
	if not in_box(x, y, 7.4, 3.4, 42.6, 46.6, 3):
		return (102, 102, 102)
	# The folded corner.
	if x - y > 27:
		return (203, 203, 203) if x - y < 29.5 else (255, 203, 152)
	for eye in (18, 32):
		if math.hypot(x - eye, (y - 21) * 0.8) < 2.6:
			return (51, 51, 102)
	mouth = math.hypot((x - 25) * 0.9, y - 40)
	if y < 38 and 7.2 < mouth < 9.4:
		return (204, 0, 0)
	# A tear.
	if math.hypot(x - 32.6, y - 28.5) < 1.9 or (abs(x - 32.6) < (y - 24.5) * 0.45 and 24.5 < y < 28.5):
		return (51, 152, 255)
	return mix((255, 255, 255), (255, 255, 203), y / 50)


def audio(x, y):
	"""A record with a note."""
	distance = math.hypot(x - 24, y - 27)
	if in_note(x, y):
		return (255, 203, 51)
	if in_note(x - 1.2, y - 1.2) and distance < 23:
		return (0, 0, 0)
	if distance > 23:
		return None
	if distance > 8:
		# Grooves, and the light that two sectors catch.
		light = max(0.0, math.cos(2 * math.atan2(y - 27, x - 24) - 1.2)) ** 6
		shade = 30 + 14 * (math.sin(distance * 3.2) > 0.4) + 80 * light
		return (shade, shade, shade + 8)
	if distance < 1.6:
		return (230, 230, 230)
	return mix((203, 51, 0), (152, 0, 0), distance / 8)


def in_note(x, y):
	heads = any(math.hypot((x - head) * 0.8, y - level + (x - head) * 0.25) < 3.4
		for head, level in ((31, 22), (42, 19)))
	stems = in_box(x, y, 33.4, 4.5, 35.4, 21.5) or in_box(x, y, 44.4, 2, 46.4, 18.5)
	beam = 33.4 <= x <= 46.4 and 0 <= y - (7.6 - x * 0.2 + 2.4) + 3.0 <= 4.4
	return heads or stems or beam


def video(x, y):
	"""A strip of film with a triangle that says "play"."""
	if not in_box(x, y, 3, 4, 47, 48, 3):
		return None
	for edge in (4.8, 41.2):
		for hole in range(6):
			if in_box(x, y, edge, 7 + hole * 6.7, edge + 4, 11 + hole * 6.7, 1):
				return (240, 240, 240)
	if not in_box(x, y, 11, 8, 39, 44, 2):
		return (40, 40, 48)
	if 20 <= x <= 34 and abs(y - 26) <= (34 - x) * 0.62:
		return (255, 255, 255)
	return mix((0, 102, 203), (0, 0, 105), (y - 8) / 36)


RAINBOW = [(255, 102, 102), (255, 203, 102), (203, 255, 102), (102, 255, 152), (102, 203, 255),
	(152, 152, 255), (255, 152, 255)]


def audio_cd(x, y):
	"""A compact disc that shimmers, in its case."""
	across, down = x - 66, y - 66
	distance = math.hypot(across, down)
	if distance > 62:
		if not in_box(x, y, 1, 1, 131, 131, 3):
			return (20, 20, 20)
		shadow = math.hypot(across - 2, down - 3) < 62
		return (152, 152, 152) if shadow else (203, 203, 203)
	if distance > 61 or 19 < distance < 20 or 8.5 < distance < 9.5:
		return (102, 102, 102)
	if distance < 8.5:
		return (51, 51, 51)
	if distance < 19:
		return mix((232, 232, 232), (203, 203, 203), (distance - 9.5) / 9.5)
	angle = math.atan2(down, across)
	silver = 176 + 48 * math.cos(2 * angle + 0.9)
	color = (silver, silver, silver)
	shimmer = max(0.0, math.cos(2 * angle - 2.2)) ** 4
	place = (distance - 20) / 41 * (len(RAINBOW) - 1)
	low = min(int(place), len(RAINBOW) - 2)
	color = mix(color, mix(RAINBOW[low], RAINBOW[low + 1], place - low), shimmer)
	return color


def literal(data):
	"""The bytes as string literals of at most 100 columns."""
	lines = []
	line = ""
	for at, value in enumerate(data):
		character = chr(value)
		if 32 <= value < 127 and character not in '"\\?':
			text = character
		else:
			following = data[at + 1] if at + 1 < len(data) else 0
			text = f"\\{value:03o}" if ord("0") <= following <= ord("7") else f"\\{value:o}"
		if len(line) + len(text) > 93:
			lines.append(line)
			line = ""
		line += text
	lines.append(line)
	return "\n".join(f'\t"{text}"' for text in lines)


def bits(rows):
	"""The pixels with each row filled up to a multiple of 4 bytes."""
	stride = (len(rows[0]) + 3) // 4 * 4
	return [value for row in rows for value in row + [0] * (stride - len(row))]


def source(pictures):
	text = ("// Copyright 2026, The VinyloH Authors."
		" Distributed under the terms of the MIT License.\n"
		"// Written by resources/pictures/make-pictures.py.\n"
		'#include "entryview/BuiltInPictures.h"\n\n\n'
		"// clang-format off\n")
	for name, size, rows in pictures:
		data = bits(rows)[:size - 1]
		# The literal's own end is the last byte, or what follows is filled with zeros.
		while data and data[-1] == 0:
			data.pop()
		text += f"const uint8 {name}[{size}] =\n{literal(data)};\n\n"
	return text[:-1] + "// clang-format on\n"


def main():
	files = {
		"BuiltInPictures.cpp": [
			("SadBits", 2601, render(50, 50, missing)),
			("SadAudBits", 2703, render(50, 52, audio)),
			("SadVidBits", 2703, render(50, 52, video)),
		],
		"AudioCDPicture.cpp": [("kaudioCDBits", 17689, render(132, 132, audio_cd))],
	}
	status = 0
	for name, pictures in files.items():
		path = os.path.join(ROOT, "entryview", name)
		if "--check" not in sys.argv[1:]:
			with open(path, "w", encoding="ascii") as file:
				file.write(source(pictures))
			continue
		with open(path, encoding="ascii") as file:
			if file.read() != source(pictures):
				print(f"{name} is not what this script writes")
				status = 1
	return status


if __name__ == "__main__":
	sys.exit(main())
