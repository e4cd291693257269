#!/usr/bin/env bash
# Usage: simulated-texts.sh FOLDER  What is said beside a simulated device that is attached does not deny it: the hints
# of the device panel, the outbox and a call, in each language.
set -euo pipefail
denials='(no modem|modem is connected|kein modem|لا يوجد مودم|未连接)'
hints='IDS_HOST_DEVICE_HINT|IDS_HOST_OUTBOX_HINT|IDS_HINT'
status=0
files=0
for file in "$1"/linkhand_*.ts; do
    texts=$(grep -E -A1 "<source>($hints)</source>" "$file" | grep -F '<translation>')
    [ "$(wc -l <<<"$texts")" -ge 3 ] || { echo "FAIL: $file has not all hints"; status=1; }
    if grep -iE "$denials" <<<"$texts"; then
        echo "FAIL: $file denies the device"
        status=1
    fi
    files=$((files + 1))
done
[ "$files" -ge 4 ] || { echo "FAIL: only $files languages"; status=1; }
exit "$status"
