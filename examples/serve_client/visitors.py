#!/usr/bin/env python3
"""Signs the visitors' book of the desktop as somebody at a mouse and a keyboard would, and looks whether it is there.

    examples/serve_client/visitors.py build/dev/bin/teskara [PICTURE]

A test in any language is made of the same: start `teskara serve`, write a request a line, read an answer a line.
"""

import json
import subprocess
import sys


class Interface:
    """An interface that `teskara serve` shows to nobody."""

    def __init__(self, program, *arguments):
        self.server = subprocess.Popen([program, "serve", *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                       text=True, encoding="utf-8")

    def ask(self, command, **fields):
        print(json.dumps({"command": command, **fields}), file=self.server.stdin, flush=True)
        answer = json.loads(self.server.stdout.readline())
        if not answer["ok"]:
            raise RuntimeError(f"{command}: {answer['error']}")
        return answer["result"]

    def close(self):
        self.server.stdin.close()
        return self.server.wait()


def main():
    interface = Interface(sys.argv[1])
    interface.ask("load", file="interfaces/desktop.xml")
    before = interface.ask("list")["list"]

    interface.ask("click", element="Name@Visitors")
    interface.ask("type", text="Ada")
    interface.ask("keys", keys="Tab")
    interface.ask("type", text="Grüße an alle!")
    interface.ask("click", element="Sign@Visitors")

    rows = interface.ask("get", expression="UIElement('Book@Visitors').Items")
    assert rows > 0, "nobody has signed"
    assert interface.ask("list")["list"] != before, "nothing new is drawn"
    if len(sys.argv) > 2:
        interface.ask("picture", file=sys.argv[2])
    assert interface.close() == 0
    print(f"{rows} in the book")


if __name__ == "__main__":
    main()
