#!/usr/bin/env python3
"""Drives zsg-console from Python, with the standard library only.

    python3 zsg_client.py path/to/zsg-console scene.json

The class is what to copy; below it stands a short session.
"""
import json
import subprocess
import sys


class CommandFailed(Exception):
    """A command was refused; `code` tells programs why, the text tells people."""

    def __init__(self, error):
        super().__init__(error["message"])
        self.code = error["code"]


class Client:
    """One console process. Commands are calls: client("color", "list") gives their result."""

    def __init__(self, console, scene):
        self.process = subprocess.Popen(
            [console, scene, "--jsonl"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")
        greeting = self.process.stdout.readline()
        if not greeting:
            raise OSError("the console did not start")
        self.greeting = json.loads(greeting)
        self.undo = {}  # the undo state after the last command
        self.events = []  # what the last command announced

    def __call__(self, *words):
        self.process.stdin.write(json.dumps({"command": words}) + "\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        self.undo, self.events = answer["undo"], answer["events"]
        if not answer["ok"]:
            raise CommandFailed(answer["error"])
        return answer.get("result", answer["output"])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with Client(*sys.argv[1:3]) as zsg:
        print(zsg.greeting["program"], zsg.greeting["protocol"])
        print(len(zsg("color", "list")), "colours")
        zsg("color", "set", "Teal", 0.0612461, 0.223228, 0.456411)
        print(zsg("color", "show", "Teal")["srgb"], zsg.undo["text"])
        zsg("undo", 1)
        print(zsg("color", "show", "Teal")["srgb"], zsg.undo["redo"], "to redo")
        try:
            zsg("color", "name", "Nobody", "Somebody")
        except CommandFailed as failure:
            print(failure.code + ":", failure)
