# first_settings: the settings file of a program that never ran, on standard output. Without one the
# program would begin by telling that there is none, and without a folder for music it would look for
# it from the root of the disk.
first_settings() {
  printf '[Config]\r\n'
  for music in "$(xdg-user-dir MUSIC 2>/dev/null)" "${HOME:-}"; do
    # The settings keep 99 characters of a path, and these mean the same in every code page.
    case $(printf '%s' "$music" | LC_ALL=C tr -d 'A-Za-z0-9/._ -')$music in
      /*) if [ -d "$music" ] && [ ${#music} -lt 98 ]; then
        printf '[Path]\r\nLastMp3Dir=C:%s\r\n' "$(printf '%s' "$music" | tr / '\\')"
        break
      fi ;;
    esac
  done
}
