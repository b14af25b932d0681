cmake_policy(VERSION 3.25)
# Finishes an installation below /usr: PROGRAM is the folder of the program.
#
# The libraries are the system's, so the path to a folder of our own goes. Then the list by which a
# launcher sees whether a user's copy is up to date: name and digest of every file, executables last,
# so that a copy that has them has all else.
foreach(name KVR5Software kvr5card)
  file(RPATH_REMOVE FILE "${PROGRAM}/${name}")
endforeach()

set(list "${PROGRAM}/files.sha256")
file(REMOVE "${list}")
file(GLOB_RECURSE names LIST_DIRECTORIES OFF RELATIVE "${PROGRAM}" "${PROGRAM}/*")
list(SORT names)
list(REMOVE_ITEM names KVR5Software kvr5card)
set(text)
foreach(name IN LISTS names ITEMS KVR5Software kvr5card)
  file(SHA256 "${PROGRAM}/${name}" digest)
  string(APPEND text "${digest}  ${name}\n")
endforeach()
file(WRITE "${list}" "${text}")
