-- The tables of every project database. source.mdb, the empty one, is made from this at build
-- time and copied for each new project.
--
-- Any program that knows SQLite may read it and add rows: no index uses the collation KVR5NOCASE,
-- which only this program has (text columns are compared by it without regard to case).

PRAGMA page_size = 4096;
PRAGMA auto_vacuum = FULL;           -- a shrinking list gives its space back
PRAGMA application_id = 0x4B565235;  -- "KVR5"
PRAGMA user_version = 1;

BEGIN;

-- A file in a list: a playlist's track, a segment's spot, an input's file.
CREATE TABLE List (
  ID        INTEGER PRIMARY KEY AUTOINCREMENT,
  FileName  TEXT COLLATE KVR5NOCASE,
  FilePath  TEXT COLLATE KVR5NOCASE,
  Alias     TEXT COLLATE KVR5NOCASE,
  Pos       INTEGER,
  NPlaylist INTEGER,
  IDSched   INTEGER
);

-- A named playlist, or a segment of a schedule with its time 'HH:MM:SS'.
CREATE TABLE HEAD (
  ID         INTEGER PRIMARY KEY AUTOINCREMENT,
  NScheduler INTEGER,
  Descript   TEXT COLLATE KVR5NOCASE,
  StartTime  TEXT
);

-- Length and order of one list, a spot by its place.
CREATE INDEX List_Place ON List (NPlaylist, Pos, IDSched);

COMMIT;
