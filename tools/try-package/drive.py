#!/usr/bin/python3 -Wignore::DeprecationWarning
"""Uses Tessivo's window the way assistive technology does: finds controls by their accessible names and presses them.

drive.py COMMAND ARGUMENT...
  press PATTERN    waits for a control whose whole name the pattern matches, and presses it
  activate ACTION  asks the program for an action of its desktop entry; the bus starts it where it does not run
  begin            goes through the tour of a first start to the lists
  field            puts the keyboard focus into the screen's text field
  raise NAME N     turns the N-th of the wheels whose names begin with NAME to its next row; N counts from 0
  see NAME         waits until something whose name contains NAME is shown
  list             prints the role and name of all that is shown
"""
import re
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402 (the version is chosen first)

PATIENCE = 200  # seconds
PRESSING = ("Press", "Toggle")


def shown():
    desktop = Atspi.get_desktop(0)
    programs = [desktop.get_child_at_index(number) for number in range(desktop.get_child_count())]
    nodes = [node for node in programs if node and (node.get_name() or "").lower() == "tessivo"]
    while nodes:
        node = nodes.pop()
        try:
            states = node.get_state_set()
            if node.get_role_name() != "application" and not states.contains(Atspi.StateType.SHOWING):
                continue
            yield node
            nodes += [child for child in map(node.get_child_at_index, reversed(range(node.get_child_count()))) if child]
        except GLib.Error:
            continue  # it is gone by now


def wait_for(what, matches, count=1):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = [node for node in shown() if matches(node)]
        if len(found) >= count:
            return found
        time.sleep(0.2)
    sys.exit(f"There is no {what}. Shown are: " + ", ".join(repr(node.get_name()) for node in shown()))


def action(node, *names):
    """The number of the node's first action of those names; None where it has none."""
    actions = node.get_action_iface()
    count = actions.get_n_actions() if actions else 0
    return next((number for number in range(count) if actions.get_action_name(number) in names), None)


def act(node, *names):
    node.get_action_iface().do_action(action(node, *names))


def press(name):
    # A control that a screen sliding in covers takes no press yet.
    time.sleep(0.6)
    matches = re.compile(name).fullmatch
    act(wait_for(name, lambda node: matches(node.get_name() or "") and action(node, *PRESSING) is not None)[-1], *PRESSING)


def activate(action):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    bus.call_sync("org.tessivo.Tessivo", "/org/tessivo/Tessivo", "org.freedesktop.Application", "ActivateAction",
                  GLib.Variant("(sava{sv})", (action, [], {})), None, Gio.DBusCallFlags.NONE, PATIENCE * 1000)


def begin():
    for _ in range(10):
        names = [node.get_name() for node in wait_for("window", lambda node: node.get_name() in ("Add Event", "Continue"))]
        if "Add Event" in names:
            return
        press("Continue")
    sys.exit("The tour does not end")


def field():
    wait_for("text field", lambda node: node.get_role_name() in ("text", "entry"))[-1].get_component_iface().grab_focus()


def turn(name, number):
    wheels = wait_for(name, lambda node: node.get_role_name() == "spin button" and node.get_name().startswith(name),
                      int(number) + 1)
    act(wheels[int(number)], "Increase")


def see(name):
    wait_for(name, lambda node: name in (node.get_name() or ""))


def listing():
    for node in shown():
        print(node.get_role_name(), repr(node.get_name()))


if __name__ == "__main__":
    commands = {"activate": activate, "begin": begin, "press": press, "field": field, "raise": turn, "see": see,
                "list": listing}
    commands[sys.argv[1]](*sys.argv[2:])
