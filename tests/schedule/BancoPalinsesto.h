#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/Lingua.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/db/Walk.h"
#include "projects/CartellaProgetto.h"
#include "schedule/EditorPalinsesto.h"
#include "schedule/Segmenti.h"
#include "schedule/Spot.h"
#include "support/Banco.h"
#include "support/FaultyFileSystem.h"
#include "support/RigheDelDatabase.h"

namespace kvr5::test {

/// An editor of the schedule over a project named Hall.
class BancoPalinsesto : public testing::Test {
 protected:
  using Righe = std::vector<std::string>;

  /// Makes the project; its scheduler.mdb is empty.
  void Progetto(std::int16_t playerType, std::int16_t playerMode) {
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
    b.CreaProgetto("Hall", playerType, playerMode);
  }
  /// A segment of scheduler.mdb, before the editor is loaded; its ID. `ora` is "08.30", or "" for
  /// Null.
  std::int64_t Segmento(int giorno, const std::string& ora) {
    Connection real(b.Disco);
    EXPECT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
    EXPECT_FALSE(real.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" +
                              std::to_string(giorno) + "," +
                              (ora.empty() ? "Null" : "#" + ora + "#") + ")"));
    Recordset newest;
    EXPECT_FALSE(newest.Open(real, "SELECT TOP 1 * FROM [HEAD] ORDER BY ID DESC"));
    return newest.Number("ID");
  }
  /// A spot of scheduler.mdb.
  void Spot(int giorno, std::int64_t segmento, int pos, const std::string& nome,
            const std::string& cartella = "C:\\Music\\", const std::string& alias = "") {
    b.AggiungiRiga("scheduler.mdb", giorno, pos, nome, cartella, alias, static_cast<int>(segmento));
  }
  /// Segments "00.00", "00.01" ... of scheduler.mdb.
  void MoltiSegmenti(int giorno, int quanti) {
    constexpr int kMinuti = 60;
    Connection real(b.Disco);
    ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
    const Transaction all(real);
    for (int i = 0; i < quanti; ++i) {
      const std::string minute = std::to_string(100 + i % kMinuti).substr(1);
      ASSERT_FALSE(real.Execute("INSERT INTO [HEAD] ([NScheduler],[StartTime]) VALUES(" +
                                std::to_string(giorno) + ",#0" + std::to_string(i / kMinuti) + "." +
                                minute + "#)"));
    }
  }
  /// Spots "x.mp3" of scheduler.mdb in one segment, Pos 1 to `quanti`.
  void MoltiSpot(int giorno, std::int64_t segmento, int quanti) {
    Connection real(b.Disco);
    ASSERT_FALSE(real.Open(FileDelProgetto(b.C, "scheduler.mdb")));
    const Transaction all(real);
    for (int i = 1; i <= quanti; ++i) {
      ASSERT_FALSE(real.Execute(
          "INSERT INTO [List] ([FileName],[FilePath],[Pos],[NPlaylist],"
          "[IDSched]) VALUES('x.mp3','C:\\'," +
          std::to_string(i) + "," + std::to_string(giorno) + "," + std::to_string(segmento) + ")"));
    }
  }
  /// Runs plain SQL on a database of the project, as another program would, and gives the first
  /// column of its first row ("" for Null and for none).
  std::string Sql(const std::string& statement, const char* database = "scheduler.mdb") const {
    sqlite3* other = nullptr;
    std::string value;
    const auto path = b.Cartella.Host() / "program/Projects/Hall" / database;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &other, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    sqlite3_stmt* run = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(other, statement.c_str(), -1, &run, nullptr), SQLITE_OK)
        << statement;
    if (sqlite3_step(run) == SQLITE_ROW && sqlite3_column_type(run, 0) != SQLITE_NULL) {
      value = reinterpret_cast<const char*>(sqlite3_column_text(run, 0));
    }
    EXPECT_EQ(sqlite3_finalize(run), SQLITE_OK) << statement;
    sqlite3_close(other);
    return value;
  }
  /// Loads the editor and shows its first day.
  void Apri() {
    editor.Carica();
    editor.PrimoGiorno();
  }
  /// Adds a good file to the selected segment of the open editor.
  EsitoSpot Aggiungi(int slot, const std::string& nome, const std::string& cartella = "C:\\Music") {
    editor.FileMp3Valido = true;
    return AggiungiSpot(editor, slot, cartella, nome);
  }

  /// The segments of the day as the grid shows them, "08:30:00 a.mp3 b.mp3"; the current row
  /// stays. An empty place between is "-".
  Righe Griglia() {
    Righe rows;
    auto& grid = editor.rsSegmenti();
    if (!grid.IsOpen()) return {"closed"};
    const std::int64_t current = editor.SegmentoCorrente();
    EXPECT_FALSE(WalkRows(grid, [&] {
      std::string row = grid.Text("StartTime");
      std::string gap;
      for (int place = 1; place <= 8; ++place) {
        const std::string name = grid.Text("Spot" + std::to_string(place));
        if (name.empty()) {
          gap += " -";
        } else {
          row += gap + " " + name;
          gap.clear();
        }
      }
      rows.push_back(row);
      return true;
    }));
    if (current > 0) editor.VaiAlSegmento(current);
    return rows;
  }
  /// The spots of the selected segment, "1 a.mp3".
  Righe Dettaglio() {
    Righe rows;
    auto& spots = editor.rsDettaglio();
    if (!spots.IsOpen()) return {"closed"};
    EXPECT_FALSE(WalkRows(spots, [&] {
      rows.push_back(spots.Text("Pos") + " " + spots.Text("FileName"));
      return true;
    }));
    return rows;
  }
  /// Takes the next box, which is to be a notice of one button with these texts.
  void Avviso(const std::string& titolo, const std::string& testo) {
    const BoxVisto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, titolo);
    EXPECT_EQ(box.Testo, testo);
    EXPECT_TRUE(box.SiNo);
    EXPECT_TRUE(box.SoloOk);
    EXPECT_EQ(box.TestoOk, Parola("0140022"));
  }
  std::string Parola(const char* chiave) { return TestoLingua(b.C, chiave); }
  /// The start time in its two fields, "08.30".
  std::string Orario() const { return editor.txtOre + "." + editor.txtMin; }
  /// All spots of a database, "day/segment/Pos name", by day, segment and Pos.
  Righe Tutti(const char* database = "tmpScheduler.mdb") {
    return RigheDelDatabase(b, database,
                            "SELECT * FROM [List] ORDER BY [NPlaylist],[IDSched],[Pos] ASC",
                            [](const Recordset& row) {
                              return row.Text("NPlaylist") + "/" + row.Text("IDSched") + "/" +
                                     row.Text("Pos") + " " + row.Text("FileName");
                            });
  }
  /// A column of the same.
  Righe Colonna(const char* colonna, const char* database = "scheduler.mdb") {
    return RigheDelDatabase(b, database,
                            "SELECT * FROM [List] ORDER BY [NPlaylist],[IDSched],[Pos] ASC",
                            [colonna](const Recordset& row) { return row.Text(colonna); });
  }
  /// All segments of a database, "ID day 08:30:00", by ID.
  Righe Segmenti(const char* database = "tmpScheduler.mdb") {
    return RigheDelDatabase(
        b, database, "SELECT * FROM [HEAD] ORDER BY [ID]", [](const Recordset& row) {
          return row.Text("ID") + " " + row.Text("NScheduler") + " " + row.Text("StartTime");
        });
  }
  /// Runs a statement on a database, by a connection of its own.
  void Esegui(const std::string& statement, const char* database = "scheduler.mdb") {
    Connection other(b.Disco);
    ASSERT_FALSE(other.Open(FileDelProgetto(b.C, database)));
    ASSERT_FALSE(other.Execute(statement)) << statement;
  }
  std::string Leggi(const std::string& nome) const {
    return b.Cartella.Read("program/Projects/Hall/" + nome);
  }
  bool Ha(const std::string& nome) const {
    return b.Cartella.Exists("program/Projects/Hall/" + nome);
  }
  /// The project's folder, system form with its backslash.
  std::string Hall() const { return b.Percorso("program/Projects/Hall") + "\\"; }

  std::unique_ptr<FaultyFileSystem> guasti;
  Banco b{[this](FileSystem& inner) -> FileSystem& {
    guasti = std::make_unique<FaultyFileSystem>(inner);
    return *guasti;
  }};
  EditorPalinsesto editor{b.C};
};

}  // namespace kvr5::test
