# launcher.sh PACKAGING CASE: installs the launchers, whose templates lie in that folder, with a
# stand-in for the program below a temporary folder, and goes through one case.
set -eu
packaging=$1
# In memory, where a host lets programs start from there: on a disk each flush takes its time.
work=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
printf '#!/bin/sh\n' >"$work/starts"
chmod +x "$work/starts"
"$work/starts" 2>/dev/null || {
  rm -r "$work"
  work=$(mktemp -d)
}
rm -f "$work/starts"
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
unset XDG_DATA_HOME DISPLAY WAYLAND_DISPLAY
HOME="$work/home of a user"
export HOME
mkdir -p "$HOME" "$work/usr/bin" "$work/tools"
PATH=$work/tools:$PATH
music_is() { # music_is FOLDER: what the desktop tells of where music lies
  printf '#!/bin/sh\necho "%s"\n' "$1" >"$work/tools/xdg-user-dir"
  chmod +x "$work/tools/xdg-user-dir"
}
music_is "$HOME/Music"
package=$work/usr/lib/kvr5software
folder=$HOME/.local/share/KVR5Software
for name in KVR5Software kvr5card; do
  sed -e "s/@PROGRAM@/$name/" -e "/^@FIRST_SETTINGS@/r $packaging/first-settings.sh" \
    -e '/^@FIRST_SETTINGS@/d' "$packaging/launcher.in" >"$work/usr/bin/$name"
  chmod +x "$work/usr/bin/$name"
done

fail() {
  echo "failed: $*" >&2
  exit 1
}
is() { [ "$1" = "$2" ] || fail "'$1' instead of '$2'"; }
holds() { is "$(cat "$folder/$1")" "$2"; }
kvr5card() { "$work/usr/bin/kvr5card" "$@"; }

# install VERSION [FILE...]: a package with these files beside the programs, all saying VERSION.
install() {
  version=$1
  shift
  rm -rf "$package"
  for file in "$@" KVR5Software kvr5card; do
    mkdir -p "$(dirname "$package/$file")"
    echo "$version" >"$package/$file"
  done
  for name in KVR5Software kvr5card; do
    printf '#!/bin/sh\necho %s: "$0" "$@"\n' "$version" >"$package/$name"
    chmod 755 "$package/$name"
  done
  (cd "$package" && sha256sum -- "$@" KVR5Software kvr5card >files.sha256)
}

# whole: the user's copy is that package, and nothing half done lies about.
whole() {
  cmp "$package/files.sha256" "$folder/.package/files"
  (cd "$folder" && sha256sum --quiet -c .package/files)
  is "$(ls -A "$folder/.package" | LC_ALL=C sort | tr '\n' ' ')" "files known "
}

first_start() {
  install 1 Help/English.htm "Help/Español.htm" source.mdb
  is "$(kvr5card new 'a name')" "1: $folder/kvr5card new a name"
  whole
  is "$(cat "$folder/KVR5Software.ini")" "$(settings_with "$HOME")"
  is "$("$work/usr/bin/KVR5Software" /C)" "1: $folder/KVR5Software /C"
  # where the user says that data belongs
  is "$(XDG_DATA_HOME="$work/data" kvr5card)" "1: $work/data/KVR5Software/kvr5card"
  is "$(XDG_DATA_HOME=relative kvr5card)" "1: $folder/kvr5card"
}

settings_with() { # settings_with FOLDER: the first settings, which lead to that folder
  printf '[Config]\r\n[Path]\r\nLastMp3Dir=C:'
  printf '%s' "$1" | tr / '\\'
  printf '\r'
}

# Music is looked for where the desktop keeps it, else in the user's own folder; where the settings
# can't keep its path, they say nothing of it.
first_music() {
  install 1 source.mdb
  begins_in() { # begins_in TEXT
    rm -rf "$folder"
    kvr5card >/dev/null
    holds KVR5Software.ini "$1"
  }
  mkdir "$HOME/Music" "$HOME/Música" "$HOME/a:b"
  begins_in "$(settings_with "$HOME/Music")"
  for music in "$HOME/Música" "$HOME/a:b" "$HOME/nowhere" relative ''; do
    music_is "$music"
    begins_in "$(settings_with "$HOME")"
  done
  rm "$work/tools/xdg-user-dir"
  begins_in "$(settings_with "$HOME")"
  home=$HOME
  HOME=$work/$(printf '%0*d' 98 0)
  mkdir "$HOME"
  folder=$HOME/.local/share/KVR5Software
  begins_in "$(printf '[Config]\r')"
  HOME=$home
}

# A copy that is up to date is not written to, and asking for help makes none.
quick_start() {
  install 1 source.mdb
  is "$(kvr5card --help)" "1: $package/kvr5card --help"
  is "$(kvr5card --version)" "1: $package/kvr5card --version"
  [ ! -e "$folder" ] || fail "asking for help made a folder"
  kvr5card >/dev/null
  find "$HOME" -exec touch -d '2001-01-01' {} +
  kvr5card >/dev/null
  is "$(find "$HOME" -newermt '2001-01-02')" ""
}

two_at_once() {
  install 1 Help/English.htm Language/English.lan source.mdb
  for n in 1 2 3 4 5 6; do
    kvr5card "$n" >"$work/said$n" &
    eval "job$n=$!"
  done
  for n in 1 2 3 4 5 6; do
    eval "wait \$job$n" || fail "start $n"
    is "$(cat "$work/said$n")" "1: $folder/kvr5card $n"
  done
  whole
}

update() {
  install 1 Help/English.htm Help/Old.htm source.mdb
  kvr5card >/dev/null
  printf '[Config]\r\nLanguageFile=Italiano.lan\r\n' >"$folder/KVR5Software.ini"
  install 2 Help/English.htm Help/New.htm source.mdb
  is "$(kvr5card)" "2: $folder/kvr5card"
  whole
  holds Help/New.htm 2
  [ ! -e "$folder/Help/Old.htm" ] || fail "a file that the package has no more is still there"
  holds KVR5Software.ini "$(printf '[Config]\r\nLanguageFile=Italiano.lan\r')"
  # settings that the user has deleted are not made anew
  rm "$folder/KVR5Software.ini"
  install 3 Help/English.htm source.mdb
  kvr5card >/dev/null
  [ ! -e "$folder/KVR5Software.ini" ] || fail "deleted settings came back"
}

downgrade() {
  install 2 Help/English.htm Help/New.htm
  kvr5card >/dev/null
  install 1 Help/English.htm
  is "$(kvr5card)" "1: $folder/kvr5card"
  whole
  [ ! -e "$folder/Help/New.htm" ] || fail "a file of the newer package is still there"
}

own_files() {
  install 1 Language/English.lan Language/Italiano.lan Help/Old.htm
  kvr5card >/dev/null
  mkdir -p "$folder/Projects/Hall" "$folder/Logs"
  for file in Language/Mine.lan Language/Deutsch.lan Language/Italiano.lan Help/Old.htm \
    Drives.ini Projects/Hall/Config.txt Logs/20260101.log; do
    echo mine >"$folder/$file"
  done
  echo damaged >"$folder/kvr5card" # but a program is the package's
  install 2 Language/English.lan Language/Italiano.lan Language/Deutsch.lan
  is "$(kvr5card)" "2: $folder/kvr5card"
  for file in Language/Mine.lan Language/Deutsch.lan Language/Italiano.lan Help/Old.htm \
    Drives.ini Projects/Hall/Config.txt Logs/20260101.log; do
    holds "$file" mine
  done
  holds Language/English.lan 2
  # a file that is missing comes with the next package
  rm "$folder/Language/English.lan"
  install 3 Language/English.lan
  kvr5card >/dev/null
  holds Language/English.lan 3
}

# killed VERSION: ended at each command of an update from 1 to 2 in turn, then started with VERSION.
killed() {
  mkdir "$work/bin"
  for tool in sort sync mv rm; do
    {
      printf '#!/bin/sh\nn=$(cat "$COUNT")\necho $((n - 1)) >"$COUNT"\n'
      printf '[ "$n" != 0 ] || kill -9 "$PPID"\n[ "$n" -gt 0 ] || exit 1\n'
      printf 'exec %s "$@"\n' "$(command -v $tool)"
    } >"$work/bin/$tool"
    chmod +x "$work/bin/$tool"
  done
  export COUNT="$work/count"
  n=0
  while :; do
    rm -rf "$HOME/.local"
    install 1 Help/English.htm Help/Old.htm source.mdb
    kvr5card >/dev/null
    install 2 Help/English.htm source.mdb
    echo $n >"$COUNT"
    (PATH="$work/bin:$PATH" kvr5card >/dev/null 2>&1) || true
    left=$(cat "$COUNT")
    install "$1" Help/English.htm source.mdb
    is "$(kvr5card)" "$1: $folder/kvr5card"
    whole
    is "$(ls "$folder/Help")" English.htm
    [ "$left" -lt 0 ] || break
    n=$((n + 1))
  done
  [ $n -gt 10 ] || fail "ended at $n places only"
}

killed_amid() { killed 2; }

# What a package cut off has left is not taken for the user's own.
killed_then_newer() { killed 3; }

# No room: the earlier program goes on, a first start says so.
full_disk() {
  install 1 source.mdb
  head -c 200000 /dev/zero >>"$package/source.mdb"
  (cd "$package" && sha256sum source.mdb KVR5Software kvr5card >files.sha256)
  status=0
  (ulimit -f 100; trap '' XFSZ; kvr5card) >"$work/out" 2>"$work/told" || status=$?
  is "$status" 3
  grep -q "not started: it could not be copied to $folder" "$work/told"
  install 1 source.mdb
  kvr5card >/dev/null
  install 2 source.mdb
  head -c 200000 /dev/zero >>"$package/source.mdb"
  (cd "$package" && sha256sum source.mdb KVR5Software kvr5card >files.sha256)
  (ulimit -f 100; trap '' XFSZ; kvr5card) >"$work/out" 2>"$work/told"
  is "$(cat "$work/out")" "1: $folder/kvr5card"
  grep -q "the earlier one is started" "$work/told"
  kvr5card >/dev/null
  whole
}

read_only_home() {
  [ "$(id -u)" != 0 ] || { # nothing is read-only to root, but a file is no folder to anybody
    rmdir "$HOME"
    echo >"$HOME"
  }
  install 1 source.mdb
  chmod a-w "$HOME"
  status=0
  kvr5card 2>"$work/told" || status=$?
  is "$status" 3
  grep -q "not started: it could not be copied to $folder" "$work/told"
}

no_home() {
  install 1 source.mdb
  status=0
  (unset HOME; kvr5card) 2>"$work/told" || status=$?
  is "$status" 3
  grep -q "HOME names no folder" "$work/told"
}

strange_home() {
  HOME="$work/-a  'home' of \$x; *"
  folder=$HOME/.local/share/KVR5Software
  mkdir "$HOME"
  install 1 "Help/Español.htm" source.mdb
  is "$(kvr5card '*' "a  b")" "1: $folder/kvr5card * a  b"
  whole
}

# The shell offers the languages of the user's folder, before there is one those of the package.
completion() {
  install 1 Language/English.lan
  script=$packaging/../docs/completion/kvr5card.bash
  offered() {
    PATH="$work/usr/bin:$PATH" bash -c "source '$script'; command=kvr5card; _kvr5card_languages ''" | tr '\n' ' '
  }
  is "$(offered)" "English "
  kvr5card >/dev/null
  echo >"$folder/Language/Mine.lan"
  is "$(offered)" "English Mine "
}

"$2"
