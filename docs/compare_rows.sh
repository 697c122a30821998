#!/bin/sh
# Fails if a row that the program prints doesn't stand in the page, and shows it.
# Call: compare_rows.sh PROGRAM PAGE
rows=$("$1") && [ -n "$rows" ] || exit 1
! printf '%s\n' "$rows" | grep -vFx -f "$2"
