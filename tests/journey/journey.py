#!/usr/bin/env python3
"""Operates the panel as a user would and checks what is seen of it and what it keeps.

Usage: journey.py <x11|wayland> <scale> <panel> <folder for pictures and logs>
"""
import os
import shutil
import sys
import tempfile

from displays import DISPLAYS, Trouble
from panel import Panel

# The themes of the panel and the icons of its toasts.
DARK = {"ground": (0x14, 0x17, 0x1c), "ink": (0xf2, 0xf4, 0xf7), "accent": (0x3b, 0x82, 0xf6)}
LIGHT = {"ground": (0xe9, 0xed, 0xf2), "ink": (0x1a, 0x1f, 0x27), "accent": (0x25, 0x63, 0xeb)}
GREEN, AMBER, RED = (0x2f, 0xb3, 0x6d), (0xf2, 0xae, 0x2e), (0xe5, 0x48, 0x4d)
WHITE = (255, 255, 255)
LIT = 1.5  # times as bright is something else than a ground

BARE = (900, 20, 300, 60)  # right of a page's title
TEXT = 0.004  # a field's share that is ink, at least, if there is a text; a cursor is less
ICON = 0.005  # a toast's share that has the colour of its icon, at least


def expect(what, holds):
    if not holds:
        raise Trouble(what)


class Journey:
    def __init__(self, panel):
        self.panel = panel

    def steps(self):
        return [self.starts, self.refuses_a_gateway, self.saves_the_network,
                self.asks_for_all_addresses, self.disables_the_fields, self.dims_the_screen,
                self.changes_the_theme, self.blurs_the_wallpaper, self.shows_the_storage,
                self.moves_on_its_own, self.scrolls, self.locks, self.opens_for_its_number_alone,
                self.remembers]

    # ---- what several steps see

    def share(self, picture, name, color):
        return picture.share(self.panel.area(self.panel.await_place(name)), color)

    def has_ground(self, theme):
        area = self.panel.area(BARE)
        return lambda picture: picture.share(area, theme["ground"], 0) == 1

    def await_toast(self, action, color, what):
        """The toast is seen with its icon, and afterwards what was there before it."""
        panel = self.panel
        before = panel.look()
        action()
        area = panel.area(panel.await_place("toast"))
        panel.await_sight(what, lambda picture: picture.share(area, color) > ICON)
        panel.await_no("toast")
        panel.await_sight(what + " gone", lambda picture: picture.is_like(before, area))

    def await_text(self, name, what, is_there, ink):
        self.panel.await_sight(
            what, lambda picture: (self.share(picture, name, ink) > TEXT) == is_there)

    def clear(self, name, seconds):
        """Empties a field by holding the key that deletes."""
        self.panel.tap(name)
        self.panel.hold("key delete", seconds)
        self.await_text(name, f"{name} emptied", False, DARK["ink"])

    # ---- the steps

    def starts(self):
        self.panel.start()
        self.panel.await_sight("dark at first", self.has_ground(DARK))

    def refuses_a_gateway(self):
        panel = self.panel
        self.await_text("address", "an address", True, DARK["ink"])
        self.clear("address", 2.2)
        panel.type("10.0.0.300")  # there is no such byte: the last digit is not taken
        self.await_toast(lambda: panel.tap("apply"), RED, "gateway refused")
        expect("nothing was to be saved", panel.setting("network", "address") is None)

    def saves_the_network(self):
        panel = self.panel
        self.clear("gateway", 2.2)
        panel.type("10.0.0.1")
        tile = panel.await_place("page Display")
        self.await_toast(lambda: self.apply_and_tap(tile), GREEN, "network saved")
        expect("the page was changed behind the dialog", "apply" in panel.places())
        for key, value in ("address", "10.0.0.30"), ("gateway", "10.0.0.1"):
            expect(f"{key} was to be {value}, is {panel.setting('network', key)}",
                   panel.setting("network", key) == value)

    def apply_and_tap(self, place):
        """Taps what is behind the dialog for waiting and its blur."""
        panel = self.panel
        area, bare = panel.area(place), panel.area(BARE)
        before = panel.look()
        panel.tap("apply")
        panel.await_place("waiting")
        panel.tap_at(place)
        panel.await_sight("waiting", lambda picture: picture.part(area) != before.part(area)
                          and picture.brightness(bare) < LIT * before.brightness(bare))
        panel.await_no("waiting")

    def asks_for_all_addresses(self):
        self.panel.tap("mask", "key delete", "key delete")
        self.await_toast(lambda: self.panel.tap("apply"), AMBER, "mask incomplete")
        self.panel.type(".0")

    def disables_the_fields(self):
        self.panel.tap("automatic")
        self.await_text("address", "fields disabled", False, DARK["ink"])
        self.panel.tap("automatic")
        self.await_text("address", "fields enabled", True, DARK["ink"])

    def dims_the_screen(self):
        panel = self.panel
        panel.tap("page Display")
        panel.await_place("brightness")
        ground = panel.area(BARE)
        bright = panel.look().brightness(ground)
        panel.drag("brightness", (0.98, 0.5), (0.3, 0.5))
        panel.await_sight("dimmed",
                          lambda picture: picture.brightness(ground) < 0.5 * bright)
        kept = int(panel.setting("display", "brightness"))
        expect(f"brightness was to be about 36, is {kept}", 32 <= kept <= 40)
        panel.drag("brightness", (0.3, 0.5), (1, 0.5))
        panel.await_sight("bright again", self.has_ground(DARK))

    def changes_the_theme(self):
        self.panel.tap("theme Light")
        self.panel.await_sight("light", self.has_ground(LIGHT))
        expect("the theme was to be saved", self.panel.setting("display", "theme") == "Light")

    def blurs_the_wallpaper(self):
        panel = self.panel
        area = panel.area(panel.await_place("wallpaper"))
        before = panel.look().part(area)
        panel.drag("blur", (0.4, 0.5), (0.9, 0.5))
        panel.await_sight("blurred", lambda picture: picture.part(area) != before)
        expect("the blur was to be saved", int(panel.setting("display", "blur")) > 30)

    def shows_the_storage(self):
        panel = self.panel
        panel.tap("page Storage", "scan")
        panel.await_sight("storage", lambda picture:
                          0.01 < self.share(picture, "ring", LIGHT["accent"]) < 0.5)

    def moves_on_its_own(self):
        panel = self.panel
        panel.tap("page About")
        areas = [panel.area(panel.await_place(name)) for name in ("picture", "news")]
        before = panel.look()
        panel.await_sight("picture and news moving", lambda picture: all(
            picture.part(area) != before.part(area) for area in areas))

    def scrolls(self):
        panel = self.panel
        area = panel.area(panel.await_place("facts"))
        before = panel.look().part(area)
        panel.drag("facts", (0.5, 0.8), (0.5, 0.2))
        panel.await_sight("scrolled", lambda picture: picture.part(area) != before)

    def locks(self):
        panel = self.panel
        panel.tap("lock")
        self.await_text("entry", "locked", False, WHITE)
        panel.type("123")
        self.await_text("entry", "dots for digits", True, WHITE)
        panel.hold("key delete", 1)
        self.await_text("entry", "dots deleted by holding", False, WHITE)

    def opens_for_its_number_alone(self):
        panel = self.panel
        self.await_toast(lambda: panel.type("12345678"), RED, "wrong number")
        expect("a wrong number opens the panel", "entry" in panel.places())
        panel.type("2580")
        panel.await_no("entry")
        panel.await_sight("opened", self.has_ground(LIGHT))

    def remembers(self):
        self.panel.stop()
        self.panel.start()
        self.panel.await_sight("light after a restart", self.has_ground(LIGHT))
        self.await_text("address", "address after a restart", True, LIGHT["ink"])


def travel(display, panel):
    display.start()
    journey = Journey(panel)
    for step in journey.steps():
        name = step.__name__.replace("_", " ")
        try:
            step()
        except Trouble as trouble:
            print(f"FAILED  {name}: {trouble}")
            return 1
        print(f"ok      {name}", flush=True)
    return 0


def main(kind, scale, program, pictures):
    folder = tempfile.mkdtemp()  # a socket's path has to be short
    shutil.rmtree(pictures, ignore_errors=True)
    os.makedirs(pictures)
    display = DISPLAYS[kind](folder, int(scale))
    panel = Panel(program, display, pictures)
    try:
        return travel(display, panel)
    finally:
        panel.stop()
        panel.await_kept()
        display.stop()
        for log in "server.log", "panel.log":
            if os.path.exists(display.path(log)):
                shutil.copy(display.path(log), pictures)
        shutil.rmtree(folder)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
