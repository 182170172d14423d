"""The panel on a display: a finger on its controls, and what it shows and keeps."""
import configparser
import os
import subprocess
import time

from displays import PATIENCE, Trouble, await_that
from picture import Picture

TAP = 0.06  # seconds
STEPS = 12  # of a finger that moves


class Panel:
    def __init__(self, program, display, pictures):
        self.program = program
        self.display = display
        self.pictures = pictures
        self.kept = []  # what writes the pictures
        self.process = None

    # ---- the program

    def start(self):
        places = self.display.path("places")
        environment = {**self.display.environment, "PLACES": places,
                       "XDG_CONFIG_HOME": self.display.path("config"),
                       "QT_QPA_GENERIC_PLUGINS": "places",
                       "QT_PLUGIN_PATH": os.environ["PLACES_PLUGINS"]}
        if os.path.exists(places):
            os.remove(places)
        self.process = self.display.started("panel.log", [self.program], environment)
        self.await_place("page Network")

    def stop(self):
        """Ends it as a device does that is switched off."""
        if self.process:
            self.process.terminate()
            self.process.wait(PATIENCE)

    def setting(self, group, key):
        file = configparser.ConfigParser()
        file.optionxform = str
        file.read(self.display.path("config/panel/panel.conf"))
        return file.get(group, key, fallback=None)

    # ---- where things are

    def places(self):
        if self.process.poll() is not None:
            raise Trouble(f"the panel has ended with {self.process.returncode}: see panel.log")
        try:
            with open(self.display.path("places")) as file:
                lines = [line.rstrip("\n").split(" ", 4) for line in file]
        except FileNotFoundError:
            return {}
        return {name: tuple(map(int, place)) for *place, name in lines}

    def await_place(self, name):
        return await_that(lambda: self.places().get(name), f'"{name}" on the screen')

    def await_no(self, name):
        await_that(lambda: name not in self.places(), f'no "{name}" on the screen any more')

    def area(self, place):
        """The pixels of the screen that belong to a place of the layout."""
        return tuple(length * self.display.scale for length in place)

    # ---- the finger

    def tap_at(self, place, seconds=TAP):
        """Presses the middle of a place for that long."""
        x, y, width, height = place
        self.display.press(x + width // 2, y + height // 2)
        time.sleep(seconds)
        self.display.release()

    def tap(self, *names):
        for name in names:
            self.tap_at(self.await_place(name))
            time.sleep(TAP)

    def hold(self, name, seconds):
        self.tap_at(self.await_place(name), seconds)

    def type(self, text):
        self.tap(*("key " + character for character in text))

    def drag(self, name, start, end):
        """Moves a finger over a control, between two points that are parts of its size."""
        x, y, width, height = self.await_place(name)
        for step in range(STEPS + 1):
            right, down = (a + (b - a) * step / STEPS for a, b in zip(start, end))
            go = self.display.move if step else self.display.press
            go(round(x + width * right), round(y + height * down))
            time.sleep(TAP / 4)
        time.sleep(TAP)
        self.display.release()

    # ---- what is seen

    def look(self):
        path = self.display.path("screen.ppm")
        self.display.capture(path)
        return Picture(path)

    def keep(self, name):
        """Keeps what was looked at last for people to look at, while the journey goes on."""
        picture = f"{len(self.kept) + 1:02}-{name.replace(' ', '-')}"
        taken = self.display.path(picture + ".ppm")
        os.rename(self.display.path("screen.ppm"), taken)
        path = os.path.join(self.pictures, picture + ".png")
        self.kept.append(subprocess.Popen(
            ["sh", "-c", 'convert "$0" -quality 10 "$1" && rm "$0"', taken, path]))

    def await_kept(self):
        for writer in self.kept:
            writer.wait()

    def await_sight(self, what, condition):
        """Looks again and again until the condition holds for what is seen, and keeps that."""
        try:
            await_that(lambda: condition(self.look()), what)
        finally:
            self.keep(what)
