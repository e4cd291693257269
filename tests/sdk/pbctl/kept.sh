#!/bin/sh
# Usage: kept.sh PBCTL. What a vCard holds without a field: in, shown, edited, and out again as it was.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1

cat >in.vcf <<'END'
BEGIN:VCARD
VERSION:3.0
FN:Anna
TEL;TYPE=CELL:+491715551234
TEL;TYPE=CELL:+491715550000
EMAIL:one@example.org
EMAIL;TYPE=HOME:two@example.org
ADR;TYPE=HOME:;;1 Street\, left;Town;;123;
BDAY:1990-01-31
X-LONG:0123456789012345678901234567890123456789012345678901234567890123456
 7890 folded
PHOTO;ENCODING=b;TYPE=JPEG:AAAABBBB
END:VCARD
END
run 0 import in.vcf
has "$out" "1 ADR, 1 BDAY, 1 EMAIL, 1 PHOTO, 1 TEL, 1 X-LONG"
run 0 show 1
has "$out" "Mobile	+491715551234"
has "$out" "TEL;TYPE=CELL	+491715550000"
has "$out" "EMAIL;TYPE=HOME	two@example.org"
has "$out" "PHOTO;ENCODING=b;TYPE=JPEG	AAAABBBB"
run 0 show --json 1
printf '%s' "$out" | python3 -c '
import json, sys
one, = json.load(sys.stdin)
assert one["id"] == 1 and one["Name"] == "Anna" and one["groups"] == [], one
kept = {entry["property"]: entry["value"] for entry in one["kept"]}
assert kept["ADR;TYPE=HOME"] == ";;1 Street\\, left;Town;;123;", kept
assert kept["X-LONG"].endswith("67890 folded"), kept
' || fail "the JSON of show: $out"
run 0 export out.vcf
for line in 'TEL;TYPE=CELL:+491715550000' 'EMAIL;TYPE=HOME:two@example.org' 'ADR;TYPE=HOME:;;1 Street\, left;Town;;123;' \
    'BDAY:1990-01-31' ' 7890 folded' 'PHOTO;ENCODING=b;TYPE=JPEG:AAAABBBB'; do
    grep -qF -- "$line" out.vcf || fail "not in the export: $line"
done
# Out and in again changes nothing.
run 0 --data-dir "$HOME/other" import out.vcf
run 0 --data-dir "$HOME/other" export again.vcf
cmp out.vcf again.vcf || fail "a second round changed something"

# An edit of one field leaves the rest; what is kept is edited by its name.
run 0 edit 1 Name=Anne remark=note
run 0 edit 1 'ORG=Acme;Dept' BDAY=
run 0 show 1
has "$out" "Name	Anne"
has "$out" "Mobile	+491715551234"
has "$out" "ORG	Acme;Dept"
has "$out" "ADR;TYPE=HOME"
lacks "$out" "BDAY"
run 0 edit 1 EMAIL=three@example.org
run 0 show 1
has "$out" "email	one@example.org"
has "$out" "EMAIL	three@example.org"
lacks "$out" "two@example.org"
run 1 edit 1 Mobile=abc
has "$err" "Mobile: not a telephone number"
run 2 edit 1 Nmae=x
has "$err" 'what is "Nmae=x"'
run 2 edit 1
run 1 edit 9 Name=x
has "$err" "not there"
run 1 show 9
run 0 add Name=Card --memory card
run 0 edit 1 Name=Other --memory card
run 2 edit 1 ORG=Acme --memory card
run 0 show 1 --memory card
has "$out" "Name	Other"

# The way back has all of it.
run 0 delete 1
entry=$("$pbctl" bin | sed -n 2p | cut -f 1)
run 0 undelete "$entry"
run 0 show "$out"
has "$out" "ORG	Acme;Dept"

# An old card's coded value comes out as the newer version has it.
printf 'BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Bert\r\nTEL;CELL:12\r\nADR;HOME;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:;;Stra=C3=9Fe 1, hinten;Ort;;;\r\nPHOTO;JPEG;ENCODING=BASE64:\r\n AAAA\r\n BBBB\r\n\r\nEND:VCARD\r\n' >old.vcf
run 0 --data-dir "$HOME/third" import old.vcf
run 0 --data-dir "$HOME/third" export new.vcf
grep -qF 'ADR;TYPE=HOME:;;Straße 1\, hinten;Ort;;;' new.vcf || fail "the address: $(cat new.vcf)"
grep -qF 'PHOTO;TYPE=JPEG;ENCODING=b:AAAABBBB' new.vcf || fail "the photo: $(cat new.vcf)"

finish
