"""What can be dropped on the window, through real drag-and-drop exchanges and a file manager."""

import os
import shutil
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program  # noqa: E402
from session import Session, as_ordinary_user, make_title, wait_for  # noqa: E402


def lines_of(path):
	with open(path, encoding="utf-8", errors="surrogateescape") as file:
		return file.read().split("\n")[:-1]


class Drops(unittest.TestCase):
	def make(self, session, *names):
		"""Copies of a short title in the home folder; names may have folders. Returns their paths."""
		first = os.path.join(session.root, "title.mp3")
		if not os.path.exists(first):
			make_title(first, 1, "One", "Somebody", 1)
		paths = [os.path.join(session.home, name) for name in names]
		for path in paths:
			os.makedirs(os.path.dirname(path), exist_ok=True)
			shutil.copyfile(first, path)
		return paths

	def playlist(self, session):
		return os.path.join(session.home, "_koru_media_list")

	def test_three_hundred_files_at_once(self):
		with Session() as session:
			titles = self.make(session, *(f"album {number // 20}/title {number}.mp3"
				for number in range(300)))
			program = Program(session, os.path.join(session.root, "log"))
			self.assertEqual(program.drop(titles), 0)
			program.wait_for_text(" add to mflist\n", 300, 60)
			program.wait_for_text(" folderlist has 15 items\n", 1, 30)
			self.assertEqual(program.close(), 0)
			self.assertEqual(lines_of(self.playlist(session)), titles)

	def test_each_kind_of_thing(self):
		with Session() as session:
			program = Program(session, os.path.join(session.root, "log"))
			self.files(session, program)
			self.no_files(program)
			saved, expected = self.playlists(session, program)
			self.assertEqual(program.close(), 0)
			self.assertEqual(lines_of(saved), expected)
			self.assertFalse(os.path.exists(self.playlist(session)))

	def files(self, session, program):
		odd = os.fsdecode(b"not utf-8 \xff\xfe.mp3")
		first, second = self.make(session, "one.mp3", odd)
		album = os.path.join(session.home, "an album")
		os.makedirs(album)
		text = os.path.join(session.home, "texts", "note.txt")
		os.makedirs(os.path.dirname(text))
		with open(text, "w", encoding="utf-8") as file:
			file.write("a note\n")
		link = os.path.join(session.home, "link.mp3")
		os.symlink(first, link)
		self.assertEqual(program.drop([first, album, link, "/dev/null", text, second]), 0)
		program.wait_for_text(" add to mflist\n", 2)
		self.assertEqual(program.count(f"{album}\n.. Folder added\n"), 1)
		self.assertEqual(program.count(f"{text}\n\n.. Folder added\n"), 1)
		self.assertEqual(program.count(link), 0)
		self.assertEqual(program.count("/dev/null"), 0)
		self.assertEqual(program.drop([first]), 0)
		program.wait_for_text("0 |Allways in List:\n" + first)
		self.assertEqual(program.drop([album]), 0)
		program.wait_for_text(" ...schon dabei \n")
		self.assertEqual(program.drop([text]), 0)
		program.wait_for_text(f"{text}\n\n.. Folder added\n", 2)

	def no_files(self, program):
		before = program.count("DoWithMediaFiles")
		self.assertEqual(program.drop_data("text/plain", b"/music/a.mp3"), 3)
		self.assertEqual(program.drop_data("text/uri-list", b"https://example.org/a.mp3\r\n"), 3)
		self.assertEqual(program.drop_data("text/uri-list", b"# file:///a.mp3\r\n"), 3)
		self.assertEqual(program.drop_data("text/uri-list", b"file://elsewhere/a.mp3\r\n"), 3)
		color = b"".join(value.to_bytes(2, sys.byteorder) for value in [0xffff, 0, 0, 0xffff])
		self.assertEqual(program.drop_data("application/x-color", color), 0)
		self.assertEqual(program.count("DoWithMediaFiles"), before)

	def playlists(self, session, program):
		"""Returns the playlist that is saved to in the end, and the lines that it then has."""
		lists = os.path.join(session.home, "lists")
		os.makedirs(lists)
		title, = self.make(session, "lists/near Ü.mp3")
		for name in ["Windows.m3u", "mine ü 日本.m3u8"]:
			path = os.path.join(lists, name)
			with open(path, "wb") as file:
				file.write("\ufeff#EXTM3U\r\n#EXTINF:1,One\r\nnear Ü.mp3\r\n;\r\n \r\n"
					f"file://{title}\r\nC:\\Music\\a b.mp3\r\n".encode() + b"/x/\xff\xfe.mp3\r\n")
			self.assertEqual(program.drop([path]), 0)
			wait_for(lambda: program.title() == "using: >> " + path, "the playlist in the title")
		self.assertEqual(program.count("open a (Soundplay)-Playlist\n"), 2)
		self.assertEqual(program.count("ListStyleWithFile 1\n"), 2)
		one = os.path.join(session.home, "one.mp3")
		before = program.count(" add to mflist\n")
		self.assertEqual(program.drop([one]), 0)
		program.wait_for_text(" add to mflist\n", before + 1)
		return path, ["file://" + entry for entry in [title, title, lists + "/C:\\Music\\a b.mp3",
			os.fsdecode(b"/x/\xff\xfe.mp3"), one]]

	def test_what_a_file_manager_drags(self):
		with Session() as session:
			folder = os.path.join(session.root, "shown")
			os.makedirs(folder)
			title = os.path.join(folder, "one.mp3")
			make_title(title, 1, "One", "Somebody", 1)
			program = Program(session, os.path.join(session.root, "log"))
			session.run(["xdotool", "windowmove", "--sync", program.window, "750", "500"])
			session.start("xfe", ["xfe", folder], log=os.path.join(session.root, "xfe"))
			manager = session.window("Xfe - .*/shown", 30)
			left, top, _, _ = session.frame(manager)
			# The second row of the list; the first is the folder above.
			session.drag((left + 200, top + 215), program.at(300, 150))
			program.wait_for_text(" add to mflist\n")
			self.assertEqual(program.close(), 0)
			self.assertEqual(lines_of(self.playlist(session)), [title])


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
