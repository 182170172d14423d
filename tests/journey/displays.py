"""The displays that a program can be operated on: an X server and a Wayland compositor of ours.

Each is started in a folder for its files and offers the same: press(), move() and release() in the
pixels of the layout, and capture(), a picture of what the display shows.
"""
import glob
import os
import subprocess
import time

SIZE = (1280, 800)  # of the layout
PATIENCE = 10  # seconds


class Trouble(Exception):
    """What cannot go on, told in words."""


def await_that(condition, what):
    """Returns the first value of the condition that is true."""
    deadline = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Trouble(f"in vain awaited: {what}")
        time.sleep(0.05)


class Display:
    def __init__(self, folder, logs, scale):
        self.folder = folder
        self.logs = logs
        self.scale = scale
        self.server = None

    def path(self, name):
        return os.path.join(self.folder, name)

    def started(self, log, command, environment, **options):
        with open(os.path.join(self.logs, log), "a") as file:
            return subprocess.Popen(command, stderr=file, env={**os.environ, **environment},
                                    **options)

    def run(self, *command):
        subprocess.run(command, check=True, cwd=self.folder,
                       env={**os.environ, **self.environment})

    def stop(self):
        if self.server:
            self.server.terminate()
            self.server.wait(PATIENCE)


class X11(Display):
    """Xvfb, with the pointer of xdotool."""

    def start(self):
        width, height = (length * self.scale for length in SIZE)
        self.server = self.started(
            "server.log", ["Xvfb", "-displayfd", "1", "-nolisten", "tcp",
                           "-screen", "0", f"{width}x{height}x24"], {}, stdout=subprocess.PIPE)
        number = self.server.stdout.readline().decode().strip()
        if not number:
            raise Trouble("Xvfb does not start: see server.log")
        self.environment = {"QT_QPA_PLATFORM": "xcb", "DISPLAY": ":" + number,
                            "QT_SCALE_FACTOR": str(self.scale)}

    def move(self, x, y):
        self.run("xdotool", "mousemove", str(x * self.scale), str(y * self.scale))

    def press(self, x, y):
        self.move(x, y)
        self.run("xdotool", "mousedown", "1")

    def release(self):
        self.run("xdotool", "mouseup", "1")

    def capture(self, path):
        self.run("import", "-silent", "-window", "root", "-depth", "8", path)


class Wayland(Display):
    """Weston without a screen, with the touch screen of tests/wayland."""

    socket = "journey"

    def start(self):
        # The folder of the socket is to be private, and its name short.
        os.chmod(self.folder, 0o700)
        with open(self.path("weston.ini"), "w") as file:
            file.write("[core]\nidle-time=0\n[shell]\npanel-position=none\nlocking=false\n")
        os.mkfifo(self.path("touch"))
        self.environment = {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": self.socket,
                            "XDG_RUNTIME_DIR": self.folder}
        width, height = SIZE
        self.server = self.started(
            "server.log",
            ["weston", "--config=" + self.path("weston.ini"), "--backend=headless-backend.so",
             "--use-pixman", "--shell=desktop-shell.so", "--debug", f"--width={width}",
             f"--height={height}", f"--scale={self.scale}", "--socket=" + self.socket,
             "--modules=" + os.environ["TOUCH_MODULE"]],
            {"XDG_RUNTIME_DIR": self.folder, "WESTON_TOUCH_PIPE": self.path("touch")})
        await_that(lambda: os.path.exists(self.path(self.socket)), "the compositor: see server.log")
        self.finger = open(self.path("touch"), "w", buffering=1)

    def move(self, x, y):
        self.finger.write(f"move {x} {y}\n")

    def press(self, x, y):
        self.finger.write(f"down {x} {y}\n")

    def release(self):
        self.finger.write("up\n")

    def capture(self, path):
        self.run("weston-screenshooter")
        (shot,) = glob.glob(self.path("wayland-screenshot-*.png"))
        self.run("convert", shot, "-depth", "8", path)
        os.remove(shot)


DISPLAYS = {"x11": X11, "wayland": Wayland}
