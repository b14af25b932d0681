#include <gtest/gtest.h>

#include "core/Impostazioni.h"
#include "core/ModelloImpostazioni.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

using test::Banco;
using test::BoxVisto;

// The words of the boxes are told apart by a language file of the test's own.
constexpr const char* kWords =
    "[Strings]\r\n0090005=choose\r\n0090008=leave?\r\n0090009=saved\r\n0090010=settings\r\n"
    "0090011=not saved\r\n0090012=it failed\r\n0090015=no folder\r\n";

constexpr std::size_t kItaliano = 4;  // the last of the five languages, by name

class SettingsForm : public testing::Test {
 protected:
  void SetUp() override {
    b.Cartella.Write("words.lan", kWords);
    b.C.Stato.FileLingua = b.Percorso("words.lan");
  }
  /// A settings file with all three, and the form shown on it.
  void Open(const std::string& folder, const std::string& language = "English.lan",
            const std::string& external = "0") {
    b.Cartella.Write("program/KVR5Software.ini",
                     "[Config]\r\nLanguageFile=" + language + "\r\nUseExternalPlayer=" + external +
                         "\r\n[Path]\r\nProjectsDir=" + folder + "\r\n");
    Show();
  }
  void Show() {
    m.Carica();
    m.Mostra();
  }
  std::string Stored(const char* section, const char* key) {
    return LeggiParametroIni(b.C, FileImpostazioni(b.C), section, key);
  }
  std::string Text() { return b.Cartella.Read("program/KVR5Software.ini"); }
  void ExpectBox(const std::string& title, const std::string& text) {
    const BoxVisto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, title);
    EXPECT_EQ(box.Testo, text);
    EXPECT_EQ(box.Segno, Icona::Informazione);
    EXPECT_FALSE(box.SiNo);
  }

  Banco b;
  ModelloImpostazioni m{b.C};
  const std::string projects = b.Percorso("program/Projects");
};

TEST_F(SettingsForm, ShowWhatTheFileHolds) {
  b.C.Stato.CartellaProgetti = "C:\\elsewhere";
  Open(projects, "Italiano.lan", "1");
  EXPECT_EQ(m.Cartella(), projects) << "not what the program goes by at present";
  EXPECT_EQ(m.Lingue(), (std::vector<std::string>{"Deutsch", "English", "Espa\xC3\xB1ol",
                                                  "Fran\xC3\xA7"
                                                  "ais",
                                                  "Italiano"}));
  EXPECT_EQ(m.LinguaScelta(), kItaliano);
  EXPECT_TRUE(m.PlayerEsterno());
  EXPECT_FALSE(m.Modificato());
}

TEST_F(SettingsForm, ShowTheFolderInTheHostsForm) {
  Open(projects);
  EXPECT_EQ(m.CartellaPerPersone(), (b.Cartella.Host() / "program/Projects").string());
  Open("");
  EXPECT_EQ(m.CartellaPerPersone(), "");
}

TEST_F(SettingsForm, TakeAFolderThatWasTypedIntoTheFileInTheHostsForm) {
  Open((b.Cartella.Host() / "program/Projects").string());
  EXPECT_EQ(m.Cartella(), projects);
}

TEST_F(SettingsForm, AnythingButOneIsTheInternalPlayer) {
  for (const char* value : {"0", "2", "true", ""}) {
    Open(projects, "English.lan", value);
    EXPECT_FALSE(m.PlayerEsterno()) << value;
  }
}

TEST_F(SettingsForm, WithoutAStoredLanguageCanBeSavedAtOnce) {
  Open(projects, "");
  EXPECT_TRUE(m.Modificato());
  EXPECT_EQ(m.LinguaScelta(), 0U);
}

TEST_F(SettingsForm, ALanguageThatIsNotThereLeavesTheFirstItem) {
  Open(projects, "Klingon.lan");
  EXPECT_EQ(m.LinguaScelta(), 0U);
  EXPECT_FALSE(m.Modificato());
}

TEST_F(SettingsForm, ALanguageIsFoundWithoutRegardToCase) {
  Open(projects, "ITALIANO.LAN");
  EXPECT_EQ(m.LinguaScelta(), kItaliano);
}

TEST_F(SettingsForm, AFolderWithoutLanguagesGivesAnEmptyListAndStoresNone) {
  std::filesystem::remove_all(b.Cartella.Host() / "program/Language");
  std::filesystem::create_directory(b.Cartella.Host() / "program/Language");
  b.Cartella.Write("program/Language/notes.txt", "x");
  Open(projects, "");
  EXPECT_TRUE(m.Lingue().empty());
  EXPECT_FALSE(m.LinguaScelta());
  m.ScegliLingua(0);
  m.Salva();
  ExpectBox("settings", "saved");
  EXPECT_EQ(Stored("Config", "LanguageFile"), "");
}

TEST_F(SettingsForm, ChangesWhileTheFormIsNotVisibleAreNotMarked) {
  Open(projects);
  m.Carica();
  m.ScegliPlayer(true);
  m.ScegliLingua(kItaliano);
  m.CambiaCartella("C:\\");
  EXPECT_FALSE(m.Modificato());
}

TEST_F(SettingsForm, EachChangeOfTheVisibleFormIsMarked) {
  Open(projects);
  m.ScegliPlayer(true);
  EXPECT_TRUE(m.Modificato());
  Show();
  m.ScegliLingua(0);
  EXPECT_TRUE(m.Modificato()) << "a click on the selected item counts";
  Show();
  m.CambiaCartella(m.Cartella());
  EXPECT_FALSE(m.Modificato()) << "the same text is no change";
  m.CambiaCartella("C:\\");
  EXPECT_TRUE(m.Modificato());
}

TEST_F(SettingsForm, ALanguagePastTheListIsPassedOver) {
  Open(projects);
  m.ScegliLingua(7);
  EXPECT_EQ(m.LinguaScelta(), 1U);
  EXPECT_FALSE(m.Modificato());
}

TEST_F(SettingsForm, TakeAFolderThatWasBrowsedFor) {
  Open(projects);
  b.Finestre.ScegliCartella(b.Percorso("card"));
  m.Sfoglia();
  EXPECT_EQ(m.Cartella(), b.Percorso("card"));
  EXPECT_TRUE(m.Modificato());
  ASSERT_EQ(b.Finestre.Sfogliate.size(), 1U);
  EXPECT_EQ(b.Finestre.Sfogliate[0].Titolo, "choose");
  EXPECT_EQ(b.Finestre.Sfogliate[0].Inizio, projects);
}

TEST_F(SettingsForm, ACancelledOrMissingFolderChangesNothing) {
  Open(projects);
  for (const std::string& given : {std::string(), std::string("  "), b.Percorso("gone")}) {
    b.Finestre.ScegliCartella(given);
    m.Sfoglia();
    EXPECT_EQ(m.Cartella(), projects);
    EXPECT_FALSE(m.Modificato());
  }
}

TEST_F(SettingsForm, AreStoredWithTheFoldersBackslash) {
  Open(projects);
  m.CambiaCartella("  " + b.Percorso("card") + " ");
  m.ScegliPlayer(true);
  m.ScegliLingua(kItaliano);
  m.Salva();
  ExpectBox("settings", "saved");
  EXPECT_EQ(m.Cartella(), b.Percorso("card"));
  EXPECT_FALSE(m.Modificato());
  EXPECT_EQ(Text(),
            "[Config]\r\nLanguageFile=Italiano.lan\r\nUseExternalPlayer=1\r\n[Path]\r\n"
            "ProjectsDir=" +
                b.Percorso("card") + "\\\r\n");
}

TEST_F(SettingsForm, AreStoredBackToTheInternalPlayer) {
  Open(projects, "English.lan", "1");
  m.ScegliPlayer(false);
  m.Salva();
  ExpectBox("settings", "saved");
  EXPECT_EQ(Stored("Config", "UseExternalPlayer"), "0");
}

TEST_F(SettingsForm, AFolderThatIsNotThereStoresNothing) {
  for (const std::string& folder : {b.Percorso("gone"), std::string()}) {
    Open(projects);
    const std::string before = Text();
    m.CambiaCartella(folder);
    m.ScegliPlayer(true);
    m.Salva();
    ExpectBox("settings", "no folder");
    EXPECT_EQ(Text(), before);
    EXPECT_TRUE(m.Modificato());
  }
}

TEST_F(SettingsForm, TheBoxOfASaveStandsBeforeTheLanguageIsWritten) {
  Open(projects);
  m.ScegliLingua(kItaliano);
  b.Finestre.SuBox = [&](const BoxVisto&) {
    EXPECT_EQ(Stored("Config", "LanguageFile"), "English.lan");
  };
  m.Salva();
  b.Finestre.SuBox = nullptr;
  ExpectBox("settings", "saved");
  EXPECT_EQ(Stored("Config", "LanguageFile"), "Italiano.lan");
}

TEST_F(SettingsForm, ASaveThatFailsTellsTheNumberAndItsWords) {
  Open(projects);
  std::filesystem::permissions(b.Cartella.Host() / "program/KVR5Software.ini",
                               std::filesystem::perms::owner_read);
  m.Salva();
  ExpectBox("not saved", "it failed\r\nN°:75\r\nPath/File access error");
  EXPECT_FALSE(m.Modificato()) << "the button goes off all the same";
}

TEST_F(SettingsForm, AnErrorFromBeforeIsNotTakenForOneOfTheSave) {
  Open(projects);
  b.C.Errore.Record(Error(errors::DiskFull));
  m.Salva();
  ExpectBox("settings", "saved");
}

TEST_F(SettingsForm, LeavingWithoutAChangeAsksNothing) {
  Open(projects);
  EXPECT_TRUE(m.ChiedeUscita());
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(SettingsForm, LeavingAfterAChangeAsksAndStoresNothing) {
  Open(projects);
  const std::string before = Text();
  m.ScegliPlayer(true);
  for (const Risposta answer : {Risposta::No, Risposta::Si}) {
    b.Finestre.Rispondi(answer);
    EXPECT_EQ(m.ChiedeUscita(), answer == Risposta::Si);
    const BoxVisto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "settings");
    EXPECT_EQ(box.Testo, "leave?");
    EXPECT_EQ(box.Segno, Icona::Domanda);
    EXPECT_FALSE(box.SoloOk);
  }
  EXPECT_EQ(Text(), before);
}

TEST_F(SettingsForm, LeavingAfterASaveAsksNothing) {
  Open(projects);
  m.ScegliPlayer(true);
  m.Salva();
  ExpectBox("settings", "saved");
  EXPECT_TRUE(m.ChiedeUscita());
}

TEST_F(SettingsForm, ALoadForgetsWhatWasNotStored) {
  Open(projects);
  m.ScegliPlayer(true);
  m.CambiaCartella("C:\\");
  Show();
  EXPECT_FALSE(m.PlayerEsterno());
  EXPECT_EQ(m.Cartella(), projects);
  EXPECT_FALSE(m.Modificato());
}

}  // namespace
}  // namespace kvr5
