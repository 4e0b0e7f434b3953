#!/usr/bin/env python3
"""What a desktop's global menu bar can do with a window's menus, beneath the age gate and after it.

Usage: global_menu_test.py PROGRAM, on an X display and a session bus of its own.
"""
import queue
import subprocess
import sys
import tempfile
import threading
import time

from gi.repository import Gio, GLib

REGISTRAR = "com.canonical.AppMenu.Registrar"
INTERFACE = f"""<node><interface name="{REGISTRAR}">
  <method name="RegisterWindow"><arg type="u" direction="in"/><arg type="o" direction="in"/></method>
  <method name="UnregisterWindow"><arg type="u" direction="in"/></method>
</interface></node>"""
PATIENCE_SECONDS = 60
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
menus = {}  # by window: whose they are, and where


def registrar(_bus, sender, _path, _interface, method, arguments, invocation):
    if method == "RegisterWindow":
        menus[arguments[0]] = sender, arguments[1]
    else:
        menus.pop(arguments[0], None)
    invocation.return_value(None)


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE_SECONDS
    while not condition():
        if time.monotonic() > end:
            sys.exit("not seen: " + what)
        GLib.MainContext.default().iteration(False) or time.sleep(0.01)
    print("ok  ", what, flush=True)


def call(place, method, arguments):
    """The answer; the host may ask the menu bar something first."""
    answers = []
    bus.call(*place, "com.canonical.dbusmenu", method, arguments, None, 0, -1, None,
             lambda _bus, answer: answers.append(answer))
    while not answers:
        GLib.MainContext.default().iteration(True)
    return bus.call_finish(answers[0]).unpack()


def entry(item, label):
    """The number of the entry with that label, at any depth."""
    number, properties, children = item
    found = [number] if properties.get("label", "").replace("_", "") == label else []
    return (found + [n for child in children if (n := entry(child, label)) is not None] + [None])[0]


def choose(place, label):
    """Whether there is such an entry, which is then chosen."""
    try:
        number = entry(call(place, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1], label)
        if number is not None:
            call(place, "Event", GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("i", 0), 0)))
        return number is not None
    except GLib.Error:  # a window says where its menus are before they are there
        return False


def main():
    bus.register_object("/com/canonical/AppMenu/Registrar", Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0],
                        registrar, None, None)
    owned = []
    Gio.bus_own_name_on_connection(bus, REGISTRAR, Gio.BusNameOwnerFlags.NONE, lambda *_: owned.append(1), None)
    wait_for("the desktop has a global menu bar", lambda: owned)
    with tempfile.TemporaryDirectory() as data:
        host = subprocess.Popen([sys.argv[1], data], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

        said = queue.Queue()
        threading.Thread(target=lambda: [said.put(line.strip()) for line in host.stdout], daemon=True).start()

        def next_line():
            wait_for("the host says something", lambda: not said.empty())
            return said.get()

        def tell(line):
            host.stdin.write(line + "\n")
            host.stdin.flush()
            return next_line()

        def is_chosen():
            return any(choose(place, "Save") for place in list(menus.values()))

        wait_for("an entry of the window's menu can be chosen", is_chosen)
        assert next_line() == "saved"
        before = list(menus.values())
        assert tell("ask") == "ask"
        wait_for("beneath the age gate the window has none there", lambda: not menus)
        assert not any(choose(place, "Save") for place in before)
        assert tell("dismiss") == "dismiss"  # and not "saved"
        wait_for("it can be chosen again", is_chosen)
        assert next_line() == "saved"
        host.stdin.close()
        wait_for("the host ends", lambda: host.poll() is not None)
        sys.exit(host.returncode)


if __name__ == "__main__":
    main()
