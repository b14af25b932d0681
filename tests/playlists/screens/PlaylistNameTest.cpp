#include <QTest>

#include "playlists/screens/frmPlaylistName.h"
#include "support/screens/ProvaForm.h"

// The dialog that asks for the name of a playlist.

namespace kvr5 {
namespace {

class PlaylistName : public test::ProvaForm<frmPlaylistName> {
 protected:
  void SetUp() override {
    b.C.Stato.NomePlaylistScelta = "before";
    Apri();
  }
  void Type(const char* text) { test::Riscrivi(*forma->txtNomePlaylist, QString::fromUtf8(text)); }
  void Press(Qt::Key key) { test::Tasto(*forma, key); }
  std::string Left() { return test::Scritta(*forma, "lblCaratteriDisponibili"); }
  std::string Warning() {
    return forma->lblWarn->isVisible() ? test::Scritta(*forma, "lblWarn") : "";
  }
  std::string Note() { return forma->lblNota->isVisible() ? test::Scritta(*forma, "lblNota") : ""; }
  const std::string& Chosen() const { return b.C.Stato.NomePlaylistScelta; }
};

constexpr const char* kGiveAName = "Give the playlist a name";
constexpr const char* kNoFile =
    "No file can have this name: the player wouldn't find the playlist. Choose another one.";

TEST_F(PlaylistName, ComesUpEmptyWithoutAWarning) {
  EXPECT_EQ(forma->windowTitle(), "Name of the playlist");
  EXPECT_EQ(forma->txtNomePlaylist->text(), "");
  EXPECT_EQ(Left(), "Characters left (of 8)");
  EXPECT_EQ(Warning(), "");
  EXPECT_EQ(Note(), "");
  EXPECT_EQ(forma->focusWidget(), forma->txtNomePlaylist);
  EXPECT_FALSE(test::PuntatoreOccupato());
  for (const char* name : {"txtNomePlaylist", "lblNomePlaylist", "lblCaratteriDisponibili",
                           "lblWarn", "picOk", "lblOk", "picCancel", "lblCanc"}) {
    EXPECT_NE(forma->findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
  }
}

TEST_F(PlaylistName, HasTheCaptionsOfItsDesignBefore) {
  const frmPlaylistName fresh(b.A);
  EXPECT_EQ(fresh.windowTitle(), "Select Playlist Name");
  EXPECT_EQ(fresh.lblNomePlaylist->text(), "PlaylistName");
  EXPECT_EQ(fresh.lblCaratteriDisponibili->text(), "CharsLeft:8/8");
  EXPECT_EQ(fresh.lblWarn->text(), "Warning");
  EXPECT_TRUE(fresh.lblWarn->isHidden());
  EXPECT_EQ(fresh.lblCanc->text(), "Cancel");
}

TEST_F(PlaylistName, HasEightCharactersAtMost) {
  test::Scrivi(*forma, "Music");
  EXPECT_EQ(Left(), "Characters left (of 8): 3");
  test::Scrivi(*forma, "XYZ9");
  EXPECT_EQ(forma->txtNomePlaylist->text(), "MusicXYZ");
  EXPECT_EQ(Left(), "Characters left (of 8): 0");
  forma->txtNomePlaylist->setText(QString::fromUtf8("Caffè"));
  EXPECT_EQ(Left(), "Characters left (of 8): 3") << "characters, not bytes";
}

TEST_F(PlaylistName, IsGivenByTheButtonItsLabelAndEnter) {
  test::Scrivi(*forma, "A");
  test::Clicca(*forma->picOk);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(Chosen(), "A");
  Apri();
  test::Scrivi(*forma, "B");
  test::Clicca(*forma->lblOk);
  EXPECT_EQ(Chosen(), "B");
  Apri();
  test::Scrivi(*forma, " C ");
  Press(Qt::Key_Return);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(Chosen(), " C ") << "as it was typed";
  Apri();
  test::Scrivi(*forma, "D");
  Press(Qt::Key_Enter);
  EXPECT_EQ(Chosen(), "D");
}

TEST_F(PlaylistName, OfBlanksIsWarnedOfAndNotTaken) {
  test::Scrivi(*forma, "A");
  EXPECT_EQ(Warning(), "");
  Type("");
  EXPECT_EQ(Warning(), kGiveAName);
  Type("   ");
  EXPECT_EQ(Warning(), kGiveAName);
  test::Clicca(*forma->picOk);
  Press(Qt::Key_Return);
  EXPECT_TRUE(forma->isVisible());
  EXPECT_EQ(Chosen(), "before");
  Type("x");
  EXPECT_EQ(Warning(), "");
}

TEST_F(PlaylistName, HoldsNoCharacterThatAFileCannot) {
  for (const char c : std::string("\\/:?\"<>|")) {
    const std::string name = std::string("A") + c + "B";
    SCOPED_TRACE(name);
    Type(name.c_str());
    EXPECT_EQ(Warning(), "") << "not while it is typed";
    test::Clicca(*forma->picOk);
    ASSERT_TRUE(forma.Caricata());
    EXPECT_EQ(Warning(), "A name can't hold any of these:\n \\ / : ? \" < > |");
    EXPECT_EQ(forma->focusWidget(), forma->txtNomePlaylist);
  }
  EXPECT_EQ(Chosen(), "before");
  test::Scrivi(*forma, "C");
  EXPECT_EQ(Warning(), "") << "the next letter takes the words away";
}

TEST_F(PlaylistName, ThatNoFileCanHaveIsHintedAtAndTakenAllTheSame) {
  for (const char* name : {"CON", "a*", "com1", "nul.x"}) {
    Type(name);
    EXPECT_EQ(Note(), kNoFile) << name;
  }
  for (const char* name : {"CONE", "a", "A:B", "  "}) {
    Type(name);
    EXPECT_EQ(Note(), "") << name;
  }
  Type("a*");
  test::Clicca(*forma->picOk);
  EXPECT_FALSE(forma.Caricata());
  EXPECT_EQ(Chosen(), "a*");
}

TEST_F(PlaylistName, IsNoneAfterACancel) {
  const auto leaves = [this](const char* how, const std::function<void()>& leave) {
    SCOPED_TRACE(how);
    b.C.Stato.NomePlaylistScelta = "before";
    if (!forma.Caricata()) Apri();
    test::Scrivi(*forma, "Music");
    leave();
    EXPECT_FALSE(forma.Caricata());
    EXPECT_EQ(Chosen(), "");
  };
  leaves("button", [this] { test::Clicca(*forma->picCancel); });
  leaves("label", [this] { test::Clicca(*forma->lblCanc); });
  leaves("key", [this] { Press(Qt::Key_Escape); });
  leaves("window", [this] { forma->close(); });
}

TEST_F(PlaylistName, HasHelp) {
  Press(Qt::Key_F1);
  EXPECT_EQ(DocumentoDiAiuto(), b.Percorso("program\\Help\\English.htm"));
  test::Clicca(*forma->picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
  EXPECT_TRUE(forma->isVisible());
}

TEST_F(PlaylistName, ThatIsPastedIsCutToItsLength) {
  forma->txtNomePlaylist->insert("Morning show");
  EXPECT_EQ(forma->txtNomePlaylist->text(), "Morning ");
  EXPECT_EQ(Left(), "Characters left (of 8): 0");
}

}  // namespace
}  // namespace kvr5
