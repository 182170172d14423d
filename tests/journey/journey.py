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


class Journey(Panel):
    """A user's way through the panel, step by step."""

    def steps(self):
        return [self.starts, self.refuses_a_gateway, self.saves_the_network,
                self.asks_for_all_addresses, self.disables_the_fields, self.dims_the_screen,
                self.changes_the_theme, self.blurs_the_wallpaper, self.shows_the_storage,
                self.moves_on_its_own, self.scrolls, self.locks, self.opens_for_its_number_alone,
                self.remembers]

    # ---- what several steps see

    def share(self, picture, name, color):
        return picture.share(self.area(self.await_place(name)), color)

    def await_ground(self, what, theme):
        area = self.area(BARE)
        self.await_sight(what, lambda picture: picture.share(area, theme["ground"], 0) == 1)

    def await_toast(self, what, color, action):
        """The toast is seen with its icon, and afterwards what was there before it."""
        before = self.look()
        action()
        area = self.area(self.await_place("toast"))
        self.await_sight(what, lambda picture: picture.share(area, color) > ICON)
        self.await_no("toast")
        self.await_sight(what + " gone", lambda picture: picture.is_like(before, area))

    def await_text(self, what, name, is_there=True, ink=DARK["ink"]):
        self.await_sight(what, lambda picture: (self.share(picture, name, ink) > TEXT) == is_there)

    def await_change(self, what, names, action):
        """Each of the named places is seen to be another than before the action."""
        areas = [self.area(self.await_place(name)) for name in names]
        before = self.look()
        action()
        self.await_sight(what, lambda picture: all(
            picture.pixels(area) != before.pixels(area) for area in areas))

    def expect_kept(self, group, key, value):
        kept = self.setting(group, key)
        expect(f"{key} was to be {value}, is {kept}", kept == value)

    def clear(self, name):
        """Empties a field by holding the key that deletes."""
        self.tap(name)
        self.hold("key delete", 2.2)
        self.await_text(f"{name} emptied", name, False)

    # ---- the steps

    def starts(self):
        self.start()
        self.await_ground("dark at first", DARK)

    def refuses_a_gateway(self):
        self.await_text("an address", "address")
        self.clear("address")
        self.type("10.0.0.300")  # there is no such byte: the last digit is not taken
        self.await_toast("gateway refused", RED, lambda: self.tap("apply"))
        self.expect_kept("network", "address", None)

    def saves_the_network(self):
        self.clear("gateway")
        self.type("10.0.0.1")
        tile = self.await_place("page Display")
        self.await_toast("network saved", GREEN, lambda: self.apply_and_tap(tile))
        expect("the page was changed behind the dialog", "apply" in self.places())
        self.expect_kept("network", "address", "10.0.0.30")
        self.expect_kept("network", "gateway", "10.0.0.1")

    def apply_and_tap(self, place):
        """Taps what is behind the dialog for waiting and its blur."""
        area, bare = self.area(place), self.area(BARE)
        before = self.look()
        self.tap("apply")
        self.await_place("waiting")
        self.tap_at(place)
        self.await_sight("waiting", lambda picture: picture.pixels(area) != before.pixels(area)
                         and picture.brightness(bare) < LIT * before.brightness(bare))
        self.await_no("waiting")

    def asks_for_all_addresses(self):
        self.tap("mask", "key delete", "key delete")
        self.await_toast("mask incomplete", AMBER, lambda: self.tap("apply"))
        self.type(".0")

    def disables_the_fields(self):
        for what, is_there in ("fields disabled", False), ("fields enabled", True):
            self.tap("automatic")
            self.await_text(what, "address", is_there)

    def dims_the_screen(self):
        self.tap("page Display")
        self.await_place("brightness")
        ground = self.area(BARE)
        bright = self.look().brightness(ground)
        self.drag("brightness", (0.98, 0.5), (0.3, 0.5))
        self.await_sight("dimmed", lambda picture: picture.brightness(ground) < 0.5 * bright)
        kept = int(self.setting("display", "brightness"))
        expect(f"brightness was to be about 36, is {kept}", 32 <= kept <= 40)
        self.drag("brightness", (0.3, 0.5), (1, 0.5))
        self.await_ground("bright again", DARK)

    def changes_the_theme(self):
        self.tap("theme Light")
        self.await_ground("light", LIGHT)
        self.expect_kept("display", "theme", "Light")

    def blurs_the_wallpaper(self):
        self.await_change("blurred", ["wallpaper"],
                          lambda: self.drag("blur", (0.4, 0.5), (0.9, 0.5)))
        expect("the blur was to be saved", int(self.setting("display", "blur")) > 30)

    def shows_the_storage(self):
        self.tap("page Storage", "scan")
        self.await_sight("storage", lambda picture:
                         0.01 < self.share(picture, "ring", LIGHT["accent"]) < 0.5)

    def moves_on_its_own(self):
        self.tap("page About")
        self.await_change("picture and news moving", ["picture", "news"], lambda: None)

    def scrolls(self):
        self.await_change("scrolled", ["facts"],
                          lambda: self.drag("facts", (0.5, 0.8), (0.5, 0.2)))

    def locks(self):
        self.tap("lock")
        self.await_text("locked", "entry", False, WHITE)
        self.type("123")
        self.await_text("dots for digits", "entry", True, WHITE)
        self.hold("key delete", 1)
        self.await_text("dots deleted by holding", "entry", False, WHITE)

    def opens_for_its_number_alone(self):
        self.await_toast("wrong number", RED, lambda: self.type("12345678"))
        expect("a wrong number opens the panel", "entry" in self.places())
        self.type("2580")
        self.await_no("entry")
        self.await_ground("opened", LIGHT)

    def remembers(self):
        self.stop()
        self.start()
        self.await_ground("light after a restart", LIGHT)
        self.await_text("address after a restart", "address", True, LIGHT["ink"])


def travel(journey):
    journey.display.start()
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
    shutil.rmtree(pictures, ignore_errors=True)
    os.makedirs(pictures)
    with tempfile.TemporaryDirectory() as folder:  # a socket's path has to be short
        display = DISPLAYS[kind](folder, pictures, int(scale))
        journey = Journey(program, display, pictures)
        try:
            return travel(journey)
        finally:
            journey.stop()
            journey.await_kept()
            display.stop()


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
