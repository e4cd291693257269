#!/usr/bin/python3
"""Usage: three_sides.py PBCTL. Two phonebooks, a server's address book and a foreign client of it.

Random edits on all of them; at each quiet point all hold the same, and what one side alone has changed is what it wrote.
A server (radicale) on loopback, vdirsyncer between it and each folder, vobject as the foreign client. LINKHAND_SEED and
LINKHAND_EDITS choose; LINKHAND_FULL=1 makes 5,000 edits, and has up to 60 of them between two quiet points."""

import glob
import json
import os
import random
import shutil
import subprocess
import sys
import time
import traceback

import vdirsyncer.cli
import vdirsyncer.cli.config
import vdirsyncer.cli.discover
import vdirsyncer.cli.tasks
import vdirsyncer.storage.dav
import vdirsyncer.storage.filesystem
import vobject

sys.dont_write_bytecode = True
from server import Server

PBCTL = sys.argv[1]
HOME = os.environ["HOME"]
SEED = int(os.environ.get("LINKHAND_SEED", "1"))
EDITS = int(os.environ.get("LINKHAND_EDITS", "5000" if os.environ.get("LINKHAND_FULL") else "200"))
BETWEEN = (5, 60 if EDITS > 1000 else 35)  # edits between two quiet points
MANY = 150  # contacts; from there on more go than come
DELETIONS = 10  # between two quiet points: more at once are held
rnd = random.Random(SEED)


def fail(text):
    sys.exit("seed %d: %s" % (SEED, text))


class Side:
    """A folder of cards that vdirsyncer keeps the same as the server's address book."""

    def __init__(self, name, server):
        self.name = name
        self.folder = HOME + "/" + name
        self.cards = self.folder + "/cards"
        self.before = self.folder + "/before"
        self.known = None  # what a list of names leads to, as long as nobody has synchronised
        os.makedirs(self.cards)
        os.makedirs(self.before)
        self.config = self.folder + "/config"
        command = json.dumps(["command", PBCTL, "sync", "--merge", "--before", self.before])
        with open(self.config, "w") as config:
            config.write('[general]\nstatus_path = "%s/status"\n'
                         '[pair book]\na = "here"\nb = "there"\ncollections = null\nconflict_resolution = %s\n'
                         '[storage here]\ntype = "filesystem"\npath = "%s"\nfileext = ".vcf"\n'
                         '[storage there]\ntype = "carddav"\nurl = "%s"\nusername = "user"\npassword = "x"\n'
                         % (self.folder, command, self.cards, server.url))
        self.vdirsyncer("discover")

    def vdirsyncer(self, command):
        """A process of its own, but one that need not load the program first: that takes longer than its work."""
        sys.stdout.flush()
        sys.stderr.flush()
        child = os.fork()
        if child == 0:
            self.become_vdirsyncer(command)
        code = os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])
        if code != 0:
            with open(self.folder + "/output") as output:
                fail("%s: vdirsyncer %s: %d %s" % (self.name, command, code, output.read()))

    def become_vdirsyncer(self, command):
        code = 70
        try:
            output = os.open(self.folder + "/output", os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600)
            for target, place in ((0, os.open("/dev/null", os.O_RDONLY)), (1, output), (2, output)):
                os.dup2(place, target)
            try:
                vdirsyncer.cli.app(["-v", "ERROR", "-c", self.config, command], prog_name="vdirsyncer")
                code = 0
            except SystemExit as end:
                code = end.code if isinstance(end.code, int) else 0 if end.code is None else 1
            except BaseException:
                traceback.print_exc()
            sys.stdout.flush()
            sys.stderr.flush()
        finally:
            os._exit(code)

    def local(self):
        pass

    def sync(self):
        self.known = None
        self.local()
        self.vdirsyncer("sync")
        # What both have in common now. Everybody replaces files and none writes into one.
        shutil.rmtree(self.before)
        os.makedirs(self.before)
        for path in glob.glob(self.cards + "/*.vcf"):
            os.link(path, self.before + "/" + os.path.basename(path))
        self.local()

    def names(self):
        if self.known is None:
            self.known = self.read_names()
        return self.known


class Phonebook(Side):
    def pbctl(self, *arguments, ok=(0,)):
        done = subprocess.run([PBCTL, "--data-dir", self.folder + "/data", *arguments], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, text=True)
        if done.returncode not in ok:
            fail("%s: pbctl %s: %d %s" % (self.name, " ".join(arguments), done.returncode, done.stderr))
        return done.stdout

    def local(self):
        result = json.loads(self.pbctl("sync", "--json", self.cards, ok=(0, 3)))
        for event in result["events"]:
            if event["kind"] != "conflict":
                fail("%s: %s" % (self.name, event))
        if result["here"]["held"] or result["there"]["held"]:
            fail("%s: held: %s" % (self.name, result))
        return result

    def contacts(self):
        found = {}
        names = self.read_names()
        for one in json.loads(self.pbctl("show", "--json", *map(str, names.values()))) if names else []:
            kept = {entry["property"].split(";")[0]: entry["value"] for entry in one["kept"]}
            found[one["Name"]] = {"mobile": one["Mobile"], "home": one["homePhone"], "email": one["email"],
                                  "note": one["remark"], "org": kept.get("ORG", ""),
                                  "groups": sorted(one["groups"])}
        return found

    def read_names(self):
        found = json.loads(self.pbctl("list", "--json"))
        names = {one["Name"]: one["id"] for one in found}
        if len(names) < len(found):
            fail("%s: somebody is there twice: %s" % (self.name, sorted(one["Name"] for one in found)))
        return names

    def add(self, name, fields, group):
        words = ["Name=" + name, "Mobile=" + fields["mobile"], "email=" + fields["email"]]
        self.names()[name] = int(self.pbctl("add", "--group", group, *words))

    FIELDS = {"mobile": "Mobile", "home": "homePhone", "email": "email", "note": "remark", "org": "ORG"}

    def change(self, name, field, value):
        self.pbctl("edit", str(self.names()[name]), "%s=%s" % (self.FIELDS[field], value))

    def delete(self, name):
        self.pbctl("delete", str(self.names().pop(name)))


class Foreign(Side):
    def __init__(self, name, server):
        self.parsed = {}  # path -> how the file looks, its card
        super().__init__(name, server)

    def card(self, path):
        state = os.stat(path)
        look = (state.st_mtime_ns, state.st_ctime_ns, state.st_size, state.st_ino)
        if self.parsed.get(path, (None,))[0] != look:
            with open(path, newline="") as file:
                self.parsed[path] = (look, vobject.readOne(file.read()))
        return self.parsed[path][1]

    def read(self):
        found = {}
        for path in glob.glob(self.cards + "/*.vcf"):
            card = self.card(path)
            if card.fn.value in found:
                fail("%s is there twice on the server" % card.fn.value)
            found[card.fn.value] = (path, card)
        return found

    @staticmethod
    def first(card, name, kind=None):
        for one in card.contents.get(name, []):
            types = [t.upper() for t in one.params.get("TYPE", [])]
            if kind is None or kind in types:
                return one
        return None

    def contacts(self):
        found = {}
        for name, (_, card) in self.read().items():
            def text(what, kind=None):
                one = self.first(card, what, kind)
                return "" if one is None else one.value[0] if what == "org" else one.value
            groups = [name for one in card.contents.get("categories", []) for name in one.value]
            found[name] = {"mobile": text("tel", "CELL"), "home": text("tel", "HOME"), "email": text("email"),
                           "note": text("note"), "org": text("org"), "groups": sorted(groups)}
        return found

    def read_names(self):
        return {name: path for name, (path, _) in self.read().items()}

    def write(self, path, card):
        self.parsed.pop(path, None)
        for one in list(card.contents.get("rev", [])):
            card.remove(one)
        card.add("rev").value = time.strftime("%Y%m%dT%H%M%SZ", time.gmtime())
        with open(path + ".tmp", "w", newline="") as file:
            file.write(card.serialize())
        os.rename(path + ".tmp", path)

    def add(self, name, fields, group):
        card = vobject.vCard()
        card.add("uid").value = "foreign-" + name.replace(" ", "-")
        card.add("fn").value = name
        card.add("n").value = vobject.vcard.Name(family=name)
        tel = card.add("tel")
        tel.value = fields["mobile"]
        tel.type_param = "CELL"
        card.add("email").value = fields["email"]
        card.add("categories").value = [group]
        card.add("x-foreign").value = "of " + name
        path = self.cards + "/foreign-" + name.replace(" ", "-") + ".vcf"
        self.write(path, card)
        self.names()[name] = path

    def change(self, name, field, value):
        path = self.names()[name]
        card = self.card(path)
        what, kind = {"mobile": ("tel", "CELL"), "home": ("tel", "HOME")}.get(field, (field, None))
        one = self.first(card, what, kind)
        if one is None:
            one = card.add(what)
            if kind:
                one.type_param = kind
        one.value = [value] if field == "org" else value
        self.write(path, card)

    def delete(self, name):
        os.remove(self.names().pop(name))


class Model:
    """What must be true at the next quiet point."""

    def __init__(self, state):
        self.state = state
        self.edits = {}  # name -> side -> field -> value
        self.added = {}
        self.deleted = {}  # name -> sides
        self.met = set()  # names of before somebody has synchronised in between, who may then delete what was changed

    def note(self, side, name, field, value):
        self.edits.setdefault(name, {}).setdefault(side, {})[field] = value

    def delete(self, side, name):
        self.edits.get(name, {}).pop(side, None)
        self.deleted.setdefault(name, set()).add(side)

    def meet(self):
        self.met |= set(self.edits) | set(self.deleted) | set(self.added)

    def check(self, found):
        for name in set(self.state) | set(self.added):
            edits = {side: fields for side, fields in self.edits.get(name, {}).items() if fields}
            if name in self.deleted:
                if not edits and name in found:
                    fail("%s was deleted and is there" % name)
                if edits and name not in found and name not in self.met:
                    fail("%s was changed and is gone" % name)
                continue
            if name not in found:
                fail("%s is gone" % name)
            was = dict(self.state.get(name) or self.added[name])
            for field in was:
                if field == "groups":
                    continue
                values = {fields[field] for fields in edits.values() if field in fields} or {was[field]}
                if found[name][field] not in values:
                    fail("%s: %s is %r, not of %r" % (name, field, found[name][field], values))
            if name in self.added and not set(was["groups"]) <= set(found[name]["groups"]):
                fail("%s: groups %r" % (name, found[name]["groups"]))
        for name in found:
            if name not in self.state and name not in self.added:
                fail("%s came out of nowhere" % name)


def value_for(field, number):
    return {"mobile": "+4917%07d" % number, "home": "030%07d" % number, "email": "m%d@example.org" % number,
            "note": "Note %d, with; all\nthat \\ breaks ä€" % number if number % 3 else "N%d" % number,
            "org": "Firm %d" % number}[field]


def quiet(sides):
    """Synchronises until nobody has anything to do; what all of them hold."""
    for turn in range(6 * len(sides)):
        sides[turn % len(sides)].sync()
        if turn < 2 * len(sides) - 2:
            continue  # the last but one of them has not heard of the last
        states = [side.contacts() for side in sides]
        if states[0] == states[1] == states[2]:
            for side in sides[:2]:
                result = side.local()
                if any(result[where][what] for where in ("here", "there") for what in ("added", "changed", "deleted")):
                    fail("%s is never quiet: %s" % (side.name, result))
            return states[0]
    for name in sorted(set(states[0]) | set(states[1]) | set(states[2])):
        versions = [state.get(name) for state in states]
        if versions[0] != versions[1] or versions[1] != versions[2]:
            print("%s:\n  %s" % (name, "\n  ".join(map(repr, versions))), file=sys.stderr)
    fail("the sides differ")


def edit(sides, model, number):
    side = rnd.choice(sides)
    names = sorted(side.names())
    kind = rnd.random()
    if kind < (0.12 if len(names) < MANY else 0.04) or not names:
        name = "Person %05d" % number
        fields = {"mobile": value_for("mobile", number), "email": value_for("email", number)}
        group = rnd.choice(["Friends", "Friends/Choir", "Work, paid"])
        side.add(name, fields, group)
        model.added[name] = dict(fields, home="", note="", org="", groups=[group])
    elif kind < 0.20 and len(model.deleted) < DELETIONS:
        name = rnd.choice(names)
        side.delete(name)
        model.delete(side.name, name)
    else:
        name = rnd.choice(names[:12] if kind < 0.6 else names)  # so that sides meet
        field = rnd.choice(["mobile", "home", "email", "note", "org"])
        value = value_for(field, number)
        side.change(name, field, value)
        model.note(side.name, name, field, value)


def main():
    server = Server(HOME)
    try:
        sides = [Phonebook("one", server), Phonebook("other", server), Foreign("foreign", server)]
        for number in range(60):
            sides[0].add("Start %02d" % number, {"mobile": value_for("mobile", number),
                                                "email": value_for("email", number)}, "Friends")
        state = quiet(sides)
        number = 100
        while number < 100 + EDITS:
            model = Model(state)
            for _ in range(min(rnd.randint(*BETWEEN), 100 + EDITS - number)):
                edit(sides, model, number)
                number += 1
                if rnd.random() < 0.1:
                    rnd.choice(sides).sync()
                    model.meet()
            state = quiet(sides)
            model.check(state)
        print("%d edits on three sides, %d contacts at the end" % (EDITS, len(state)))
    finally:
        server.stop()


main()
