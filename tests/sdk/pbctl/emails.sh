#!/bin/sh
# Usage: emails.sh PBCTL. An e-mail address that the form would refuse comes in by no other way, and is not lost.
set -u
. "$(dirname "$0")/common.sh"
cd "$HOME" || exit 1

# One by one it is refused, and nothing is stored.
run 1 add Name=Ada email=nobody
has "$err" "email: not an e-mail address that the form takes"
run 1 add Name=Ada email=zoë@example.org
has "$err" "email: not an e-mail address that the form takes"
run 0 add Name=Ada email=ada@example.org
run 1 edit 1 email=nobody
has "$err" "email: not an e-mail address that the form takes"
run 0 list
has "$out" "ada@example.org"
lacks "$out" "nobody"

# From a file it goes into the note, and is named.
printf 'Name,Mobile,E-mail,Notes\nBo,1 x2,zoë@example.org,a friend\nCy,3,,\nDora,,at home,\nEmil,,  ,\n' >in.csv
run 3 import in.csv
has "$out" "4 of 4"
has "$err" 'line 2: column "E-mail": put into the note: not an e-mail address that the form takes'
has "$err" 'line 4: column "E-mail": put into the note: not an e-mail address that the form takes'
lacks "$err" "line 3"
lacks "$err" "line 5"
run 0 list
has "$out" "Bo	1				a friend\\n1 ext. 2\\nzoë@example.org"
has "$out" "Dora					at home"

# A card keeps it as it is and gives it out again.
printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Gero\r\nEMAIL:nobody\r\nEND:VCARD\r\n' >in.vcf
run 0 import in.vcf
has "$out" "1 EMAIL"
run 0 export out.vcf
has "$(cat out.vcf)" "EMAIL:nobody"

finish
