#!/bin/sh
# Usage: bin.sh PBCTL. The way back for what was deleted or overwritten; control characters made visible.
set -u
. "$(dirname "$0")/common.sh"

esc=$(printf '\033')
run 0 add "Name=Anna ${esc}[31mRed" Mobile=+491715551234 --group Friends/Choir
run 0 add "Name=Bert"
run 0 list
has "$out" 'Anna \x1b[31mRed'
lacks "$out" "$esc"
run 0 bin
equal "an empty bin" "$out" "Entry	When	What	ID	Name	Mobile	officePhone	homePhone	email	remark	Groups"
run 0 delete 1
run 0 bin
has "$out" "deleted	1	Anna"
has "$out" 'Anna \x1b[31mRed	+491715551234'
has "$out" "	Friends/Choir"
run 0 undelete 1
equal "the new identifier" "$out" "3"
run 0 list --group Friends/Choir
has "$out" "3	Anna"
run 1 undelete 1
has "$err" "the bin has no entry 1"
run 2 undelete one
has "$err" '"one" is no identifier'
run 2 undelete
run 0 delete 2 3
run 1 undelete 3 99
equal "what could be brought back" "$out" "4"
run 0 bin --empty
has "$out" "1 entries removed"
run 0 bin
lacks "$out" "Bert"

finish
