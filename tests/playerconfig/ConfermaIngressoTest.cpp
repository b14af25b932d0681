#include <gtest/gtest.h>

#include "playerconfig/TabellaIngressi.h"
#include "support/Banco.h"

// Confirming a file for a combination of inputs: its steps, and what the log says of a failure.

namespace kvr5 {
namespace {

using test::Banco;

class Confirming : public testing::Test {
 protected:
  void SetUp() override {
    b.CreaProgetto("Hall", 4, 1);
    table.Apri();
    for (const std::int16_t code : std::initializer_list<std::int16_t>{9, 5, 200}) {
      table.Assegna(code, "old.mp3", "C:\\");
    }
    b.Messaggi.Volte = 0;
  }
  std::string Database() const { return b.Percorso("program/Projects/Hall/inputcfg.mdb"); }
  /// The file of a code as another program reads it from the disk; "" for a free code.
  std::string Stored(int code) {
    Connection other(b.C.Files);
    EXPECT_EQ(other.Open(Database()).Number(), 0);
    Recordset rows;
    const std::string query = "SELECT * FROM [List] WHERE [Pos]=" + std::to_string(code);
    EXPECT_EQ(rows.Open(other, query).Number(), 0);
    return rows.RecordCount() == 1 ? rows.Text("FileName") : "";
  }
  std::string Log() const { return b.Cartella.Read("program/Logs/20061020.log"); }
  /// The two lines about a failure.
  static std::string Lines(const Error& error, const std::string& file) {
    return "08:05:09 frmPlayerConfig/Routine cmdOKFileMp3: err n\xB0" +
           std::to_string(error.Number()) + ":" + error.Description() +
           "\r\n08:05:09 File: " + file + "\r\n";
  }

  Banco b;
  TabellaIngressi table{b.C};
};

TEST_F(Confirming, AnAssignedCodeLeavesTheCursorOnItsOwnRowAmongTheOthers) {
  table.Assegna(5, "a.mp3", "C:\\");
  EXPECT_EQ(table.Cursore().Number("Pos"), 5);
  EXPECT_EQ(table.Cursore().Text("FileName"), "a.mp3");
  table.Assegna(7, "b.mp3", "C:\\");
  EXPECT_EQ(table.Cursore().Number("Pos"), 7) << "a row that is new";
  EXPECT_EQ(table.Cursore().AbsolutePosition(), 2) << "the rows were read again, by Pos";
  EXPECT_EQ(table.Cursore().RecordCount(), 4);
}

TEST_F(Confirming, EventsRunOnceAfterTheRowIsWrittenAndBeforeTheRowsAreReadAgain) {
  std::string atTheEvent;
  b.Messaggi.Accade = [&] {
    atTheEvent = Stored(5);
    b.AggiungiRiga("inputcfg.mdb", 1, 3, "theirs.mp3", "C:\\", "3.mp3");
  };
  table.Assegna(5, "a.mp3", "C:\\");
  b.Messaggi.Accade = nullptr;
  EXPECT_EQ(b.Messaggi.Volte, 1);
  EXPECT_EQ(atTheEvent, "a.mp3");
  EXPECT_EQ(table.Cursore().RecordCount(), 4) << "a row that came during the events is seen";
  EXPECT_EQ(table.Cursore().Number("Pos"), 5);
}

TEST_F(Confirming, FreeingACodeRunsNoEvents) {
  table.Libera(5);
  EXPECT_EQ(b.Messaggi.Volte, 0);
  EXPECT_EQ(Stored(5), "");
}

TEST_F(Confirming, AClosedTableIsLoggedWithItsNumberAndWordsAndTheFile) {
  table.Chiudi();
  table.Assegna(5, "L'été.mp3", "C:\\");
  const Error closed(errors::ObjectClosed);
  ASSERT_EQ(closed.Number(), 3704);
  ASSERT_FALSE(closed.Description().empty());
  EXPECT_EQ(Log(), Lines(closed, "L'\xE9t\xE9.mp3"));
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Confirming, ALockedTableIsLoggedWithItsNumberAndWordsAndTheFile) {
  Connection other(b.C.Files);
  ASSERT_FALSE(other.Open(Database()));
  const Transaction lock(other);
  ASSERT_FALSE(other.Execute("UPDATE [List] SET [FileName]='theirs.mp3' WHERE [Pos]=5"));
  table.Assegna(5, "a.mp3", "C:\\");
  const Error first = b.C.Errore.Last();
  EXPECT_EQ(first.Number(), errors::CannotOpen);
  EXPECT_FALSE(first.Description().empty());
  EXPECT_EQ(Log(), Lines(first, "a.mp3"));
  table.Libera(9);
  EXPECT_EQ(Log(), Lines(first, "a.mp3") + Lines(b.C.Errore.Last(), " ")) << "no file: a blank";
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(Confirming, AGoodConfirmationLogsNothing) {
  b.C.Errore.Record(Error(errors::DeviceIo));
  table.Assegna(5, "a.mp3", "C:\\");
  table.Libera(9);
  EXPECT_FALSE(b.Cartella.Exists("program/Logs"));
}

TEST_F(Confirming, ADatabaseSpelledOtherwiseOpensAndListsItsRows) {
  table.Chiudi();
  std::filesystem::rename(b.Cartella.Host() / "program/Projects/Hall/inputcfg.mdb",
                          b.Cartella.Host() / "program/Projects/Hall/INPUTCFG.MDB");
  EXPECT_EQ(Stored(200), "old.mp3");
  table.Apri();
  ASSERT_TRUE(table.Aperta());
  EXPECT_EQ(table.Righe().size(), 3U);
  table.Assegna(5, "a.mp3", "C:\\");
  EXPECT_EQ(Stored(5), "a.mp3");
  table.Chiudi();
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/Hall/inputcfg.mdb")) << "no second file";
}

}  // namespace
}  // namespace kvr5
