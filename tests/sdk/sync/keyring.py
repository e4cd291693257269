#!/usr/bin/python3
"""Usage: keyring.py PBCTL. The server's password comes from the keyring, and stands in no file of ours."""

import os
import subprocess
import sys

sys.dont_write_bytecode = True
from server import Server, make_keyring

PBCTL = sys.argv[1]
HOME = os.environ["HOME"]
DATA = HOME + "/one"
SECRET = "pass word 'ä'"
failures = []


def check(what, text):
    if not what:
        failures.append(text)
        print("FAIL: " + text, file=sys.stderr)


def run(code, *arguments):
    done = subprocess.run([PBCTL, "--data-dir", DATA, *arguments], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True)
    check(done.returncode == code, "%s: code %d, expected %d: %s" % (arguments, done.returncode, code, done.stdout))
    return done.stdout


def next_minutes():
    with open(DATA + "/sync/next") as file:
        return int(file.read().split()[1])


def main():
    make_keyring(HOME + "/keyring")
    os.environ["PATH"] = HOME + "/keyring:" + os.environ["PATH"]
    server = Server(HOME, "anna", SECRET)
    try:
        run(0, "add", "Name=Anna", "Mobile=+491710000")
        told = run(0, "sync", "--setup", server.url, "--user", "anna")
        # Nobody has put it there: an error that is told, and the timer comes less often.
        check("vdirsyncer failed" in run(1, "sync", "--run"), "a password that is missing is not told of")
        check(next_minutes() == 30, "the pause after a failure")
        command = next(line.split(": ", 1)[1] for line in told.splitlines() if "secret-tool" in line)
        subprocess.run(command, shell=True, input="wrong", text=True, check=True)
        check("vdirsyncer failed" in run(1, "sync", "--run"), "a wrong password is not told of")
        check(next_minutes() == 60, "the pause after two failures")
        subprocess.run(command, shell=True, input=SECRET, text=True, check=True)
        run(0, "sync", "--run")
        check(not os.path.exists(DATA + "/sync/next"), "a pause after a success")
        # A command of the user's is run as it is written: whatever in it looks like a path.
        run(0, "sync", "--setup", server.url, "--user", "anna", "--password-command",
            "test 'a//b' != 'a/b' && cat '%s/other/../keyring//copy'" % HOME)
        os.makedirs(HOME + "/other")
        with open(HOME + "/keyring/copy", "w") as copy:
            copy.write(SECRET)
        run(0, "edit", "1", "remark=changed")
        check("Folder: 0 added, 1 changed" in run(0, "sync", "--run"), "the command's password")
        cards = os.listdir(HOME + "/server/collection-root/anna/book")
        check(len([name for name in cards if name.endswith(".vcf")]) == 1, "on the server: %s" % cards)
        for folder, _, files in os.walk(DATA):
            for name in files:
                with open(folder + "/" + name, "rb") as file:
                    check(SECRET.encode() not in file.read(), "the password is in %s/%s" % (folder, name))
    finally:
        server.stop()
    sys.exit(1 if failures else 0)


main()
