#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A small program on libportal: asks for settings, then prints a document with them, as often as it is told to.

usage: print_by_libportal.py DOCUMENT TITLE TIMES [KEY=VALUE]...

KEY=VALUE are print settings that it asks with. The answers are written to standard output as JSON, one a line.
"""
import json
import sys

import gi

gi.require_version("Xdp", "1.0")
from gi.repository import GLib, Xdp  # noqa: E402

loop = GLib.MainLoop()
portal = Xdp.Portal()


def wait(start, finish):
    """Starts a call and runs the loop until it is answered."""
    answers = []

    def ready(_source, result, *_data):
        try:
            answers.append(finish(result))
        except GLib.Error as error:
            answers.append(error.message)
        loop.quit()

    start(ready)
    loop.run()
    return answers[0]


def say(what, answer):
    print(json.dumps({what: answer}), flush=True)


def main():
    document, title, times, *pairs = sys.argv[1:]
    settings = dict(pair.split("=", 1) for pair in pairs)
    asked = GLib.Variant("a{sv}", {key: GLib.Variant("s", value) for key, value in settings.items()})
    setup = GLib.Variant("a{sv}", {})
    answer = wait(
        lambda ready: portal.prepare_print(None, title, asked, setup, Xdp.PrintFlags.NONE, None, ready, None),
        portal.prepare_print_finish,
    )
    if not isinstance(answer, GLib.Variant):
        say("refused", answer)
        return
    answer = answer.unpack()
    say("prepared", answer)
    for _ in range(int(times)):
        printed = wait(
            lambda ready: portal.print_file(
                None, title, answer["token"], document, Xdp.PrintFlags.NONE, None, ready, None
            ),
            portal.print_file_finish,
        )
        say("printed", printed)


main()
