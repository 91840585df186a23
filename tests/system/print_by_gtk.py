#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A small program of GTK 3 that prints an empty page from its window as soon as that is there."""
import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # noqa: E402


def print_once(window, _event):
    window.disconnect_by_func(print_once)
    operation = Gtk.PrintOperation()
    operation.set_n_pages(1)
    operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, window)


window = Gtk.Window(title="A program")
window.connect("map-event", print_once)
window.show_all()
Gtk.main()
