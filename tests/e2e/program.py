"""A running VinyloH in a session, and what a test or a demonstration does to it."""

import os
import subprocess

from session import wait_for

TILE = 114
GAP = 5


def settings_file(session):
	return os.path.join(session.environment["XDG_CONFIG_HOME"], "_KORU_WYN_Beta030")


def attribute(path, name):
	"""Type code and data of a typed attribute."""
	value = os.getxattr(path, "user.haiku." + name)
	return value[:4][::-1].decode(), value[4:]


def set_attribute(path, name, code, data):
	os.setxattr(path, "user.haiku." + name, code.encode()[::-1] + data)


def has_length(path):
	return "user.haiku.Audio:Length" in os.listxattr(path)


def prefer_player(session, player):
	"""Makes a program the preferred player before the start."""
	with open(settings_file(session), "ab"):
		pass
	set_attribute(settings_file(session), "pref_AudioApp", "CSTR", player.encode() + b"\0")


class Program:
	def __init__(self, session, log, path=None, limit=20):
		self.session = session
		self.log = log
		if os.path.exists(log):
			os.remove(log)
		self.process = session.start("VinyloH",
			["stdbuf", "-oL", path or os.environ["VINYLOH"]], log=log)
		self.window = session.window("_koru_media_list", limit, self.process)

	def text(self):
		with open(self.log, encoding="utf-8", errors="surrogateescape") as file:
			return file.read()

	def count(self, text):
		return self.text().count(text)

	def wait_for_text(self, text, times=1, limit=20):
		wait_for(lambda: self.count(text) >= times, f"{text!r}, {times} times, in the log", limit)

	def title(self):
		return self.session.output(["xdotool", "getwindowname", self.window]).strip()

	def size(self):
		return self.session.frame(self.window)[2:]

	def at(self, x, y):
		left, top, _, _ = self.session.frame(self.window)
		return left + int(x), top + int(y)

	def resize(self, width, height):
		self.session.run(["xdotool", "windowsize", "--sync", self.window, str(width), str(height)])
		wait_for(lambda: self.size() == (width, height), "the new size")

	def has_focus(self):
		return self.session.output(["xdotool", "getactivewindow"]).strip() == self.window

	def focus(self):
		"""Brings the window to the front; a player that has just opened may want to be there, too."""
		def is_there():
			self.session.run(["xdotool", "windowactivate", self.window])
			return self.has_focus()
		wait_for(is_there, "the focus")

	def drop(self, paths):
		x, y = self.at(300, 150)
		return self.session.drop(self.window, x, y, paths)

	def drop_data(self, kind, data):
		x, y = self.at(300, 150)
		return self.session.drop_data(self.window, x, y, kind, data)

	def click_centered_tile(self):
		width, height = self.size()
		self.session.click(*self.at(width - 516 + 250, (height - 1) * 0.5 - GAP))

	def menu(self, *keys):
		"""Opens the context menu in the gap beside the tiles and presses keys in it."""
		width, _ = self.size()
		before = self.session.visible_windows()
		self.session.click(*self.at(width - 20, 120), button=3)
		wait_for(lambda: self.session.visible_windows() > before, "the menu")
		for key in keys:
			self.session.key(key)

	def measure(self, titles):
		"""Lets the program write the play times, through its menu."""
		self.menu("Down", "Down", "Down", "Return")
		for title in titles:
			wait_for(lambda: has_length(title), f"the length of {title}")

	def play_first(self):
		self.focus()
		self.session.key("Prior")
		self.click_centered_tile()

	def close(self, limit=15):
		"""Closes the window through the window manager and returns how the program has ended."""
		def is_over():
			if self.process.poll() is None and self.has_focus():
				self.session.key("alt+F4")
			try:
				self.process.wait(2)
			except subprocess.TimeoutExpired:
				self.session.run(["xdotool", "windowactivate", self.window])
			return self.process.poll() is not None
		self.focus()
		wait_for(is_over, "the end of the program", limit)
		return self.process.returncode
