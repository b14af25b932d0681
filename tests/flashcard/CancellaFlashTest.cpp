// The two questions of an erasing, what it takes and what it leaves, and its three outcomes.
#include <sys/stat.h>

#include <fstream>

#include "flashcard/CancellaFlash.h"
#include "projects/BancoLettura.h"
#include "support/SmallVolume.h"

namespace kvr5 {
namespace {

namespace fs = std::filesystem;
using test::Albero;
using test::AlberoDi;
using test::Cambiati;
using Names = std::vector<std::string>;

constexpr const char* kErased =
    "The card's files are deleted. Folders, hidden and read-only files stayed.";
constexpr const char* kNothing = "Nothing was deleted: this card holds no file that can be erased.";
constexpr const char* kFailed =
    "The card wasn't erased. Check that it is in and its lock is open, then repeat.";

class Svuotamento : public testing::Test {
 protected:
  void SetUp() override { s.PercorsoMemoryCard = Root(); }

  std::string Root() const { return b.Percorso("card") + "\\"; }
  /// The root as the questions name it where it is a folder of the host.
  std::string Shown() const { return (b.Cartella.Host() / "card").string(); }
  void Put(const std::string& name) const { b.Cartella.Write("card/" + name, "x"); }
  fs::path Host(const std::string& name) const { return b.Cartella.Host() / "card" / name; }
  FineSvuotamento Erase(const std::vector<Risposta>& answers = {Risposta::Si, Risposta::Si}) {
    for (const Risposta answer : answers) b.Finestre.Rispondi(answer);
    return CancellaFlash(b.C, choice);
  }
  void ExpectQuestion(const std::string& text) {
    const auto box = b.Finestre.Prossimo();
    EXPECT_FALSE(box.SiNo) << "the plain box";
    EXPECT_FALSE(box.SoloOk);
    EXPECT_EQ(box.Titolo, "Erase card");
    EXPECT_EQ(box.Testo, text);
    EXPECT_EQ(box.Segno, Icona::Domanda);
  }
  void ExpectFirst() { ExpectQuestion("Delete all files of the card " + Shown() + "  ?"); }
  void ExpectSecond() {
    ExpectQuestion("Check the drive: " + Shown() +
                   "\r\nFiles can't be recovered; folders, hidden and read-only files stay. "
                   "Delete now?");
  }
  void ExpectOutcome(const char* text) {
    ExpectFirst();
    ExpectSecond();
    const auto box = b.Finestre.Prossimo();
    EXPECT_FALSE(box.SiNo);
    EXPECT_TRUE(box.SoloOk);
    EXPECT_EQ(box.Titolo, "Erase card");
    EXPECT_EQ(box.Testo, text);
    EXPECT_EQ(box.Segno, Icona::Avviso);
    EXPECT_TRUE(b.Finestre.Silenzio());
  }

  test::BancoDiScheda bench;
  test::Banco& b = bench.B;
  StatoApplicazione& s = b.C.Stato;
  test::SceltaDaProva choice{s};
};

/// The questions as the port gets them, their default button among the rest.
class DomandeViste : public Dialoghi {
 public:
  Risposta MostraMessaggio(const Messaggio& messaggio) override {
    Seen.push_back(messaggio);
    return messaggio.Scelte == Pulsanti::Ok ? Risposta::Ok : Risposta::Si;
  }
  std::uint8_t MostraSiNo(const BoxSiNo& /*box*/) override { return 0; }
  std::string SfogliaCartella(const std::string& /*t*/, const std::string& /*i*/) override {
    return {};
  }
  std::string ScegliFile(const std::string& /*t*/, const FiltroFile& /*f*/,
                         const std::string& /*i*/) override {
    return {};
  }
  std::vector<Messaggio> Seen;
};

TEST_F(Svuotamento, BothQuestionsHaveYesAndNoWithNoAsTheDefault) {
  DomandeViste questions;
  test::EventiFinti events;
  test::CopiaFinta copy;
  test::ProcessoFinto process;
  test::Banco other(questions, events, copy, process);
  other.Cartella.Write("card/a.mp3", "x");
  other.C.Stato.PercorsoMemoryCard = other.Percorso("card") + "\\";
  test::SceltaDaProva chosen(other.C.Stato);
  EXPECT_EQ(CancellaFlash(other.C, chosen), FineSvuotamento::Svuotata);
  ASSERT_EQ(questions.Seen.size(), 3U);
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_EQ(questions.Seen[i].Scelte, Pulsanti::SiNo);
    EXPECT_EQ(questions.Seen[i].Predefinita, Risposta::No);
    EXPECT_EQ(questions.Seen[i].Segno, Icona::Domanda);
  }
  EXPECT_EQ(questions.Seen[2].Scelte, Pulsanti::Ok);
}

TEST_F(Svuotamento, AfterTwoYesTheFilesOfTheRootAreGone) {
  for (const char* name : {"Config.txt", "Config.cfg", "inputcfg.mdb", "5.mp3", "PALIN.TXT",
                           "noending", "a b'c.mp3", "test.txt"}) {
    Put(name);
  }
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_TRUE(fs::is_empty(Host("")));
  EXPECT_EQ(choice.Times, 0) << "the card that is chosen already will do";
}

TEST_F(Svuotamento, ANoAtEitherQuestionDeletesNothingAndSaysNothingMore) {
  Put("a.mp3");
  EXPECT_EQ(Erase({Risposta::No}), FineSvuotamento::Rinunciata);
  ExpectFirst();
  EXPECT_EQ(Erase({Risposta::Si, Risposta::No}), FineSvuotamento::Rinunciata);
  ExpectFirst();
  ExpectSecond();
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Nomi("card"), Names{"a.mp3"});
}

TEST_F(Svuotamento, TheQuestionsNameADriveAsItWasChosen) {
  ASSERT_TRUE(b.Percorsi.Bind('E', (b.Cartella.Host() / "card").string()));
  s.PercorsoMemoryCard = "E:\\";
  Put("a.mp3");
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectQuestion("Delete all files of the card E:\\  ?");
  EXPECT_TRUE(b.Finestre.Prossimo().Testo.starts_with("Check the drive: E:\\\r\n"));
  EXPECT_EQ(b.Finestre.Prossimo().Testo, kErased);
  EXPECT_TRUE(b.Nomi("card").empty());
}

TEST_F(Svuotamento, WithoutACardTheDialogIsAskedAndALeftOneEndsInSilence) {
  Put("a.mp3");
  s.PercorsoMemoryCard.clear();
  EXPECT_EQ(Erase({}), FineSvuotamento::SenzaScheda);
  EXPECT_EQ(choice.Times, 1);
  choice.Card = Root();
  choice.Cancelled = true;
  EXPECT_EQ(Erase({}), FineSvuotamento::SenzaScheda);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Nomi("card"), Names{"a.mp3"});
  s.PercorsoMemoryCard.clear();
  choice.Cancelled = false;
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
}

TEST_F(Svuotamento, AnEmptyCardHoldsNothingToDelete) {
  EXPECT_EQ(Erase(), FineSvuotamento::GiaVuota);
  ExpectOutcome(kNothing);
}

TEST_F(Svuotamento, FoldersStayWithWhatIsInThem) {
  Put("a.mp3");
  Put("sub/b.mp3");
  Put("folder.mp3/deep/c.mp3");
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_EQ(b.Nomi("card"), (Names{"folder.mp3/deep/c.mp3", "sub/b.mp3"}));
  EXPECT_EQ(Erase(), FineSvuotamento::GiaVuota);
  ExpectOutcome(kNothing);
}

TEST_F(Svuotamento, FilesWithAnAttributeOfTheVolumeStay) {
  for (const char* name :
       {"a.mp3", "hidden.mp3", "system.mp3", "readonly.mp3", "all.mp3", ".dot"}) {
    Put(name);
  }
  bench.Attributi = {{"hidden.mp3", {.Hidden = true}},
                     {"system.mp3", {.System = true}},
                     {"readonly.mp3", {.ReadOnly = true}},
                     {"all.mp3", {true, true, true}},
                     {".dot", {}}};
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_EQ(b.Nomi("card"), (Names{"all.mp3", "hidden.mp3", "readonly.mp3", "system.mp3"}))
      << "where the volume has attributes a leading dot means nothing";
  EXPECT_EQ(Erase(), FineSvuotamento::GiaVuota) << "only those are left";
  ExpectOutcome(kNothing);
}

TEST_F(Svuotamento, FilesThatTheHostHidesOrProtectsStay) {
  Put("a.mp3");
  Put(".hidden");
  Put("readonly.mp3");
  fs::permissions(Host("readonly.mp3"), fs::perms::owner_read);
  ASSERT_EQ(mkfifo(Host("pipe").c_str(), 0600), 0);
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_EQ(b.Nomi("card"), (Names{".hidden", "pipe", "readonly.mp3"}));
}

TEST_F(Svuotamento, ALinkGoesAndWhatItLeadsToStays) {
  b.Cartella.Write("letters/a.txt", "a user's own");
  fs::create_symlink("../letters/a.txt", Host("link.txt"));
  fs::create_directory_symlink("../letters", Host("folder"));
  fs::create_symlink("nowhere", Host("dangling"));
  const Albero letters = AlberoDi(b.Cartella.Host() / "letters", true);
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_FALSE(fs::is_symlink(Host("link.txt")));
  EXPECT_TRUE(fs::is_symlink(Host("folder")));
  EXPECT_EQ(Cambiati(letters, AlberoDi(b.Cartella.Host() / "letters", true)), Names{});
}

TEST_F(Svuotamento, AFileWhoseNameNoPathCanHoldStays) {
  std::ofstream(Host("") / "caf\xE8.mp3") << "x";
  std::ofstream(Host("") / "a\\b.mp3") << "x";
  EXPECT_EQ(Erase(), FineSvuotamento::GiaVuota);
  ExpectOutcome(kNothing);
  Put("b.mp3");
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_EQ(std::distance(fs::directory_iterator(Host("")), {}), 2);
}

TEST_F(Svuotamento, AProtectedCardFailsAndKeepsItsFiles) {
  Put("a.mp3");
  bench.Guasto->Protect(Root());
  EXPECT_EQ(Erase(), FineSvuotamento::Fallita);
  ExpectOutcome(kFailed);
  EXPECT_EQ(b.Nomi("card"), Names{"a.mp3"});
  EXPECT_EQ(b.C.Errore.Last().Number(), errors::PermissionDenied);
}

TEST_F(Svuotamento, TheFirstFailureEndsItAndWhatWasDeletedBeforeIsGone) {
  for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) Put(name);
  bench.Guasto->Protect(b.Percorso("card/b.mp3"));
  EXPECT_EQ(Erase(), FineSvuotamento::Fallita);
  ExpectOutcome(kFailed);
  EXPECT_EQ(b.Nomi("card"), (Names{"b.mp3", "c.mp3"}));
}

TEST_F(Svuotamento, AFileThatGoesAwayMeanwhileIsNotAnEmptyCard) {
  for (const int error : {errors::DeviceIo, errors::FileNotFound}) {
    SCOPED_TRACE(error);
    for (const char* name : {"a.mp3", "b.mp3"}) Put(name);
    bench.Guasto->FailOperation(b.Percorso("card/b.mp3"), 0, error);
    EXPECT_EQ(Erase(), FineSvuotamento::Fallita);
    ExpectOutcome(kFailed);
    EXPECT_EQ(bench.Guasto->FailedOperation(), "Delete");
    bench.Guasto->Repair();
  }
}

TEST_F(Svuotamento, AnErrorOfBeforeOrAmidTheEventsIsNoFailure) {
  Put("a.mp3");
  b.C.Errore.Record(Error(errors::DiskFull));
  b.Messaggi.Accade = [this] { b.C.Errore.Record(Error(errors::DeviceIo)); };
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
}

TEST_F(Svuotamento, ACardThatIsPulledOutFailsAndItsFolderLosesNothing) {
  Put("a.mp3");  // below the folder at which the card was mounted
  bool gone = false;
  choice.Gone = [&gone] { return gone; };
  for (const int box : {0, 1, 2}) {  // before the first question, at it, at the second
    SCOPED_TRACE(box);
    int seen = 0;
    gone = box == 0;
    b.Finestre.SuBox = [&](const test::BoxVisto&) { gone = gone || ++seen == box; };
    EXPECT_EQ(Erase(), FineSvuotamento::Fallita);
    ExpectOutcome(kFailed);
    EXPECT_EQ(b.C.Errore.Last().Number(), errors::DeviceUnavailable);
    EXPECT_EQ(b.Nomi("card"), Names{"a.mp3"});
  }
}

TEST_F(Svuotamento, ACardThatIsPulledOutInTheMiddleIsNeverToldAsErasedWhileItHasFiles) {
  int whole = 0;
  for (std::size_t left = 0; left < 12; ++left) {
    SCOPED_TRACE(left);
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) Put(name);
    bench.Guasto->VanishAfter(Root(), left);
    const auto end = Erase();
    bench.Guasto->Repair();
    for (int i = 0; i < 3; ++i) b.Finestre.Prossimo();
    if (end == FineSvuotamento::Svuotata) {
      EXPECT_TRUE(b.Nomi("card").empty());
      ++whole;
    }
  }
  EXPECT_GT(whole, 0) << "a card that stays long enough is erased";
}

TEST_F(Svuotamento, TheCardThatTheQuestionsNamedIsTheOneThatIsErased) {
  Put("a.mp3");
  b.Cartella.Write("other/b.mp3", "x");
  b.Finestre.SuBox = [this](const test::BoxVisto&) {
    s.PercorsoMemoryCard = b.Percorso("other") + "\\";
  };
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_TRUE(b.Nomi("card").empty());
  EXPECT_EQ(b.Nomi("other"), Names{"b.mp3"});
}

TEST_F(Svuotamento, ARealProtectedCardFailsAndARealOneIsErased) {
  const auto volume = test::SmallVolume::InMemory(b.Cartella.Host() / "card", 1);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  Put("a.mp3");
  ASSERT_TRUE(volume->Protect());
  EXPECT_EQ(Erase(), FineSvuotamento::Fallita);
  ExpectOutcome(kFailed);
  EXPECT_EQ(b.Nomi("card"), Names{"a.mp3"});
}

TEST_F(Svuotamento, ARealCardOfItsKindIsErased) {
  const auto volume = test::SmallVolume::ExFat(b.Cartella.Host() / "card", 8);
  if (!volume->IsMounted()) GTEST_SKIP() << volume->Why();
  for (const char* name : {"A.MP3", "b.mp3", "sub/c.mp3"}) Put(name);
  EXPECT_EQ(Erase(), FineSvuotamento::Svuotata);
  ExpectOutcome(kErased);
  EXPECT_EQ(b.Nomi("card"), Names{"sub/c.mp3"});
}

}  // namespace
}  // namespace kvr5
