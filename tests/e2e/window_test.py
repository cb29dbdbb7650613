"""The window as the window manager and the eye see it."""

import os
import re
import signal
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program, set_attribute, settings_file  # noqa: E402
from session import Session, as_ordinary_user, wait_for  # noqa: E402

MENU_BACKGROUND = (216, 216, 216)


def pixels(path):
	"""The colors of a picture, each with how often it occurs."""
	text = subprocess.run(["convert", path, "-depth", "8", "-format", "%c", "histogram:info:-"],
		check=True, stdout=subprocess.PIPE, text=True).stdout
	return {tuple(int(value) for value in match[1:4]): int(match[0]) for match in
		re.findall(r"(\d+): \((\d+),(\d+),(\d+)", text)}


class Window(unittest.TestCase):
	def property(self, session, window, name):
		return session.output(["xprop", "-id", window, name])

	def is_above(self, session, window):
		return "_NET_WM_STATE_ABOVE" in self.property(session, window, "_NET_WM_STATE")

	def has_border(self, session, window):
		"""Whether the window manager draws anything around the window."""
		extents = re.findall(r"\d+", self.property(session, window, "_NET_FRAME_EXTENTS"))
		return any(int(extent) > 0 for extent in extents[1:] if extents)

	def picture(self, session, window):
		path = os.path.join(session.root, "window.png")
		self.assertEqual(session.run(["import", "-window", window, path]), 0)
		return pixels(path)

	def test_its_properties_and_what_changes_them(self):
		with Session() as session:
			log = os.path.join(session.root, "log")
			program = Program(session, log)
			window = program.window
			self.assertEqual(program.title(),
				"using: >> " + os.path.join(session.home, "_koru_media_list"))
			hints = self.property(session, window, "WM_NORMAL_HINTS")
			self.assertRegex(hints, "minimum size: 601 by 383")
			self.assertRegex(hints, "maximum size: 1241 by 1025")
			self.tab_and_layer(session, program)
			self.status(session, program)
			self.about(session, program)
			self.pulse(program)
			self.frame(session, program)

	def tab_and_layer(self, session, program):
		window = program.window
		wait_for(lambda: self.is_above(session, window), "the window above the others")
		program.menu("Down", "Down", "Return")
		wait_for(lambda: not self.is_above(session, window), "the window among the others")
		self.assertTrue(self.has_border(session, window))
		program.menu("Down", "Return")
		wait_for(lambda: not self.has_border(session, window), "the window without a border")
		program.menu("Down", "Return")
		wait_for(lambda: self.has_border(session, window), "the border")

	def status(self, session, program):
		program.focus()
		session.key("Control_R")
		program.wait_for_text("show TOPLIST-Info: \nToplist-Images : 0\nToplist-Items  : 0\n"
			"   AlienList-Style : 0\nListStyleWithFile  : 0\nFolderlist : 0|0\n")
		session.key("Shift_L")
		program.wait_for_text(".. B_SHIFT_KEY\n.. B_LEFT_SHIFT_KEY\n")

	def about(self, session, program):
		program.menu("Up", "Up", "Return")
		alert = session.window("KORU_Alert")
		# The text is black on a light ground.
		colors = self.picture(session, alert)
		self.assertGreater(sum(count for color, count in colors.items() if max(color) < 100), 100)
		session.run(["xdotool", "windowactivate", "--sync", alert])
		session.key("Return")
		wait_for(lambda: session.run(["xwininfo", "-id", alert]) != 0
			or "IsUnMapped" in session.output(["xwininfo", "-id", alert]), "the end of the alert")

	def pulse(self, program):
		"""A line each two seconds."""
		count = program.count(" stop.. ")
		program.wait_for_text(" stop.. ", count + 1)
		begin = time.monotonic()
		program.wait_for_text(" stop.. ", count + 2)
		self.assertGreater(time.monotonic() - begin, 1)

	def frame(self, session, program):
		# Too much, and too little, are not taken.
		session.run(["xdotool", "windowsize", program.window, "2000", "200"])
		wait_for(lambda: program.size() == (1241, 383), "the limits")
		program.resize(900, 500)
		session.run(["xdotool", "windowmove", program.window, "210", "130"])
		wait_for(lambda: session.frame(program.window) == (210, 130, 900, 500), "the frame")
		program.menu("Down", "Return")
		wait_for(lambda: not self.has_border(session, program.window), "the window without a border")
		frame = session.frame(program.window)
		self.assertEqual(program.close(), 0)
		text = program.text()
		self.assertTrue(text.startswith("-WYN begin-\n"), text[:100])
		# The last word is the application's or its window's, which end side by side.
		self.assertEqual(text.count("\n-WYN end-\n"), 1)
		self.assertRegex(text, r"\n(-WYN end-|\[Del: MxView\])\n$")

		again = Program(session, os.path.join(session.root, "again.log"))
		self.assertEqual(session.frame(again.window), frame)
		self.assertFalse(self.is_above(session, again.window))
		self.assertEqual(again.close(), 0)

	def look_at_information(self, session, process):
		"""Two different pictures of the information window, or fewer if it has gone before."""
		title = ["xdotool", "search", "--onlyvisible", "--all", "--pid", str(process.pid), "--name"]
		shown = []
		end = time.monotonic() + 90
		while len(shown) < 2 and not session.output(title + ["_koru_media_list"]):
			self.assertIsNone(process.poll(), "the program has ended")
			self.assertLess(time.monotonic(), end, "neither two texts nor the list are shown")
			# It stands still while it is looked at, however long that takes.
			process.send_signal(signal.SIGCONT)
			time.sleep(0.03)
			process.send_signal(signal.SIGSTOP)
			found = session.output(title + ["WYN Init-Win"]).split()
			path = os.path.join(session.root, "info.png")
			if found and session.run(["import", "-window", found[0], path]) == 0:
				self.assertEqual(session.frame(found[0]), (20, 80, 821, 21))
				self.assertRegex(self.property(session, found[0], "WM_NORMAL_HINTS"),
					"minimum size: 821 by 21\n.*maximum size: 821 by 21")
				colors = pixels(path)
				# Nothing is drawn at first, then a black text on the color of menus.
				if colors.get((0, 0, 0), 0) > 5 and colors not in shown \
						and colors.get(MENU_BACKGROUND, 0) > 821 * 21 * 0.8:
					shown.append(colors)
		process.send_signal(signal.SIGCONT)
		return shown

	def test_the_information_window_shows_the_folders(self):
		with Session() as session:
			# It is there for a moment only; with more folders it is seen for longer.
			for count in [10000, 20000, 40000]:
				with open(os.path.join(session.home, "_koru_media_list"), "w", encoding="utf-8") as file:
					file.writelines(f"/nowhere/album {number}/title.mp3\n" for number in range(count))
				process = session.start("VinyloH", ["stdbuf", "-oL", os.environ["VINYLOH"]],
					log=os.path.join(session.root, "log"))
				shown = self.look_at_information(session, process)
				if len(shown) == 2:
					break
				process.kill()
				process.wait()
			self.assertEqual(len(shown), 2, "another folder in the text")
			session.window("_koru_media_list", limit=90, process=process)
			wait_for(lambda: session.output(["xdotool", "search", "--onlyvisible", "--name",
				"WYN Init-Win"]) == "", "the end of the information window")


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
