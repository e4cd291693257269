#!/usr/bin/python3
"""Usage: sync_commands.py SOURCE BUILD. The two commands of docs/sync.md, word for word but for the server's address,
bring the demo phonebook onto a server on loopback and back into a second, empty phonebook."""

import json
import os
import re
import subprocess
import sys

sys.dont_write_bytecode = True
SOURCE, BUILD = sys.argv[1:3]
sys.path.insert(0, SOURCE + "/tests/sdk/sync")
from server import Server, make_keyring

HOME = os.environ["HOME"]


def commands_of_the_page():
    with open(SOURCE + "/docs/sync.md") as page:
        text = page.read()
    block = re.search(r"\n## With a server\n.*?\n```\n(.*?)\n```\n", text, re.S).group(1)
    return block.splitlines()


class Phonebook:
    """A user with a data folder of his own."""

    def __init__(self, name):
        self.data = HOME + "/" + name
        self.environment = dict(os.environ, LINKHAND_DATA_DIR=self.data,
                                PATH=BUILD + ":" + HOME + "/keyring:" + os.environ["PATH"])

    def run(self, command, text=""):
        done = subprocess.run(command, shell=True, env=self.environment, input=text, stdout=subprocess.PIPE, text=True)
        if done.returncode != 0:
            sys.exit("%s: code %d: %s" % (command, done.returncode, done.stdout))
        return done.stdout

    def contacts(self):
        names = [str(one["id"]) for one in json.loads(self.run("pbctl list --json"))]
        found = json.loads(self.run("pbctl show --json " + " ".join(names))) if names else []
        for one in found:
            del one["id"]
            one["groups"].sort()
        return sorted(json.dumps(one, sort_keys=True) for one in found)


def main():
    commands = commands_of_the_page()
    if len(commands) != 2:
        sys.exit("docs/sync.md has these commands: %s" % commands)
    make_keyring(HOME + "/keyring")
    server = Server(HOME, "anna", "secret")
    try:
        one = Phonebook("one")
        one.run("pbctl import '%s/demo/contacts.csv'" % SOURCE)
        other = Phonebook("other")
        for book in (one, other):
            for command in commands:
                told = book.run(re.sub(r"https://\S+", server.url, command))
                keyring = re.search(r"goes into the keyring with: (.*)", told)
                if keyring:
                    book.run(keyring.group(1), "secret")
        wanted = one.contacts()
        found = other.contacts()
        if len(wanted) < 1000 or found != wanted:
            sys.exit("%d contacts, and %d of them in the second phonebook, which has %d"
                     % (len(wanted), len(set(wanted) & set(found)), len(found)))
        print("%d contacts have gone onto the server and into a second phonebook" % len(found))
    finally:
        server.stop()


main()
