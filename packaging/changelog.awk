# Turns CHANGELOG.md into a Debian changelog. Each release there has the heading "## VERSION, DATE" and a list; anything
# before the first release is left out.

function sign() {
  if (date != "")
    printf "\n -- %s  %s\n", maintainer, date
}

/^## [0-9]/ {
  sign()
  printf "%svorel-defense (%s) stable; urgency=medium\n\n", date == "" ? "" : "\n", substr($2, 1, length($2) - 1)
  # Releases of one day, the newest first, are an hour apart.
  ("LC_ALL=C date -R -u -d '" $3 " " 12 - releases[$3]++ ":00'") | getline date
}
/^- / && date != "" { print "  * " substr($0, 3) }
/^  / && date != "" { print "    " substr($0, 3) }
END { sign() }
