"""A desktop session of its own for whole runs of the program: a virtual display with a window
manager, a session bus and a fresh home folder, run as an ordinary user.

VLC refuses to run as root; as_ordinary_user() starts the calling script again as somebody else.
"""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import urllib.parse


def as_ordinary_user():
	"""A user of its own name space, or where the system does not allow that, nobody."""
	if os.geteuid() != 0:
		return
	user = ["unshare", "--user", "--map-user=1000", "--map-group=1000"]
	if subprocess.run(user + ["true"], stderr=subprocess.DEVNULL).returncode != 0:
		user = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
	os.execvp(user[0], user + [sys.executable] + sys.argv)


def with_small_disk():
	"""Starts the calling script again, as an ordinary user who has a disk of a megabyte at the
	returned path; None where the system does not allow that."""
	folder = os.environ.get("SMALL_DISK")
	if folder is not None:
		return folder
	folder = tempfile.mkdtemp(prefix="vinyloh-disk-")
	user = ["unshare", "--user", "--map-user=1000", "--map-group=1000"]
	disk = ["unshare", "--user", "--map-root-user", "--mount", "sh", "-ec",
		f"mount -t tmpfs -o size=1m,mode=777 none {folder}; exec \"$@\"", "sh"] + user
	environment = {**os.environ, "SMALL_DISK": folder}
	status = None
	if subprocess.run(disk + ["true"], stderr=subprocess.DEVNULL).returncode == 0:
		status = subprocess.run(disk + [sys.executable] + sys.argv, env=environment).returncode
	os.rmdir(folder)
	if status is not None:
		sys.exit(status)
	as_ordinary_user()
	return None


def wait_for(condition, what, limit=15.0):
	"""Returns the condition's first true value; fails after the limit (seconds)."""
	end = time.monotonic() + limit
	while True:
		value = condition()
		if value:
			return value
		if time.monotonic() > end:
			raise AssertionError(f"waited {limit} s in vain for {what}")
		time.sleep(0.05)


def make_title(path, seconds, title, artist, track, album="Hörproben", frequency=440):
	"""Makes a sound file of that length; its name's ending chooses the format."""
	subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-y",
		"-f", "lavfi", "-i", f"sine=frequency={frequency}:duration={seconds}:sample_rate=44100",
		"-metadata", f"title={title}", "-metadata", f"artist={artist}",
		"-metadata", f"album={album}", "-metadata", f"track={track}", path],
		check=True, stdin=subprocess.DEVNULL)


def make_cover(path, top="#23395d", bottom="#d98c3f", size=500):
	subprocess.run(["convert", "-size", f"{size}x{size}", f"gradient:{top}-{bottom}",
		"-fill", "none", "-stroke", "#f5ead0", "-strokewidth", "9",
		"-draw", f"circle {size // 2},{size // 2} {size // 2},{size // 6}",
		"-draw", f"circle {size // 2},{size // 2} {size // 2},{size // 3}",
		"-fill", "#f5ead0", "-draw", f"circle {size // 2},{size // 2} {size // 2},{size * 9 // 20}",
		path], check=True)


def make_album(folder):
	"""Four titles of 3 to 6 seconds, each in another format, and a cover. Returns their paths."""
	os.makedirs(folder)
	titles = [
		("Erster Versuch.mp3", 4, "Erster Versuch", 262),
		("Übermut.flac", 3, "Übermut", 330),
		("Third one.ogg", 6, "Third one", 392),
		("Finale.wav", 5, "Finale", 523),
	]
	paths = []
	for track, (name, seconds, title, frequency) in enumerate(titles, 1):
		path = os.path.join(folder, name)
		make_title(path, seconds, title, "Die Köche", track, frequency=frequency)
		paths.append(path)
	make_cover(os.path.join(folder, "Folder.jpg"))
	return paths


def uri_of(path):
	return "file://" + urllib.parse.quote(os.fsencode(path))


class Session:
	def __init__(self, screen="1400x1000x24", keep=None):
		self.root = tempfile.mkdtemp(prefix="vinyloh-e2e-") if keep is None else keep
		self.home = os.path.join(self.root, "home")
		self.screen = screen
		self.processes = []
		self.environment = {
			"HOME": self.home,
			"PATH": os.environ.get("PATH", "/usr/bin:/bin"),
			"XDG_RUNTIME_DIR": os.path.join(self.root, "run"),
			"XDG_CONFIG_HOME": os.path.join(self.home, ".config"),
			"XDG_DATA_HOME": os.path.join(self.home, ".local/share"),
			"XDG_CACHE_HOME": os.path.join(self.home, ".cache"),
			"LANG": "C.UTF-8",
			"LC_ALL": "C.UTF-8",
			"QT_SCALE_FACTOR": "1",
		}
		for name in os.environ:
			if name.endswith("SAN_OPTIONS"):
				self.environment[name] = os.environ[name]

	def __enter__(self):
		for name in ["HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"]:
			os.makedirs(self.environment[name], exist_ok=True)
		os.chmod(self.environment["XDG_RUNTIME_DIR"], 0o700)
		self.write_player_settings()
		try:
			self.start_display()
			self.start_bus()
			self.start("openbox", ["openbox", "--sm-disable"])
			wait_for(lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in
				self.output(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]), "the window manager")
		except BaseException:
			self.end()
			raise
		return self

	def __exit__(self, kind, *_):
		if kind is not None:
			self.print_logs()
		self.end()

	def print_logs(self, lines=60):
		"""What the programs of a test that failed have printed last."""
		for name in sorted(os.listdir(self.root)):
			path = os.path.join(self.root, name)
			if os.path.isfile(path) and not name.endswith(".png"):
				with open(path, encoding="utf-8", errors="replace") as file:
					print(f"-- the end of {name}", *file.read().split("\n")[-lines:], sep="\n",
						file=sys.stderr)

	def end(self):
		for name, process in reversed(self.processes):
			if process.poll() is None:
				process.terminate()
				try:
					process.wait(5)
				except subprocess.TimeoutExpired:
					process.kill()
					process.wait()
			if process.stdout is not None:
				process.stdout.close()
		self.end_strays()
		shutil.rmtree(self.root, ignore_errors=True)

	def end_strays(self):
		"""Ends what the program has started and what is no child of ours: everything with our home."""
		mark = f"HOME={self.home}".encode()
		for pid in filter(str.isdigit, os.listdir("/proc")):
			try:
				with open(f"/proc/{pid}/environ", "rb") as file:
					if mark in file.read().split(b"\0"):
						os.kill(int(pid), signal.SIGKILL)
			except OSError:
				pass

	def write_player_settings(self):
		"""Players that ask nothing, need no sound card and keep real time."""
		vlc = os.path.join(self.environment["XDG_CONFIG_HOME"], "vlc")
		os.makedirs(vlc, exist_ok=True)
		with open(os.path.join(vlc, "vlcrc"), "w", encoding="utf-8") as file:
			file.write("[qt]\nqt-privacy-ask=0\nqt-updates-notif=0\nqt-error-dialogs=0\n"
				"[core]\naout=amem\nmetadata-network-access=0\n")
		mpv = os.path.join(self.environment["XDG_CONFIG_HOME"], "mpv")
		os.makedirs(mpv, exist_ok=True)
		with open(os.path.join(mpv, "mpv.conf"), "w", encoding="utf-8") as file:
			file.write("ao=null\n")

	def start_display(self):
		reader, writer = os.pipe()
		process = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", self.screen,
			"-nolisten", "tcp", "-noreset"], pass_fds=[writer], env=self.environment,
			stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
		os.close(writer)
		self.processes.append(("Xvfb", process))
		with os.fdopen(reader) as file:
			number = file.readline().strip()
		assert number, "Xvfb does not start"
		self.environment["DISPLAY"] = ":" + number

	def start_bus(self):
		process = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
			env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
		self.processes.append(("dbus-daemon", process))
		self.environment["DBUS_SESSION_BUS_ADDRESS"] = process.stdout.readline().strip()

	def start(self, name, command, log=None, **more):
		"""Starts a program in the session; its output goes to the log file, if one is given."""
		with open(log or os.devnull, "ab") as target:
			process = subprocess.Popen(command, env={**self.environment, **more},
				stdin=subprocess.DEVNULL, stdout=target, stderr=subprocess.STDOUT)
		self.processes.append((name, process))
		return process

	def output(self, command):
		done = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL,
			stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
		return done.stdout

	def run(self, command):
		return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL).returncode

	def window(self, title, limit=20.0, process=None):
		"""The id of the visible window, of that process if one is given, whose title matches the
		regular expression."""
		of_process = ["--all", "--pid", str(process.pid)] if process else []
		def find():
			found = self.output(["xdotool", "search", "--onlyvisible"] + of_process
				+ ["--name", title]).split()
			return found[0] if found else None
		return wait_for(find, f"the window {title!r}", limit)

	def visible_windows(self):
		"""How many windows, menus among them, are on the screen."""
		return self.output(["xwininfo", "-root", "-children"]).count("0x")

	def frame(self, window):
		"""Left, top, width, height of a window's contents on the screen."""
		text = self.output(["xwininfo", "-id", window])
		return tuple(int(re.search(name + r":\s*(-?\d+)", text).group(1)) for name in
			["Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"])

	def click(self, x, y, button=1):
		self.run(["xdotool", "mousemove", str(x), str(y), "click", str(button)])

	def key(self, *names):
		self.run(["xdotool", "key", "--clearmodifiers"] + list(names))

	def drop(self, window, x, y, paths):
		drop_files = os.environ["DROP_FILES"]
		return self.run([drop_files, window, str(x), str(y)] + [uri_of(path) for path in paths])

	def drop_data(self, window, x, y, kind, data):
		"""Drops what is no file; 3 if the window refuses it."""
		return self.run([os.environ["DROP_FILES"], window, str(x), str(y), "--as", kind, data.hex()])

	def drag(self, start, end):
		"""Drags with the pointer from one place of the screen to another, as slowly as a hand."""
		self.run(["xdotool", "mousemove", str(start[0]), str(start[1]), "sleep", "0.2",
			"mousedown", "1"])
		for step in range(1, 11):
			x, y = (int(a + (b - a) * step / 10) for a, b in zip(start, end))
			self.run(["xdotool", "mousemove", str(x), str(y), "sleep", "0.05"])
		self.run(["xdotool", "sleep", "0.3", "mouseup", "1"])

	def screenshot(self, path):
		self.run(["import", "-window", "root", path])

	# What players say of themselves on the session bus

	def bus_names(self, prefix):
		text = self.output(["gdbus", "call", "--session", "--dest", "org.freedesktop.DBus",
			"--object-path", "/", "--method", "org.freedesktop.DBus.ListNames"])
		return sorted(name for name in re.findall(r"'([^']*)'", text) if name.startswith(prefix))

	def player_property(self, name, what):
		return self.output(["gdbus", "call", "--session", "--dest", name, "--object-path",
			"/org/mpris/MediaPlayer2", "--method", "org.freedesktop.DBus.Properties.Get",
			"org.mpris.MediaPlayer2.Player", what])

	def playing_path(self, prefix):
		"""The file that the only player of that bus name plays; None if none or several run."""
		names = [name for name in self.bus_names(prefix) if "instance" in name] \
			or self.bus_names(prefix)
		if len(names) != 1:
			return None
		match = re.search(r"'xesam:url': <'file://([^']*)'>", self.player_property(names[0], "Metadata"))
		if not match:
			match = re.search(r"'xesam:url': <\"file://([^\"]*)\">",
				self.player_property(names[0], "Metadata"))
		return urllib.parse.unquote(match.group(1)) if match else None
