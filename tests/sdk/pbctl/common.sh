# What the tests of pbctl share: sourced with the program as the first argument.
pbctl=$1
failures=0

fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}

# needs_module FILE: ends the test as skipped where the library was built without the module.
needs_module() {
    [ -e "$1" ] && return
    echo "skipped: $1 is not built"
    exit 77
}

# run CODE ARGUMENTS...: runs pbctl, keeps its output in $out and its errors in $err, and checks its exit code.
run() {
    expected=$1
    shift
    out=$("$pbctl" "$@" 2>"$HOME/err")
    code=$?
    err=$(cat "$HOME/err")
    [ "$code" -eq "$expected" ] || fail "pbctl $*: code $code, expected $expected: $out $err"
}

has() { case $1 in *"$2"*) ;; *) fail "no \"$2\" in: $1" ;; esac; }
lacks() { case $1 in *"$2"*) fail "\"$2\" in: $1" ;; *) ;; esac; }

# equal WHAT ACTUAL EXPECTED
equal() { [ "$2" = "$3" ] || fail "$1: \"$2\", expected \"$3\""; }

finish() {
    [ "$failures" -eq 0 ] && echo "all passed"
    exit "$((failures > 0))"
}
