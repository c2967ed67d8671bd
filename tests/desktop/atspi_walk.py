# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads the first window over AT-SPI: prints its tree, and fails where something that takes the focus has no
name or is named by its value. Then presses the set button and waits for what is announced, turns to a tab
that was never in front, and reads on."""

import subprocess
import sys
import time

import pyatspi


def application():
    """The program, once it is on the bus with its window."""
    for _ in range(200):
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.name == "vicetoll" and app.childCount > 0:
                return app
        time.sleep(0.1)
    sys.exit("the program did not come on the bus")


def nodes(node, depth=0):
    yield node, depth
    for child in node:
        if child is not None:
            yield from nodes(child, depth + 1)


def text_of(node):
    try:
        text = node.queryText()
        return text.getText(0, text.characterCount)
    except NotImplementedError:
        return ""


def showing(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def check(window):
    """Prints the tree of what is in front and returns what is wrong in it."""
    wrong, focusable = [], 0
    for node, depth in nodes(window):
        if not showing(node):
            continue
        text = text_of(node)
        if node.name or text:
            value = f" = {text}" if text else ""
            print(f"{'  ' * depth}{node.getRoleName()} \"{node.name}\"{value}")
        if node.getState().contains(pyatspi.STATE_FOCUSABLE):
            focusable += 1
            if not node.name.strip() or (text and node.name == text):
                wrong.append(f"{node.getRoleName()} \"{node.name}\" = \"{text}\"")
    if window.getRole() != pyatspi.ROLE_FRAME:
        wrong.append(f"the window is a {window.getRoleName()}")
    if focusable < 20:
        wrong.append(f"only {focusable} nodes take the focus")
    return wrong


def announcement_of_a_press(window):
    """What comes up as a notification when the set button is pressed."""
    button = next(n for n, _ in nodes(window) if n.name.startswith("Set Past Period 1") and showing(n))
    button.queryAction().doAction(0)
    for _ in range(100):
        for node, _ in nodes(window):
            if node.getRole() == pyatspi.ROLE_NOTIFICATION and showing(node):
                return node.name
        time.sleep(0.05)
    return ""


def turned_to(window, tab, button):
    """Whether a press on the tab brings that button, to a reader who knows the tree from before."""
    page = next(n for n, _ in nodes(window) if n.getRole() == pyatspi.ROLE_PAGE_TAB and n.name == tab)
    page.queryAction().doAction(0)
    for _ in range(100):
        if any(n.name.startswith(button) and showing(n) for n, _ in nodes(window)):
            return True
        time.sleep(0.05)
    return False


def main():
    program = subprocess.Popen([sys.argv[1]])
    try:
        window = application()[0]
        wrong = check(window)
        told = announcement_of_a_press(window)
        print(f"announced: {told}")
        if "Out of Pocket Expense: $" not in told or "Total" not in told:
            wrong.append("a press is not announced")
        if not turned_to(window, "FUTURE", "Set Future Period 1"):
            wrong.append("a tab brings nothing")
        wrong += check(window)
        print("\n".join(f"WRONG: {line}" for line in wrong))
        return 1 if wrong else 0
    finally:
        program.terminate()
        program.wait()


sys.exit(main())
