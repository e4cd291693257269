"""Usage: roundtrip.py PBCTL  Has Python's csv and vobject read what an export wrote, field by field, and an import, too."""

import csv
import json
import os
import subprocess
import sys

import vobject

KEYS = ["Name", "Mobile", "officePhone", "homePhone", "email", "remark"]
NASTY = [
    "plain", "a;b,c\\d:e", 'said "so"', "'quoted'", "tail\\", "\\n is no line break", "semi;colon", "com,ma", "Jörg Müller",
    "山田太郎", "🎉 party", "Zoe\u0308 composed", "عمر", "=1+1", "-dash", "END:VCARD", "x" * 100, "two  blanks", "a::: b", "^n ^^ ^'",
]
GROUPS = ["Friends", "Friends/Choir", "semi;colon", "back\\slash", "com,ma", "Été/山"]


def contacts():
    for i, text in enumerate(NASTY):
        note = text + "\nsecond line\n\n" + text[::-1] if i % 2 else text
        values = [text, f"+4417155{i:04}", f"030{i}" if i % 3 else "", f"*{i}#", f"p{i}@example.org" if i % 4 else "", note]
        yield dict(zip(KEYS, values)), sorted({GROUPS[i % len(GROUPS)], GROUPS[i * 5 % len(GROUPS)]})


def expected():
    return [(values, groups) for values, groups in contacts()]


class Phonebook:
    def __init__(self, program, folder):
        self.start = [program]
        self.folder = os.path.join(os.environ["HOME"], folder)

    def run(self, *words):
        command = self.start + [words[0], "--data-dir", self.folder, *words[1:]]
        return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.decode()

    def all(self):
        ids = [str(contact["id"]) for contact in json.loads(self.run("list", "--json"))]
        shown = json.loads(self.run("show", "--json", *ids))
        return [({key: contact[key] for key in KEYS}, sorted(contact["groups"])) for contact in shown]


def compare(what, found, wanted):
    failures = 0
    if len(found) != len(wanted):
        print(f"FAIL: {what}: {len(found)} contacts, expected {len(wanted)}")
        failures = 1
    for (values, groups), (wanted_values, wanted_groups) in zip(found, wanted):
        for key in KEYS:
            if values[key] != wanted_values[key]:
                print(f"FAIL: {what}: {key}: {values[key]!r}, expected {wanted_values[key]!r}")
                failures += 1
        if groups != wanted_groups:
            print(f"FAIL: {what}: groups: {groups!r}, expected {wanted_groups!r}")
            failures += 1
    return failures


def split_groups(column):
    names, name, escaped = [], "", False
    for c in column:
        if escaped or c not in ";\\":
            name += c
            escaped = False
        elif c == "\\":
            escaped = True
        else:
            names.append(name)
            name = ""
    return sorted(names + [name]) if column else []


def from_csv(path):
    with open(path, encoding="utf-8-sig", newline="") as file:
        rows = list(csv.DictReader(file, strict=True))
    return [({key: row[key].replace("\r\n", "\n") for key in KEYS}, split_groups(row["Groups"])) for row in rows]


def from_cards(path):
    kinds = {"CELL": "Mobile", "WORK": "officePhone", "HOME": "homePhone"}
    found = []
    with open(path, encoding="utf-8", newline="") as file:
        for card in vobject.readComponents(file.read()):
            values = dict.fromkeys(KEYS, "")
            values["Name"] = card.fn.value
            for tel in card.contents.get("tel", []):
                values[kinds[next(word for word in tel.params["TYPE"] if word in kinds)]] = tel.value
            for key, name in (("email", "email"), ("remark", "note")):
                values[key] = card.contents[name][0].value if name in card.contents else ""
            groups = [group for line in card.contents.get("categories", []) for group in line.value]
            found.append((values, sorted(groups)))
    return found


def main():
    program = sys.argv[1]
    home = os.environ["HOME"]
    first = Phonebook(program, "first")
    for values, groups in contacts():
        words = [f"{key}={value}" for key, value in values.items() if value]
        first.run("add", *[word for group in groups for word in ("--group", group)], "--", *words)
    failures = compare("what was added", first.all(), expected())
    for ending, read in (("csv", from_csv), ("vcf", from_cards)):
        path = os.path.join(home, "out." + ending)
        first.run("export", path)
        failures += compare(f"another reader of {ending}", read(path), expected())
        second = Phonebook(program, "second-" + ending)
        second.run("import", path)
        failures += compare(f"an import of {ending}", second.all(), expected())
        second.run("import", "--skip-existing", path)
        failures += compare(f"a second import of {ending}", second.all(), expected())
    print("all passed" if failures == 0 else f"{failures} failures")
    return failures > 0


if __name__ == "__main__":
    sys.exit(main())
