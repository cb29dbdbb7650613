"""The language menu: two copies of the program on one session bus speak the same language."""

import os
import re
import struct
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program, attribute, set_attribute, settings_file  # noqa: E402
from session import Session, as_ordinary_user, make_album, wait_for  # noqa: E402

LANGUAGE_COUNT = 14


class Language(unittest.TestCase):
	def prepare(self, session):
		"""A list with a title that is missing, and room for two windows side by side."""
		titles = make_album(os.path.join(session.home, "Musik", "Hör proben"))
		titles.insert(1, os.path.join(session.home, "Musik", "Verloren.mp3"))
		with open(os.path.join(session.home, "_koru_media_list"), "w", encoding="utf-8") as file:
			file.write("".join(title + "\n" for title in titles))
		with open(settings_file(session), "ab"):
			pass
		set_attribute(settings_file(session), "prefs_window_rect", "RECT",
			struct.pack("=4f", 20, 60, 670, 560))

	def start(self, session, name, left):
		program = Program(session, os.path.join(session.root, name))
		session.run(["xdotool", "windowmove", "--sync", program.window, str(left), "100"])
		program.focus()
		return program

	def files(self, program):
		"""The language files in the menu's order."""
		return re.findall(r"^: '.*\.(\w{4})'  \d+ Bytes$", program.text(), re.MULTILINE)

	def open_language_menu(self, program, downs):
		"""The language menu is the third of the context menu's items from below."""
		program.focus()
		program.menu("Up", "Up", "Up", "Right", *["Down"] * downs)

	def choose(self, program, downs):
		self.open_language_menu(program, downs)
		program.session.key("Return")

	def keep(self, session, name):
		folder = os.environ.get("SCREENSHOTS")
		if folder:
			session.screenshot(os.path.join(folder, name))

	def wait_for_titles(self, programs, begin):
		for program in programs:
			wait_for(lambda: program.title().startswith(begin), f"a title that begins with {begin}")

	def wait_for_memory(self, session, language):
		path = os.path.join(session.environment["XDG_CONFIG_HOME"], "_LP_x-vnd.KV",
			"kv_simpel_locale")
		name = "_last_lg_selected"
		wait_for(lambda: os.path.exists(path) and "user.haiku." + name in os.listxattr(path)
			and attribute(path, name) == ("CSTR", language + b"\0"), "the stored language")

	def test_a_language_chosen_in_one_copy_changes_both(self):
		with Session() as session:
			self.prepare(session)
			first = self.start(session, "first.log", 20)
			second = self.start(session, "second.log", 720)
			both = [first, second]
			files = self.files(first)
			self.assertEqual(len(files), LANGUAGE_COUNT)
			self.wait_for_titles(both, "using: >> ")

			self.choose(first, files.index("deDE"))
			self.wait_for_titles(both, "verwendet: >> ")
			for program in both:
				program.wait_for_text(f" Mark Item nr: {files.index('deDE')}\n")
				self.assertEqual(program.count("..(replaced: 24 )..done"), 1)
			self.wait_for_memory(session, b"deDE")
			self.look(session, both, "german")

			self.choose(second, files.index("jaJP"))
			self.wait_for_titles(both, "使用中: >> ")
			self.look(session, both, "japanese")

			# The last item, behind the separator.
			self.choose(first, LANGUAGE_COUNT)
			self.wait_for_titles(both, "using: >> ")
			for program in both:
				program.wait_for_text(f" Mark Item nr: {LANGUAGE_COUNT + 1}\n")
			self.wait_for_memory(session, b"_non")
			for program in reversed(both):
				self.assertEqual(program.close(), 0)

	def look(self, session, programs, name):
		"""Opens the menus for a picture, if pictures are wanted."""
		if not os.environ.get("SCREENSHOTS"):
			return
		self.open_language_menu(programs[1], 1)
		self.keep(session, name + ".png")
		session.key("Escape")
		session.key("Escape")

	def test_control_held_while_a_language_is_chosen_reports_what_it_lacks(self):
		with Session() as session:
			self.prepare(session)
			program = self.start(session, "log", 20)
			self.open_language_menu(program, self.files(program).index("itIT"))
			session.run(["xdotool", "keydown", "ctrl"])
			session.run(["xdotool", "key", "Return"])
			program.wait_for_text("[B_CONTROL_KEY]")
			session.run(["xdotool", "keyup", "ctrl"])
			program.wait_for_text(" - 0 not translated - \n")
			with open(os.path.join(session.home, "KORU-Haiku_itIT_Missing.txt"),
					encoding="utf-8") as file:
				report = file.read()
			self.assertIn("KORU-Haiku.itIT'\n# - - - not translated Labels: \n", report)
			self.assertIn('"Teach In"\t\t"Teach In"\n', report)
			self.assertNotIn('"Edit"', report)
			self.assertEqual(program.close(), 0)

	def test_the_language_comes_back_with_the_next_start(self):
		with Session() as session:
			self.prepare(session)
			program = self.start(session, "first.log", 20)
			self.choose(program, self.files(program).index("frFR"))
			self.wait_for_memory(session, b"frFR")
			wait_for(lambda: not program.title().startswith("using:"), "the French title")
			french = program.title()
			self.assertEqual(program.close(), 0)
			program = self.start(session, "second.log", 20)
			self.assertEqual(program.title(), french)
			self.assertIn("  = last selected !\n", program.text())
			self.assertEqual(program.close(), 0)


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
