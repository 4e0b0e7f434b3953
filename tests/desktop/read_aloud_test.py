#!/usr/bin/env python3
"""What a screen reader finds in the library's screens, over AT-SPI: the tree, actions, events.

Usage: read_aloud_test.py PROGRAM, on an X display with a window manager and a session bus of its own.
"""
import os
import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

PATIENCE_SECONDS = 60
heard = []
misses = 0


def role_of(node):
    """Its name, as at-spi2-core had it up to 2.52."""
    name = node.getRoleName()
    return "push button" if name == "button" else name


def note(event):
    try:
        heard.append((event.type, role_of(event.source), event.source.name, event.detail1))
    except Exception:  # the source is gone
        pass


def turn(seconds):
    loop = GLib.MainLoop()
    GLib.timeout_add(int(seconds * 1000), loop.quit)
    loop.run()


def check(what, holds):
    global misses
    misses += not holds
    print("ok  " if holds else "MISS", what, flush=True)


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < end:
        try:
            if condition():
                return check(what, True)
        except Exception:  # something went while it was asked
            pass
        turn(0.05)
    check(what, False)


def wait_to_hear(what, kind, role, name):
    """Awaits such an event since the last call of heard.clear()."""
    wait_for(what, lambda: any(event[0].startswith(kind) and event[1] == role and
                               name in event[2] and event[3] for event in heard))


def find(role, name=""):
    return pyatspi.findDescendant(
        app, lambda node: role_of(node) == role and node.name.startswith(name))


def actions(node):
    action = node.queryAction()
    return [action.getName(index) for index in range(action.nActions)]


def act(node, name):
    node.queryAction().doAction(actions(node).index(name))


def presses(node):
    """Whether that opened another dialog."""
    before = app[0][0].name
    try:
        act(node, "Press")
    except Exception:  # it is gone, or has no action
        pass
    turn(0.3)
    return app[0][0].name != before


def text_of(node):
    return node.queryText().getText(0, -1)


def states(node):
    return {pyatspi.stateToString(state) for state in node.getState().getStates()}


def show(node, depth=0):
    print("  " * depth + f"[{role_of(node)}] {node.name!r}")
    for child in node:
        show(child, depth + 1)


def key(*names):
    subprocess.run(["xdotool", "key", "--delay", "60", *names], check=True)


def application():
    return next((one for one in pyatspi.Registry.getDesktop(0)
                 if one is not None and one.name == "read_aloud" and one.childCount), None)


def judge_gate(frame):
    covered = find("push button", "Contact support")
    tool = find("push button", "Tool")
    act(find("push button", "Age gate"), "Press")
    wait_for("the gate is a dialog named by its header, alone in the window",
             lambda: [(role_of(child), child.name) for child in frame] ==
             [("dialog", "What’s your date of birth?")])
    show(app)
    check("it is modal", "modal" in states(frame[0]))
    check("the host's buttons are not in the tree", find("push button", "Age gate") is None)
    check("nor pressed by a reader that holds on to one", not presses(covered))
    check("nor are its tool window's", find("push button", "Tool") is None and not presses(tool))
    group, month = find("panel", "Date of birth"), find("spin button", "month")
    check("the wheels are a named group", group is not None and month.parent == group)
    heard.clear()
    month.queryValue().currentValue = 2
    wait_for("a turned wheel is told", lambda: any(
        event[0].startswith("object:property-change:accessible-value") for event in heard))
    check("the month is read by its name", text_of(month) == "February")
    act(month, "Increase")
    wait_for("and steps", lambda: text_of(month) == "March")
    links = [node.name for node in find("label", "Privacy Policy &")]
    check("the links are links of their text", links == ["Privacy Policy", "Terms of Service"])
    check("with a press", "Press" in actions(find("link", "Privacy")))
    heard.clear()
    for _ in range(5):
        key("Tab")
        if any("focused" in event[0] and event[1] == "link" for event in heard):
            break
        turn(0.3)
    wait_to_hear("a link is heard when Tab comes to it", "object:state-changed:focused", "link",
                 "Privacy Policy")
    find("spin button", "year").queryValue().currentValue = 2020
    heard.clear()
    wait_for("Confirm can be pressed", lambda: "sensitive" in states(find("push button", "Confirm")))
    act(find("push button", "Confirm"), "Press")


def judge_refusal(frame, program):
    wait_for("the refusal is a dialog named by its header",
             lambda: frame.childCount == 1 and role_of(frame[0]) == "dialog" and
             frame[0].name.startswith("We’re sorry"))
    wait_to_hear("the refusal is announced", "object:state-changed:showing", "notification",
                 "We’re sorry")
    link = find("link", "contact us")
    check("its one action is a link", link is not None)
    act(link, "Press")
    check("that calls the host", program.stdout.readline() == "contacted\n")


def judge_composer(frame):
    act(find("push button", "Contact support"), "Press")
    wait_for("no tool tip is read in it", lambda: find("tool tip") is None)
    wait_for("the composer is a dialog", lambda: [(role_of(child), child.name)
                                                  for child in frame] ==
             [("dialog", "New message")])
    show(app)
    for name in ("To", "Subject"):
        check(f"the field {name} has its name", find("text", name) is not None)
    heard.clear()
    act(find("push button", "Send"), "Press")
    wait_to_hear("sending is announced", "object:state-changed:showing", "notification", "Sending")
    wait_to_hear("so is the failure", "object:state-changed:showing", "notification", "Not sent")
    act(find("push button", "Save draft"), "Press")
    wait_to_hear("and where it was saved", "object:state-changed:showing", "notification", "Saved to")
    act(find("push button", "Done"), "Press")
    wait_for("the host is back", lambda: find("push button", "Contact support") is not None)


for kind in ("window", "focus", "object:state-changed", "object:property-change",
             "object:property-change:accessible-value", "object:text-changed",
             "object:children-changed"):
    pyatspi.Registry.registerEventListener(note, kind)
with tempfile.TemporaryDirectory() as folder:
    environment = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
    program = subprocess.Popen([sys.argv[1], folder], stdout=subprocess.PIPE, text=True,
                               env=environment)
    try:
        wait_for("the app is there", lambda: application() is not None)
        app = application()
        judge_composer(app[0])
        judge_gate(app[0])
        judge_refusal(app[0], program)
    finally:
        program.terminate()
        program.wait()
print("misses:", misses)
sys.exit(misses != 0)
