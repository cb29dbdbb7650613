"""The list view in a real window: mouse, wheel, keys, and each item of both context menus."""

import os
import struct
import sys
import unittest
import wave

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import (Program, attribute, has_length, prefer_player, set_attribute,  # noqa: E402
	settings_file)
from session import Session, as_ordinary_user, wait_for  # noqa: E402

NAMES = ["Alpha", "Bravo", "Charlie", "Delta", "Don't", "Foxtrot", "Golf", "Hotel"]
# The list's menu as it is for a list that is saved and measured, without the separators.
ITEMS = ["tab", "on top", "edit", "player", "pico", "micro", "mini", "normal", "maxi", "language",
	"about", "close"]


def make_sound(path, seconds=2):
	os.makedirs(os.path.dirname(path), exist_ok=True)
	with wave.open(path, "wb") as file:
		file.setnchannels(1)
		file.setsampwidth(1)
		file.setframerate(8000)
		file.writeframes(b"\x80" * 8000 * seconds)


def make_tool(session, name):
	"""A program that only notes its argument, a line each, in a file of its name."""
	folder = os.path.join(session.root, "tools")
	os.makedirs(folder, exist_ok=True)
	path = os.path.join(folder, name)
	with open(path, "w", encoding="utf-8") as file:
		file.write(f"#!/bin/sh\nprintf '%s\\n' \"$1\" >> '{session.root}/{name}.calls'\n")
	os.chmod(path, 0o755)
	return path


class ListView(unittest.TestCase):
	def prepare(self, session, measured=True):
		"""Eight titles in two albums, and players and a file manager that only take notes."""
		self.session = session
		self.titles = []
		for number, name in enumerate(NAMES):
			path = os.path.join(session.home, "Musik", "one" if number < 5 else "two", name + ".wav")
			make_sound(path)
			if measured:
				set_attribute(path, "Audio:Length", "CSTR", b"60:00\0")
			set_attribute(path, "Audio:Track", "LONG", struct.pack("=i", number % 5 + 1))
			self.titles.append(path)
		self.playlist = os.path.join(session.home, "_koru_media_list")
		with open(self.playlist, "w", encoding="utf-8") as file:
			file.write("".join(title + "\n" for title in self.titles))
		prefer_player(session, make_tool(session, "player"))
		make_tool(session, "xdg-open")
		session.environment["PATH"] = f"{session.root}/tools:" + session.environment["PATH"]
		set_attribute(settings_file(session), "prefs_window_rect", "RECT",
			struct.pack("=4f", 60, 60, 1060, 700))
		self.start()

	def start(self):
		self.program = Program(self.session, os.path.join(self.session.root, "log"))
		self.program.focus()

	def calls(self, tool):
		try:
			with open(f"{self.session.root}/{tool}.calls", encoding="utf-8") as file:
				return file.read().splitlines()
		except FileNotFoundError:
			return []

	def plays(self, number, action):
		"""The action plays that title, and nothing else."""
		before = self.calls("player")
		action()
		wait_for(lambda: len(self.calls("player")) > len(before), f"the title {number}")
		self.assertEqual(self.calls("player"), before + [self.titles[number]])

	def setting(self, key, form):
		return struct.unpack(form, attribute(settings_file(self.session), key)[1])[0]

	def in_playlist(self):
		with open(self.playlist, encoding="utf-8") as file:
			return file.read().splitlines()

	def click(self, x, y, button=1):
		self.session.click(*self.program.at(x, y), button=button)

	def choose(self, item, items=None, *more):
		"""Chooses an item of the list's menu by its keys."""
		items = items or ITEMS
		self.program.focus()
		before = self.session.visible_windows()
		self.program.menu(*["Down"] * (items.index(item) + 1), *(more or ["Return"]))
		return before

	def press_play_button(self, number):
		# Without room for more than one row of covers they stand left of the tiles.
		width, height = self.program.size()
		middle = (height - 1) / 2
		y = {0: 40, 2: 110, 4: middle - 30, 5: middle + 30, 3: height - 110, 1: height - 40}[number]
		self.click(width - 1 - 555, y)

	def test_mouse_and_wheel(self):
		with Session() as session:
			self.prepare(session)
			self.plays(0, self.program.click_centered_tile)
			self.plays(1, lambda: self.click(700, 640 / 2 + 120))
			# The wheel does nothing, and no other button plays.
			for button in [4, 5, 2]:
				self.click(700, 320, button)
			self.plays(1, self.program.click_centered_tile)
			for button, number in [(1, 7), (0, 0), (5, 1), (5, 2), (4, 1), (3, 7), (2, 1)]:
				self.press_play_button(button)
				self.plays(number, self.program.click_centered_tile)
			self.check_covers()
			# Beside the tiles the primary button opens the menu, too.
			before = session.visible_windows()
			self.click(980, 120)
			wait_for(lambda: session.visible_windows() > before, "the menu")
			session.key("Escape")
			wait_for(lambda: session.visible_windows() == before, "the menu's end")
			self.assertEqual(self.program.close(), 0)

	def check_covers(self):
		"""A cover shows its album; playing there goes on there."""
		self.click(30 + 42, 38)
		self.program.wait_for_text(f"= {self.titles[7]}")
		self.press_play_button(0)
		self.plays(5, self.program.click_centered_tile)
		before = self.session.visible_windows()
		self.program.menu()
		self.session.key("Down", "Return")
		wait_for(lambda: self.session.visible_windows() == before, "the menu's end")
		self.press_play_button(0)
		self.plays(0, self.program.click_centered_tile)

	def test_keyboard_alone(self):
		with Session() as session:
			self.prepare(session)
			for keys, number in [(["Return"], 0), (["Down", "Down", "Return"], 2),
					(["Up", "KP_Enter"], 1), (["KP_Add", "Return"], 2), (["KP_Subtract", "Return"], 1),
					(["Next", "Return"], 7), (["Prior", "Return"], 0), (["Right", "Return"], 6),
					(["Left", "Return"], 0)]:
				self.plays(number, lambda: session.key(*keys))
			count = self.program.count(" - will stop any Audio-App ")
			session.key("End")
			self.program.wait_for_text(" - will stop any Audio-App ", count + 1)
			self.assertEqual(self.program.close(), 0)
			self.assertEqual(self.setting("LAST_PLAY", "=i"), 0)

	def test_items_of_the_lists_menu(self):
		with Session() as session:
			self.prepare(session)
			self.check_window_items()
			self.choose("edit")
			wait_for(lambda: self.calls("xdg-open") == [self.playlist], "the list in an editor")
			for item in ["pico", "micro", "mini", "normal"]:
				self.choose(item)
			# In the submenu: nobody, a separator, then those installed.
			self.choose("player", None, "Right", "Return")
			self.program.wait_for_text("upaa >>  -none- \n")
			self.choose("player", None, "Right", "Down", "Return")
			self.program.wait_for_text("upaa >> /usr/bin/")
			before = self.choose("about")
			wait_for(lambda: session.visible_windows() > before, "the about window")
			session.key("Return")
			wait_for(lambda: session.visible_windows() == before, "its end")
			self.choose("close")
			wait_for(lambda: self.program.process.poll() is not None, "the end of the program")
			self.assertEqual(self.program.process.returncode, 0)
			self.assertEqual(self.setting("LINK_SIZE", "=i"), 2)
			self.assertEqual(self.setting("mw_ever_topped", "=?"), False)
			player = attribute(settings_file(session), "pref_AudioApp")[1].decode()
			self.assertIn(player.rstrip("\0"), ["/usr/bin/vlc", "/usr/bin/mpv"])

	def check_window_items(self):
		def state():
			return self.session.output(["xprop", "-id", self.program.window, "_NET_WM_STATE"])

		self.assertIn("ABOVE", state())
		self.choose("on top")
		wait_for(lambda: "ABOVE" not in state(), "an ordinary window")

		def decorated():
			text = self.session.output(["xprop", "-id", self.program.window, "_NET_FRAME_EXTENTS"])
			return int(text.split(",")[2]) > 8

		self.assertTrue(decorated())
		self.choose("tab")
		wait_for(lambda: not decorated(), "a window without a title tab")
		self.choose("tab")
		wait_for(decorated, "a window with a title tab")

	def test_measuring_and_saving(self):
		with Session() as session:
			self.prepare(session, measured=False)
			self.choose("measure", ITEMS[:2] + ["measure"] + ITEMS[2:])
			wait_for(lambda: all(has_length(title) for title in self.titles), "the lengths")
			self.assertEqual(attribute(self.titles[7], "Audio:Length"), ("CSTR", b"00:03\0"))
			# Now the item is gone, and what follows it has moved up.
			self.choose("edit")
			wait_for(lambda: self.calls("xdg-open") == [self.playlist], "the list in an editor")
			self.remove_first()
			self.assertEqual(self.in_playlist(), self.titles)
			self.choose("save", ITEMS[:3] + ["save"] + ITEMS[3:])
			wait_for(lambda: self.in_playlist() == self.titles[1:], "the saved list")
			self.assertEqual(self.program.close(), 0)

	def tile_menu(self, *keys):
		"""Opens the centered tile's menu and presses keys in it."""
		width, height = self.program.size()
		self.program.focus()
		before = self.session.visible_windows()
		x, y = self.program.at(width - 516 + 300, height / 2 + 30)
		# A button that is released at once opens no menu of a tile.
		self.session.run(["xdotool", "mousemove", str(x), str(y), "mousedown", "3"])
		wait_for(lambda: self.session.visible_windows() > before, "the tile's menu")
		self.session.run(["xdotool", "mouseup", "3"])
		self.session.key(*keys)
		wait_for(lambda: self.session.visible_windows() == before, "the menu's end")

	def remove_first(self):
		self.press_play_button(0)
		count = self.program.count("all Removed")
		self.tile_menu("Down", "Down", "Return")
		self.program.wait_for_text("all Removed", count + 1)

	def test_items_of_a_tiles_menu(self):
		with Session() as session:
			self.prepare(session)
			self.press_play_button(0)
			self.tile_menu("Down", "Return")
			wait_for(lambda: self.calls("xdg-open") == [os.path.dirname(self.titles[0])], "the folder")
			self.remove_first()
			self.plays(1, self.program.click_centered_tile)
			# The title with the apostrophe is now the fourth.
			for _ in range(3):
				self.press_play_button(5)
			self.tile_menu("Down", "Down", "Down", "Return")
			wait_for(lambda: not os.path.exists(self.titles[4]), "another name")
			self.titles[4] = next(os.path.join(folder, name) for folder, _, names
				in os.walk(os.path.join(session.home, "Musik")) for name in names
				if name.startswith("Don"))
			self.assertNotIn("'", self.titles[4])
			taken = os.path.join(session.home, "Musik", "two", "India.wav")
			make_sound(taken)
			set_attribute(taken, "Audio:Track", "LONG", struct.pack("=i", 4))
			self.check_album_items(taken)
			self.assertEqual(self.program.close(), 0)
			self.assertEqual(self.in_playlist(), self.titles[1:] + [taken])

	def test_a_disabled_item_does_nothing(self):
		with Session() as session:
			self.prepare(session)
			self.assertEqual(self.program.close(), 0)
			gone = os.path.join(session.home, "Musik", "gone", "Alpha.wav")
			with open(self.playlist, "w", encoding="utf-8") as file:
				file.write(gone + "\n" + self.titles[1] + "\n")
			self.start()
			width, height = self.program.size()
			x, y = self.program.at(width - 516 + 300, height / 2 + 30)
			before = session.visible_windows()
			session.run(["xdotool", "mousemove", str(x), str(y), "mousedown", "3"])
			wait_for(lambda: session.visible_windows() > before, "the tile's menu")
			# The first item, below the separator, opens the title's folder.
			session.run(["xdotool", "mouseup", "3", "mousemove", str(x + 20), str(y + 14), "click", "1",
				"sleep", "0.5"])
			self.assertGreater(session.visible_windows(), before)
			session.key("Escape")
			wait_for(lambda: session.visible_windows() == before, "the menu's end")
			self.assertEqual(self.calls("xdg-open"), [])
			# The next title's folder is there: the same place opens it.
			self.press_play_button(1)
			session.run(["xdotool", "mousemove", str(x), str(y), "mousedown", "3"])
			wait_for(lambda: session.visible_windows() > before, "the tile's menu")
			session.run(["xdotool", "mouseup", "3", "mousemove", str(x + 20), str(y + 14), "click", "1"])
			wait_for(lambda: self.calls("xdg-open") == [os.path.dirname(self.titles[1])], "the folder")
			self.assertEqual(self.program.close(), 0)

	def check_album_items(self, taken):
		"""Taking a title leads back to the list, and so does the item that says so."""
		for number, keys in enumerate([["Down", "Down", "Return"], ["Down"] * 3 + ["Return"]], 1):
			self.click(30 + 42, 38)
			self.program.wait_for_text(f"= {taken}", number)
			self.press_play_button(1)
			count = self.program.count("all Removed")
			self.tile_menu(*keys)
			self.program.wait_for_text("all Removed", count + 1)
			self.press_play_button(0)
			self.plays(1, self.program.click_centered_tile)


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
