"""Usage: vobject_reads.py DUMP FOLDER  Has Python's vobject read the same files as our reader, and what our writer made."""

import glob
import io
import os
import subprocess
import sys

import vobject

NAMES = ["FN", "N", "TEL", "EMAIL", "ORG", "NOTE", "CATEGORIES"]
TYPES = ["CELL", "FAX", "HOME", "PREF", "VOICE", "WORK"]
NASTY = [
    "plain", "a;b,c\\d:e", "two\nlines", "\\n is no line break", "tail\\", "= =3D =\n=", "Jörg Müller", "é" * 200,
    "山田太郎" * 40, "🎉" * 60, "x" * 300, "word " * 60 + "end", "END:VCARD", "a\nEND:VCARD\nb", "BEGIN:VCARD " * 30 + ".",
    '"quoted"', "^n ^^ ^'", "z" * 63 + "END:VCARD",
]


def listed(value):
    return value if isinstance(value, list) else [value]


def shown(text):
    return text.replace("\r\n", "\n").replace("\n", "\\n").replace("\t", "\\t")


def texts(line):
    name = line.name.upper()
    if name == "N":
        n = line.value
        parts = [n.family, n.given, n.additional, n.prefix, n.suffix]
        return "|".join(",".join(shown(v) for v in listed(p)) for p in parts)
    if name in ("ORG", "CATEGORIES"):
        return "|".join(shown(v) for v in listed(line.value))
    return shown(line.value)


def types(line):
    words = [w.upper() for p in line.params.get("TYPE", []) for w in p.split(",")] + [w.upper() for w in line.singletonparams]
    return ",".join(t for t in TYPES if t in words)


def theirs(text):
    rows = []
    for number, card in enumerate(vobject.readComponents(io.StringIO(text, newline=""), allowQP=True), 1):
        for name in NAMES:
            for line in card.contents.get(name.lower(), []):
                rows.append((number, line.group or "", name, types(line), texts(line)))
    return rows


def ours(dump, path):
    out = subprocess.run([dump, path], check=True, stdout=subprocess.PIPE).stdout.decode()
    rows = []
    for line in out.splitlines():
        number, group, name, kinds, text = line.split("\t")
        if name == "N":
            text += "|" * (4 - text.count("|"))
        rows.append((int(number), group, name, kinds, text))
    return sorted(rows, key=lambda row: (row[0], NAMES.index(row[2])))


def compare(what, left, right):
    if left == right and left:
        return 0
    print("FAIL:", what)
    for a, b in zip(left + [None] * len(right), right + [None] * len(left)):
        if a != b:
            print("  ours:  ", a, "\n  theirs:", b)
    return 1


def main():
    dump, folder = sys.argv[1:]
    failures = 0
    files = sorted(glob.glob(os.path.join(folder, "*.vcf")))
    assert len(files) >= 8, folder
    for path in files:
        with open(path, "rb") as file:
            octets = file.read()
        try:
            text = octets.decode("utf-8")
        except UnicodeDecodeError:
            text = octets.decode("latin-1")
        # It takes quoted-printable without a charset for UTF-8 and stops at anything else.
        text = text.replace("ADR;WORK;PREF;ENCODING=", "ADR;WORK;PREF;CHARSET=ISO-8859-1;ENCODING=")
        failures += compare(path, ours(dump, path), theirs(text))
    for version in ("2.1", "3.0", "4.0"):
        # It parts texts of 2.1 at commas too, which are no separators there.
        texts_given = [t.replace(",", "") for t in NASTY] if version == "2.1" else NASTY
        out = subprocess.run([dump, "--made", version] + texts_given, check=True, stdout=subprocess.PIPE).stdout
        assert version == "2.1" or all(len(line) <= 75 for line in out.split(b"\r\n")), version
        cards = list(vobject.readComponents(io.StringIO(out.decode("utf-8"), newline=""), allowQP=True))
        read = [c.contents[n][0].value.replace("\r\n", "\n") for c in cards for n in ("fn", "note")]
        read += [c.n.value.family.replace("\r\n", "\n") for c in cards]
        failures += compare("written in " + version, [t for t in texts_given for _ in (0, 1)] + texts_given, read)
    print(len(files), "files,", failures, "failures")
    return failures != 0


sys.exit(main())
