#!/usr/bin/env python3
"""Usage: peers.py [--contacts N] [--rounds N]

Sets linkhand beside Thunderbird's address book: the same contacts on the same display, the time to a visible list, the
memory of all processes (PSS), and the time from typing to a narrowed list. Needs a release build, Xvfb, openbox and
xdotool; Thunderbird alone may be missing, and is then left out with a word.

Both are looked at from outside: a list is there, and narrowed, at the last change of the picture before it stays as it
is. A blinking cursor is no change. Both have been started once before, so that their files are in memory.
"""

import argparse
import os
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import uuid

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
BUILD = os.path.join(ROOT, "build", "release")
WIDTH, HEIGHT = 1280, 800
CURSOR_ROWS = 40  # a change of fewer lines of the picture is a cursor or a tool tip
QUIET = 3.0
PATIENCE = 90.0
SOUGHT = "zoo"  # one in ten has it

PREFERENCES = {
    "app.donation.eoy.version.viewed": 999,
    "app.update.auto": False,
    "app.update.enabled": False,
    "datareporting.policy.dataSubmissionEnabled": False,
    "mail.provider.suppress_dialog_on_startup": True,
    "mail.rights.version": 1,
    "mail.shell.checkDefaultClient": False,
    "mail.spotlight.firstRunDone": True,
    "mailnews.start_page.enabled": False,
    "toolkit.telemetry.reportingpolicy.firstRun": False,
    "ui.caretBlinkTime": 0,
}


def contacts(count):
    for i in range(count):
        name = "Contact number %d" % (1000000 + i * 7919 % 1000003)
        note = ("Met at the zoo %d" if i % 10 == 0 else "A note on %d") % i
        # Thunderbird looks for names and addresses, and not into notes.
        mail = "%s%d@example.org" % (SOUGHT if i % 10 == 0 else "c", i)
        yield name, "+4917%d" % i, mail, note


class Screen:
    """A display of its own, whose picture lies in a file."""

    def __init__(self, folder):
        # The server picks a free number and writes it down.
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "%dx%dx24" % (WIDTH, HEIGHT), "-fbdir", folder,
             "-nolisten", "tcp"], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        self.windows = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        self.file = os.path.join(folder, "Xvfb_screen0")

    def picture(self):
        with open(self.file, "rb") as file:
            return file.read()[-WIDTH * HEIGHT * 4:]

    def last_change(self, before, begin):
        """Seconds from begin to the last change of the picture that was there before."""
        last = None
        while last is None or time.monotonic() - last < QUIET:
            time.sleep(0.01)
            now = time.monotonic()
            after = self.picture()
            line = WIDTH * 4
            if after != before and sum(after[at:at + line] != before[at:at + line]
                                       for at in range(0, len(after), line)) > CURSOR_ROWS:
                last, before = now, after
            if now - begin > PATIENCE:
                sys.exit("peers.py: the picture does not come to rest")
        return last - begin

    def close(self):
        for process in (self.windows, self.server):
            process.terminate()
            process.wait()


def descendants(process):
    children = {}
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open("/proc/%s/stat" % name) as file:
                parent = int(file.read().rsplit(")", 1)[1].split()[1])
        except OSError:
            continue
        children.setdefault(parent, []).append(int(name))
    found = [process]
    for one in found:
        found += children.get(one, [])
    return found


def memory(process):
    """PSS of a process and all below it, in MB."""
    total = 0
    for one in descendants(process):
        try:
            with open("/proc/%d/smaps_rollup" % one) as file:
                total += sum(int(line.split()[1]) for line in file if line.startswith("Pss:"))
        except OSError:
            continue
    return total / 1024


def keys(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def measure(screen, command):
    before, begin = screen.picture(), time.monotonic()
    program = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        shown = screen.last_change(before, begin)
        size = memory(program.pid)
        keys("key", "ctrl+f")
        time.sleep(1)
        before = screen.picture()
        keys("type", "--delay", "1", SOUGHT)
        narrowed = screen.last_change(before, time.monotonic())
    finally:
        os.killpg(program.pid, signal.SIGTERM)
        program.wait()
    return shown, size, narrowed


def linkhand(folder, count):
    rows = os.path.join(folder, "contacts.csv")
    with open(rows, "w") as file:
        file.write("Name,Mobile,email,remark\r\n")
        file.writelines("%s,%s,%s,%s\r\n" % one for one in contacts(count))
    data = os.path.join(folder, "linkhand")
    subprocess.run([os.path.join(BUILD, "pbctl"), "--data-dir", data, "import", rows], check=True,
                   stdout=subprocess.DEVNULL)
    return [os.path.join(BUILD, "linkhand"), "--data-dir", data]


def thunderbird(folder, count):
    profile = os.path.join(folder, "thunderbird")
    os.mkdir(profile)
    with open(os.path.join(profile, "user.js"), "w") as file:
        for name, value in PREFERENCES.items():
            said = str(value).lower() if isinstance(value, bool) else value
            file.write('user_pref("%s", %s);\n' % (name, said))
    book = sqlite3.connect(os.path.join(profile, "abook.sqlite"))
    book.executescript("""
        PRAGMA user_version = 4;
        CREATE TABLE properties (card TEXT, name TEXT, value TEXT);
        CREATE TABLE lists (uid TEXT PRIMARY KEY, name TEXT, nickName TEXT, description TEXT);
        CREATE TABLE list_cards (list TEXT, card TEXT, PRIMARY KEY(list, card));
        CREATE INDEX properties_card ON properties(card);
        CREATE INDEX properties_name ON properties(name);
    """)
    for name, number, mail, note in contacts(count):
        card = str(uuid.uuid4())
        text = ("BEGIN:VCARD\r\nVERSION:4.0\r\nFN:%s\r\nEMAIL;PREF=1:%s\r\nTEL;TYPE=cell:%s\r\nNOTE:%s\r\nUID:%s\r\n"
                "END:VCARD\r\n" % (name, mail, number, note, card))
        book.executemany("INSERT INTO properties VALUES (?, ?, ?)",
                         [(card, "DisplayName", name), (card, "PrimaryEmail", mail), (card, "_vCard", text)])
    book.commit()
    book.close()
    return ["thunderbird", "--no-remote", "--profile", profile, "-addressbook"]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--contacts", type=int, default=10000)
    parser.add_argument("--rounds", type=int, default=5)
    options = parser.parse_args()
    for tool in ("Xvfb", "openbox", "xdotool"):
        if shutil.which(tool) is None:
            sys.exit("peers.py: %s is not installed" % tool)
    if not os.path.exists(os.path.join(BUILD, "linkhand")):
        sys.exit("peers.py: there is no release build; packaging/build.sh release makes one")
    makers = {"linkhand": linkhand}
    if shutil.which("thunderbird") is None:
        print("peers.py: Thunderbird is not installed (apt-get install thunderbird), so that linkhand stands alone",
              file=sys.stderr)
    else:
        makers["Thunderbird"] = thunderbird
    with tempfile.TemporaryDirectory() as folder:
        os.environ.update(HOME=folder, XDG_RUNTIME_DIR=folder, LANG="C.UTF-8", QT_QPA_PLATFORM="xcb")
        commands = {name: make(folder, options.contacts) for name, make in makers.items()}
        screen = Screen(folder)
        try:
            time.sleep(1)
            best = {}
            for number in range(options.rounds + 1):
                for name, command in commands.items():
                    figures = measure(screen, command)
                    time.sleep(1)  # until its windows are gone from the picture
                    if number > 0:
                        best[name] = tuple(map(min, figures, best.get(name, figures)))
        finally:
            screen.close()
    print("\n%d contacts, the best of %d\n\n| | list on screen | memory (PSS) | list narrowed |\n|---|---|---|---|"
          % (options.contacts, options.rounds))
    for name, (shown, size, narrowed) in best.items():
        print("| %s | %.2f s | %.0f MB | %.0f ms |" % (name, shown, size, narrowed * 1000))


if __name__ == "__main__":
    main()
