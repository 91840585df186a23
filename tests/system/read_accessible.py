#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
# (Debian's own python3 has the bindings.) Starts a program and prints what a screen reader finds in its window, one line a control, as JSON. To be run on a
# session bus and a display of its own. With --press KEYS before the program, such as --press "alt+n Down", it presses
# these keys and prints all again, after a line that names them.
import json
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE_SECONDS = 20
REST_SECONDS = 0.2
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


def states_of(node):
    states = node.get_state_set()
    return [state.value_nick for state in states.get_states()]


def value_of(node):
    if "Value" not in node.get_interfaces():
        return None
    return [node.get_current_value(), node.get_minimum_value(), node.get_maximum_value()]


def text_of(node):
    """What stands in a field."""
    if "Text" not in node.get_interfaces():
        return None
    return Atspi.Text.get_text(node, 0, -1)


def labels_of(node):
    found = []
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            found += [relation.get_target(i).get_name() for i in range(relation.get_n_targets())]
    return found


def told_of(node):
    return {
        "role": node.get_role_name(),
        "name": node.get_name(),
        "description": node.get_description(),
        "labels": labels_of(node),
        "states": states_of(node),
        "value": value_of(node),
        "text": text_of(node),
    }


def lines_of(node):
    lines = [json.dumps(told_of(node), ensure_ascii=False)]
    if node.get_role_name() == "combo box":  # its items would take most of the time
        return lines
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            lines += lines_of(child)
    return lines


def program_of(pid):
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(index)
        if program is not None and program.get_process_id() == pid and program.get_child_count() > 0:
            return program
    return None


def window_of(pid):
    program = program_of(pid)
    return None if program is None else program.get_child_at_index(0)


def press(pid, keys):
    """Presses keys in the window of the program that was opened last."""
    found = subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--pid", str(pid)], stdout=subprocess.PIPE, text=True, check=True
    )
    subprocess.run(["xdotool", "windowfocus", "--sync", found.stdout.split()[-1]], check=True)
    time.sleep(REST_SECONDS)
    subprocess.run(["xdotool", "key", "--delay", "150", *keys.split()], check=True)


def rested_lines(pid):
    """What is heard of all windows once nothing changes any more."""
    until = time.monotonic() + PATIENCE_SECONDS
    before = None
    while time.monotonic() < until:
        time.sleep(REST_SECONDS)
        try:
            lines = lines_of(program_of(pid))
        except GLib.Error:  # something went away meanwhile
            continue
        if lines == before:
            break
        before = lines
    return before or []


def wait_for_window(program):
    until = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < until and program.poll() is None:
        try:
            window = window_of(program.pid)
            # Named as soon as it is whole.
            if window is not None and window.get_name():
                return window
        except GLib.Error:
            pass
        time.sleep(0.1)
    return None


def main():
    arguments = sys.argv[1:]
    steps = []
    while arguments[0] == "--press":
        steps.append(arguments[1])
        arguments = arguments[2:]
    launcher = subprocess.Popen([LAUNCHER, "--launch-immediately"])
    program = subprocess.Popen(arguments, stdin=subprocess.DEVNULL)
    try:
        window = wait_for_window(program)
        if window is None:
            print("no window is to be heard", file=sys.stderr)
            return 1
        print("\n".join(lines_of(window)))
        for keys in steps:
            press(program.pid, keys)
            print(json.dumps({"pressed": keys}))
            print("\n".join(rested_lines(program.pid)))
        return 0
    finally:
        program.terminate()
        program.wait()
        launcher.terminate()
        launcher.wait()


sys.exit(main())
