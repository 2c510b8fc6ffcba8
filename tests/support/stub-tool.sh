#!/bin/sh
# A tool that does what the file beside it says, for what a real tool rarely does. "<program>.behaviour" holds a word,
# and what the word needs after it.

self=$0
read -r behaviour rest < "$self.behaviour"
text() { tail -c +$((${#behaviour} + 2)) "$self.behaviour"; } # as it stands, with its line breaks

hang() {
    echo $$ > "$self.pid.new"
    mv "$self.pid.new" "$self.pid"
    exec sleep infinity
}
case $behaviour in
    print) text ;;
    complain) text >&2 ;;
    bad-bytes) printf 'caf\351 \377\376' ;; # no UTF-8
    hang) if [ "$*" = -h ]; then text; else hang; fi ;; # asked for help, it prints the text
    crash) kill -KILL $$ ;;
    arguments) for argument; do printf '[%s]' "$argument"; done ;;
    terminal) if (exec <> /dev/tty) 2> /dev/null; then printf open; else printf none; fi ;;
    helper) { sleep 0.2; printf late; } & ;; # a process that outlives it, and its output
    write) # the text goes into the file that is named after "-out"
        while [ $# -gt 1 ] && [ "$1" != -out ]; do shift; done
        if [ $# -gt 1 ]; then text > "$2"; fi ;;
    tell) touch "$self.record" ;; # that it was run
esac
