"""What a screen reader learns of the program, asked over its own bus."""

import os
import re
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from listview_test import make_sound  # noqa: E402
from program import Program, set_attribute  # noqa: E402
from session import Session, as_ordinary_user, wait_for  # noqa: E402

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
# The number of a state.
SHOWING = 25


class Accessibility(unittest.TestCase):
	def call(self, bus, path, method, *arguments):
		name, _, path = path.rpartition("|")
		return self.session.output(["gdbus", "call", "--address", self.address, "--dest", name or bus,
			"--object-path", path, "--method", method, *arguments])

	def children(self, item):
		text = self.call("", item, "org.a11y.atspi.Accessible.GetChildren")
		return [f"{bus}|{path}" for bus, path in
			re.findall(r"\('([^']*)', (?:objectpath )?'([^']*)'\)", text)]

	def name(self, item):
		text = self.call("", item, "org.freedesktop.DBus.Properties.Get",
			"org.a11y.atspi.Accessible", "Name")
		match = re.match(r"\(<['\"](.*)['\"]>,\)", text)
		return match.group(1) if match else None

	def states(self, item):
		words = re.findall(r"\d+", self.call("", item, "org.a11y.atspi.Accessible.GetState")
			.replace("uint32", ""))
		return int(words[0]) | int(words[1]) << 32

	def window(self):
		for program in self.children("org.a11y.atspi.Registry|/org/a11y/atspi/accessible/root"):
			for window in self.children(program):
				if "_koru_media_list" in (self.name(window) or ""):
					return window
		return None

	def test_the_window_and_the_tiles_have_names_and_states(self):
		with Session() as self.session:
			session = self.session
			titles = []
			for name in ["Alpha", "Übermut"]:
				path = os.path.join(session.home, "Musik", name + ".wav")
				make_sound(path)
				set_attribute(path, "Audio:Length", "CSTR", b"03:07\0")
				set_attribute(path, "Audio:Artist", "CSTR", b"Somebody\0")
				titles.append(path)
			with open(os.path.join(session.home, "_koru_media_list"), "w", encoding="utf-8") as file:
				file.write("".join(title + "\n" for title in titles))
			session.start("at-spi", [LAUNCHER, "--launch-immediately"])

			def address():
				text = session.output(["gdbus", "call", "--session", "--dest", "org.a11y.Bus",
					"--object-path", "/org/a11y/bus", "--method", "org.a11y.Bus.GetAddress"])
				match = re.search(r"'(unix:[^']*)'", text)
				return match and match.group(1)

			self.address = wait_for(address, "the screen readers' bus")
			session.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
			program = Program(session, os.path.join(session.root, "log"))
			window = wait_for(self.window, "the window on the bus")
			tiles = wait_for(lambda: [item for item in self.children(window)
				if "Somebody" in (self.name(item) or "")], "the tiles")
			self.assertEqual([self.name(tile) for tile in tiles],
				["Alpha, Somebody, [1], 3:07", "Übermut, Somebody, [2], 3:07"])
			for item in [window, *tiles]:
				self.assertTrue(self.states(item) >> SHOWING & 1, self.name(item))
			self.assertEqual(program.close(), 0)


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
