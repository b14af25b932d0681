#include "playlists/BancoSalva.h"
#include "playlists/BraniPlaylist.h"
#include "playlists/ImportaPlaylist.h"
#include "playlists/NomiPlaylist.h"

namespace kvr5 {
namespace {

using testing::ElementsAre;

/// What is left of the answers to questions and notices.
class Answers : public test::BancoSalva {
 protected:
  static constexpr std::uint8_t kEarlier = 77;

  /// The answer that `ask` leaves; the question finds none.
  int After(Risposta answer, const std::function<void()>& ask) {
    b.C.Stato.RispostaSiNo = kEarlier;
    b.Finestre.SuBox = [this](const test::BoxVisto&) { EXPECT_EQ(b.C.Stato.RispostaSiNo, 0); };
    b.Finestre.Rispondi(answer);
    ask();
    b.Finestre.Prossimo();
    b.Finestre.SuBox = nullptr;
    return b.C.Stato.RispostaSiNo;
  }
  int AfterNotice(const std::function<void()>& show) {
    b.C.Stato.RispostaSiNo = kEarlier;
    show();
    EXPECT_TRUE(b.Finestre.Prossimo().SoloOk);
    return b.C.Stato.RispostaSiNo;
  }
};

TEST_F(Answers, ToEmptyingThePlaylistAreKept) {
  Progetto(4, 5);
  Brano(1, 1, "a.mp3");
  editor.Carica();
  const auto ask = [&] { RimuoviTuttiFile(editor); };
  EXPECT_EQ(After(Risposta::No, ask), 2);
  EXPECT_EQ(After(Risposta::Annulla, ask), 0) << "closed by the window's button";
  EXPECT_THAT(Griglia(), ElementsAre("1 a.mp3"));
  EXPECT_EQ(After(Risposta::Si, ask), 1);
}

TEST_F(Answers, ToRemovingAPlaylistAreKept) {
  Progetto(3, 9);
  Nome("A", 1);
  editor.Carica();
  const auto ask = [&] { RimuoviPlaylist(editor); };
  EXPECT_EQ(After(Risposta::No, ask), 2);
  EXPECT_EQ(After(Risposta::Annulla, ask), 0);
  EXPECT_EQ(editor.Voci().size(), 1U);
  EXPECT_EQ(After(Risposta::Si, ask), 1);
}

TEST_F(Answers, ToTheSaveAreKept) {
  for (const std::int16_t mode : std::initializer_list<std::int16_t>{4, 5}) {
    for (const auto& [answer, number] : std::vector<std::pair<Risposta, int>>{
             {Risposta::No, 2}, {Risposta::Annulla, 0}, {Risposta::Si, 1}}) {
      Progetto(4, mode);
      Track(1, 1, "a.mp3");
      editor.Carica();
      EXPECT_EQ(After(answer, [&] { SalvaPlaylist(editor, progress); }), number);
      editor.Chiudi();
    }
  }
}

TEST_F(Answers, ToNoticesAreAYes) {
  Progetto(3, 9);
  Nome("A", 1);
  Riempi(500);
  editor.Carica();
  EXPECT_EQ(AfterNotice([&] { AggiungiFile(editor, "C:\\", "a.mp3"); }), 1);
  EXPECT_EQ(
      AfterNotice([&] { AggiungiPlaylist(editor, [&] { b.C.Stato.NomePlaylistScelta = "A"; }); }),
      1);
  EliminaPlaylist(editor, 1);
  EliminaPlaylist(editor, 2);
  CaricaNomiPlaylist(editor);
  EXPECT_EQ(AfterNotice([&] { AggiungiFile(editor, "C:\\", "a.mp3"); }), 1);
}

TEST_F(Answers, ArentTouchedByAMessageOfARun) {
  Progetto(4, 5);
  Riempi(500);
  editor.Carica();
  EXPECT_EQ(AfterNotice([&] { EXPECT_FALSE(PuoImportare(editor)); }), kEarlier);
}

/// The changes since the load, as a person counts them.
class Changes : public test::BancoPlaylist {
 protected:
  /// How many `what` adds.
  int Of(const std::function<void()>& what) {
    const int before = editor.Modifiche();
    what();
    return editor.Modifiche() - before;
  }
  modMp3Infos reader{b.C.Files};
};

TEST_F(Changes, AreCountedByEachCommand) {
  Progetto(4, 5);
  b.ScriviMp3("music/a.mp3");
  b.Cartella.Write("music/text.mp3", "no music");
  b.Cartella.Write("music/l.m3u", "a.mp3\r\ntext.mp3\r\na.mp3\r\n");
  editor.Carica();
  EXPECT_EQ(editor.Modifiche(), 0);
  EXPECT_EQ(Of([&] { AggiungiFile(editor, Musica(), "a.mp3"); }), 1);
  EXPECT_EQ(Of([&] { AggiungiTuttiFiles(editor, reader, Musica(), {"a.mp3", "text.mp3"}); }), 1);
  EXPECT_EQ(Of([&] { ImportaPlaylist(editor, reader, b.Percorso("music\\l.m3u")); }), 2);
  Va(2);
  EXPECT_EQ(Of([&] { SpostaSu(editor); }), 1);
  EXPECT_EQ(Of([&] { SpostaSu(editor); }), 0) << "it is the first";
  EXPECT_EQ(Of([&] { Random(editor, CasoDaSeme(1)); }), 1);
  Va(1);
  EXPECT_EQ(Of([&] { RimuoviFile(editor); }), 1);
  b.Finestre.Rispondi(Risposta::No);
  EXPECT_EQ(Of([&] { RimuoviTuttiFile(editor); }), 0);
  b.Finestre.Rispondi(Risposta::Si);
  EXPECT_EQ(Of([&] { RimuoviTuttiFile(editor); }), 1);
  b.Finestre.Prossimo();
  b.Finestre.Prossimo();
  EXPECT_EQ(Of([&] { editor.ScegliVoce(3); }), 0);
  EXPECT_EQ(Of([&] { Random(editor, CasoDaSeme(1)); }), 0) << "there is nothing to shuffle";
}

TEST_F(Changes, OfNamesAreCountedToo) {
  Progetto(3, 9);
  editor.Carica();
  EXPECT_EQ(Of([&] { AggiungiPlaylist(editor, [&] { b.C.Stato.NomePlaylistScelta = "A"; }); }), 1);
  EXPECT_EQ(Of([&] { AggiungiPlaylist(editor, [] {}); }), 0);
  b.Finestre.Rispondi(Risposta::Si);
  EXPECT_EQ(Of([&] { RimuoviPlaylist(editor); }), 1);
  b.Finestre.Prossimo();
}

TEST_F(Changes, BeginAtNoneWithEachLoad) {
  Progetto(4, 5);
  editor.Carica();
  AggiungiFile(editor, Musica(), "a.mp3");
  editor.Chiudi();
  editor.Carica();
  EXPECT_EQ(editor.Modifiche(), 0);
}

}  // namespace
}  // namespace kvr5
