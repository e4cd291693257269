"""Usage: fixtures.py PBCTL FOLDER  Imports files as programs write them, and holds each cell as Python's csv reads it
against what came in: it stands in its contact, in one of its groups, or its column or row is named as not taken."""

import csv
import glob
import io
import json
import os
import re
import subprocess
import sys
import unicodedata

KEYS = ["Name", "Mobile", "officePhone", "homePhone", "email", "remark"]


def decoded(octets):
    if octets[:2] in (b"\xff\xfe", b"\xfe\xff"):
        return octets.decode("utf-16")
    if octets[1::2][:40].count(0) > 10:
        return octets.decode("utf-16-le")
    try:
        return octets.decode("utf-8-sig")
    except UnicodeDecodeError:
        return octets.decode("cp1252")


def rows_of(text):
    """The titles, and for each row with something in it the line that it begins in and its cells."""
    first = 0
    if text.startswith("sep="):
        text = text.split("\n", 1)[1]
        first = 1
    title_line = re.split("[\r\n]", text, maxsplit=1)[0]
    separator = max(",;\t", key=title_line.count)
    # A line may end in CR alone.
    reader = csv.reader(io.StringIO(text, newline=""), delimiter=separator, strict=True)
    titles = next(reader)
    rows = []
    line = reader.line_num
    for row in reader:
        if any(cell.strip() for cell in row):
            rows.append((first + line + 1, row))
        line = reader.line_num
    return titles, rows


def plain(text):
    return " ".join(unicodedata.normalize("NFC", text).split())


def digits(text):
    return re.sub(r"\D", "", text.replace("(0)", ""))


def pieces(cell):
    for piece in re.split(r" ::: |;", cell):
        piece = piece.strip()
        piece = piece[2:] if piece.startswith("* ") else piece
        if piece and piece != "myContacts":
            yield piece


def stands_in(piece, contact):
    texts = [contact[key] for key in KEYS]
    if any(plain(piece) in plain(text) for text in texts):
        return True
    if piece in contact["groups"]:
        return True
    # A name that is filed by the family's.
    if set(plain(piece).replace(",", " ").split()) <= set(plain(contact["Name"]).split()):
        return True
    number = digits(piece)
    return len(number) > 2 and any(number in digits(text) for text in texts)


def is_label(title):
    return re.search(r" - (Label|Type)$", title) is not None


def check(program, path, folder):
    with open(path, "rb") as file:
        titles, rows = rows_of(decoded(file.read()))
    start = [program, "--data-dir", folder]
    taken = subprocess.run(start + ["import", "--format", "csv", path], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    said = taken.stderr.decode()
    contacts = json.loads(subprocess.run(start + ["list", "--json"], check=True, stdout=subprocess.PIPE).stdout)
    ids = [str(contact["id"]) for contact in contacts]
    shown = json.loads(subprocess.run(start + ["show", "--json", *ids], check=True, stdout=subprocess.PIPE).stdout)
    left = [title for title in titles if f'column "{title}" (' in said]
    name = os.path.basename(path)
    failures = []
    wanted = [(line, row) for line, row in rows if f"line {line}: not taken" not in said]
    if len(shown) != len(wanted):
        failures.append(f"{name}: {len(shown)} contacts of {len(wanted)} rows")
    for (line, row), contact in zip(wanted, shown):
        for i, cell in enumerate(row):
            title = titles[i] if i < len(titles) else ""
            named = title in left or f"column {i + 1} (" in said or f'line {line}: column "{title}"' in said
            if named or is_label(title):
                continue
            failures += [f"{name}: line {line}: {title}: {piece!r} is nowhere"
                         for piece in pieces(cell) if not stands_in(piece, contact) and not stands_in(cell, contact)]
    if (taken.returncode == 3) != bool(said) or taken.returncode not in (0, 3):
        failures.append(f"{name}: code {taken.returncode} with {said!r}")
    return failures


def main():
    program, folder = sys.argv[1:]
    paths = sorted(glob.glob(folder + "/*.csv") + glob.glob(folder + "/*.txt"))
    failures = [] if len(paths) >= 15 else ["there are too few files"]
    for number, path in enumerate(paths):
        failures += check(program, path, os.path.join(os.environ["HOME"], f"data{number}"))
    for failure in failures:
        print("FAIL:", failure)
    print("all passed" if not failures else f"{len(failures)} failures")
    return bool(failures)


if __name__ == "__main__":
    sys.exit(main())
