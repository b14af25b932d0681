#include <QTest>
#include <filesystem>
#include <utility>

#include "core/Lingua.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;
using Names = std::vector<std::string>;

class ElencoDeiProgetti : public ProvaForm<frmCaricaProgetto> {
 protected:
  void Progetto(const std::string& folder, int type = 4, int mode = 2) {
    b.Cartella.Write(folder + "/Config.txt", "[Config]\r\n");
    b.Cartella.Write(folder + "/Config.cfg",
                     "[CONFIG]\r\nProjectName=stored\r\nPlayerType=" + std::to_string(type) +
                         "\r\nPlayerConfig=0\r\nPlayerConfigDesc=KVR5 (words)\r\nPlayerMode=" +
                         std::to_string(mode) + "\r\nAnalyzer=0\r\n");
  }
  void Progetti(const Names& names) {
    for (const auto& name : names) Progetto("program/Projects/" + name);
  }
  frmCaricaProgetto& DalMenu() {
    forma->FormChiamante = Schermata::Menu;
    return Apri();
  }
  std::string Cella(int row, int column = ListaProgetti::Nome) {
    const auto* model = forma->lstProgetti->model();
    return Std(model->data(model->index(row, column)).toString());
  }
  Names Righe() {
    Names names;
    for (int i = 0; i < forma->lstProgetti->model()->rowCount(); ++i) names.push_back(Cella(i));
    return names;
  }
  std::string Scelto() { return Cella(forma->lstProgetti->currentIndex().row()); }
  void AttesoMancante(const std::string& name) {
    const BoxVisto box = b.Finestre.Prossimo();
    EXPECT_EQ(box.Titolo, "Project not complete");
    EXPECT_EQ(box.Testo, "Missing or incomplete: the file '" + name +
                             "'\r\nThe folder can't be opened as a project. Choose another one.");
    EXPECT_EQ(box.Segno, Icona::Informazione);
    EXPECT_TRUE(forma->isVisible());
    EXPECT_FALSE(PuntatoreOccupato());
  }
  void ApriAltra(const std::string& folder) {
    b.Finestre.ScegliCartella(folder.empty() ? folder : b.Percorso(folder));
    Clicca(*forma->picLoad);
  }
};

TEST_F(ElencoDeiProgetti, ListsProjectsByNameWithTheFirstSelected) {
  Progetti({"Zoo", "Bar", "museum"});
  frmCaricaProgetto& form = DalMenu();
  EXPECT_EQ(Righe(), (Names{"Bar", "museum", "Zoo"}));
  EXPECT_EQ(Scelto(), "Bar");
  EXPECT_EQ(Cella(0, ListaProgetti::Player), "KVR5 (words)");
  EXPECT_NE(Cella(0, ListaProgetti::Modifica), "");
  EXPECT_EQ(form.focusWidget(), form.lstProgetti);
  EXPECT_EQ(form.CartellaScelta, "");
  EXPECT_FALSE(PuntatoreOccupato());
  EXPECT_FALSE(form.lblElencoVuoto->isVisible());
}

TEST_F(ElencoDeiProgetti, SpeaksTheLanguage) {
  Progetti({"Bar"});
  frmCaricaProgetto& form = DalMenu();
  EXPECT_EQ(form.windowTitle(), "Open project");
  EXPECT_EQ(Scritta(form, "lblPrjInDefaultDir"), "Projects");
  EXPECT_EQ(Scritta(form, "lblLoadSelected"), "Open");
  EXPECT_EQ(Scritta(form, "lblIndietro"), "Back");
  EXPECT_EQ(Scritta(form, "lblCaricaDaDisco"), "Another folder…");
  EXPECT_EQ(Scritta(form, "lblCaricaDaFlash"), "Open from card");
}

TEST_F(ElencoDeiProgetti, WithoutProjectsTheListIsEmptyAndOpeningDoesNothing) {
  frmCaricaProgetto& form = DalMenu();
  EXPECT_EQ(Righe(), Names{});
  EXPECT_TRUE(form.lblElencoVuoto->isVisible());
  Clicca(*form.picOpen);
  Clicca(form, "lblLoadSelected");
  EXPECT_TRUE(form.isVisible());
  EXPECT_TRUE(b.Schermi.Aperture.empty());
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(ElencoDeiProgetti, AFolderWithOneOfTheTwoFilesIsNotListed) {
  Progetti({"Bar"});
  b.Cartella.Write("program/Projects/half/Config.cfg", "");
  b.Cartella.Write("program/Projects/other/Config.txt", "");
  b.Cartella.Write("program/Projects/file.txt", "");
  DalMenu();
  EXPECT_EQ(Righe(), Names{"Bar"});
}

TEST_F(ElencoDeiProgetti, TheSelectedProjectIsOpenedFromTheDisk) {
  Progetti({"Bar", "Zoo"});
  frmCaricaProgetto& form = DalMenu();
  Tasto(form, Qt::Key_Down);
  EXPECT_EQ(Scelto(), "Zoo");
  Clicca(*form.picOpen);
  EXPECT_EQ(b.C.Stato.CartellaProgetto, b.Percorso("program/Projects/Zoo"));
  EXPECT_EQ(b.C.Stato.PlayerType, 4);
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{1});
  EXPECT_TRUE(b.Schermi.Mostrate.empty()) << "the caller isn't shown";
  EXPECT_FALSE(forma.Caricata());
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(ElencoDeiProgetti, ADoubleClickOnARowOpensIt) {
  Progetti({"Bar", "Zoo"});
  frmCaricaProgetto& form = DalMenu();
  const auto* model = form.lstProgetti->model();
  CliccaDoppio(*form.lstProgetti->viewport(),
               form.lstProgetti->visualRect(model->index(1, ListaProgetti::Player)).center());
  EXPECT_EQ(b.C.Stato.CartellaProgetto, b.Percorso("program/Projects/Zoo"));
}

TEST_F(ElencoDeiProgetti, EnterInTheListOpensTheSelectedOnce) {
  Progetti({"Bar"});
  Tasto(DalMenu(), Qt::Key_Return);
  EXPECT_EQ(b.Schermi.Aperture.size(), 1U);
}

TEST_F(ElencoDeiProgetti, HomeAndEndLeadToTheFirstRowAndTheLast) {
  Progetti({"Bar", "museum", "Zoo"});
  frmCaricaProgetto& form = DalMenu();
  Tasto(form, Qt::Key_End);
  EXPECT_EQ(Scelto(), "Zoo");
  Tasto(form, Qt::Key_Up);
  EXPECT_EQ(Scelto(), "museum");
  Tasto(form, Qt::Key_Home);
  EXPECT_EQ(Scelto(), "Bar");
}

TEST_F(ElencoDeiProgetti, AnyOtherFolderIsOpenedWhereItLies) {
  Progetto("elsewhere/p");
  DalMenu();
  ApriAltra("elsewhere/p");
  EXPECT_EQ(b.C.Stato.CartellaProgetto, b.Percorso("elsewhere/p"));
  EXPECT_EQ(b.Schermi.Aperture, std::vector<std::int16_t>{1});
  EXPECT_FALSE(b.Cartella.Exists("program/Projects/p"));
}

TEST_F(ElencoDeiProgetti, ACancelledOrMissingFolderChangesNothing) {
  frmCaricaProgetto& form = DalMenu();
  b.C.Stato.CartellaProgetto = "before";
  ApriAltra("");
  ApriAltra("gone");
  EXPECT_EQ(b.C.Stato.CartellaProgetto, "before");
  EXPECT_TRUE(form.isVisible());
}

TEST_F(ElencoDeiProgetti, APickedFolderWithoutItsFilesIsToldAndTheListStays) {
  Progetto("p");
  std::filesystem::remove(b.Cartella.Host() / "p/Config.txt");
  Progetto("q");
  std::filesystem::remove(b.Cartella.Host() / "q/Config.cfg");
  DalMenu();
  ApriAltra("p");
  AttesoMancante("Config.txt");
  EXPECT_EQ(b.C.Stato.CartellaProgetto, b.Percorso("p"));
  ApriAltra("q");
  AttesoMancante("config.cfg");
}

TEST_F(ElencoDeiProgetti, WithoutItsInputsAnInputsProjectIsRefusedAScheduleIsNot) {
  Progetto("program/Projects/Inputs", 4, 1);
  Progetto("program/Projects/Schedule", 4, 2);
  frmCaricaProgetto& form = DalMenu();
  Clicca(*form.picOpen);
  AttesoMancante("input.mdb");
  EXPECT_EQ(b.C.Stato.PlayerMode, 1) << "the state was read before";
  Tasto(form, Qt::Key_Down);
  form.lstProgetti->setFocus();
  Tasto(form, Qt::Key_Down);
  Clicca(*form.picOpen);
  EXPECT_EQ(b.Schermi.Aperture.size(), 1U);
}

TEST_F(ElencoDeiProgetti, ARefusedProjectDoesNotCostTheWayBack) {
  Progetto("program/Projects/Inputs", 4, 1);
  frmCaricaProgetto& form = DalMenu();
  Clicca(*form.picOpen);
  AttesoMancante("input.mdb");
  Clicca(*form.picindietro);
  EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu});
}

TEST_F(ElencoDeiProgetti, EscLeavesFromAnyControl) {
  Progetti({"Bar"});
  const char* controls[] = {"lstProgetti", "txtCerca", "picindietro",
                            "picLoad",     "picOpen",  "picHelp"};
  for (const char* name : controls) {
    b.Schermi.Mostrate.clear();
    frmCaricaProgetto& form = DalMenu();
    Controllo(form, name).setFocus();
    Tasto(form, Qt::Key_Escape);
    EXPECT_EQ(b.Schermi.Mostrate, std::vector{Schermata::Menu}) << name;
    EXPECT_FALSE(forma.Caricata()) << name;
  }
}

TEST_F(ElencoDeiProgetti, BackItsLabelAndTheWindowsOwnButtonShowTheCaller) {
  Clicca(*DalMenu().picindietro);
  Clicca(DalMenu(), "lblIndietro");
  DalMenu().close();
  EXPECT_EQ(b.Schermi.Mostrate, (std::vector{Schermata::Menu, Schermata::Menu, Schermata::Menu}));
}

TEST_F(ElencoDeiProgetti, TheFindFieldJumpsToTheFirstNameThatBeginsSo) {
  Progetti({"a-museum", "bar", "museum", "museum2"});
  frmCaricaProgetto& form = DalMenu();
  Tasto(form, Qt::Key_F, Qt::ControlModifier);
  ASSERT_EQ(form.focusWidget(), form.txtCerca);
  Scrivi(form, "MUS");
  EXPECT_EQ(Scelto(), "museum");
}

TEST_F(ElencoDeiProgetti, EnterInTheFindFieldComesByAllThatHoldTheTextRoundTheEnd) {
  Progetti({"a-museum", "bar", "museum", "museum2", "my museum"});
  frmCaricaProgetto& form = DalMenu();
  Riscrivi(*form.txtCerca, "mus");
  Names seen{Scelto()};
  for (int i = 0; i < 4; ++i) {
    Tasto(form, Qt::Key_Return);
    seen.push_back(Scelto());
  }
  EXPECT_EQ(seen, (Names{"museum", "museum2", "my museum", "a-museum", "museum"}));
  EXPECT_TRUE(form.isVisible()) << "Enter opens nothing here";
  EXPECT_TRUE(b.Schermi.Aperture.empty());
}

TEST_F(ElencoDeiProgetti, TheFindFieldSaysWhatEnterDoes) {
  Progetti({"bar"});
  EXPECT_NE(Std(DalMenu().txtCerca->toolTip()).find("Enter goes to the next"), std::string::npos);
}

TEST_F(ElencoDeiProgetti, WithoutAMatchTheSelectionStaysAndTheFieldSaysSo) {
  Progetti({"bar", "museum"});
  frmCaricaProgetto& form = DalMenu();
  const auto colour = [&] { return form.txtCerca->palette().color(QPalette::Text); };
  Riscrivi(*form.txtCerca, "museumx");
  EXPECT_EQ(Scelto(), "museum");
  EXPECT_EQ(colour(), Tema::Corrente().Errore);
  EXPECT_EQ(form.txtCerca->accessibleDescription(), "No project of this name");
  EXPECT_TRUE(form.txtCerca->SenzaEsito()) << "a sign";
  Riscrivi(*form.txtCerca, "");
  EXPECT_EQ(Scelto(), "museum");
  EXPECT_EQ(colour(), Tema::Corrente().Testo);
  EXPECT_EQ(form.txtCerca->accessibleDescription(), "");
  EXPECT_FALSE(form.txtCerca->SenzaEsito());
}

TEST_F(ElencoDeiProgetti, ShownAfterAnUnloadItReadsTheFolderAfresh) {
  Clicca(*DalMenu().picindietro);
  Progetti({"Bar"});
  DalMenu();
  EXPECT_EQ(Righe(), Names{"Bar"});
}

TEST_F(ElencoDeiProgetti, F1AndThePictureOpenTheHelp) {
  frmCaricaProgetto& form = DalMenu();
  Tasto(form, Qt::Key_F1);
  Clicca(*form.picHelp);
  EXPECT_EQ(b.Documenti.Aperti.size(), 2U);
}

TEST_F(ElencoDeiProgetti, ANameOfBlanksAloneIsNotOpened) {
  Progetti({"  "});
  DalMenu();
  EXPECT_EQ(Righe(), Names{"  "});
  Clicca(*forma->picOpen);
  EXPECT_TRUE(b.Schermi.Aperture.empty());
  EXPECT_TRUE(forma->isVisible());
  EXPECT_FALSE(PuntatoreOccupato());
}

/// Has a control clicked once more by the events that run while its window goes.
class PremeAllaChiusura : public QObject {
 public:
  PremeAllaChiusura(QWidget& window, Coppia& button) : button_(button) {
    window.installEventFilter(this);
  }
  int Premuti = 0;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Hide && !std::exchange(chiesto_, true)) {
      QMetaObject::invokeMethod(
          this,
          [this] {
            ++Premuti;
            button_.click();
          },
          Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
  }

 private:
  Coppia& button_;
  bool chiesto_ = false;
};

TEST_F(ElencoDeiProgetti, ASecondPressWhileTheListGoesLeavesNoBusyPointerOverTheHub) {
  Progetti({"Bar"});
  frmCaricaProgetto& form = DalMenu();
  const PremeAllaChiusura again(form, *form.picOpen);
  Clicca(*form.picOpen);
  EXPECT_EQ(again.Premuti, 1);
  EXPECT_EQ(b.Schermi.Aperture.size(), 1U);
  EXPECT_FALSE(PuntatoreOccupato());
}

TEST_F(ElencoDeiProgetti, AFolderIsNotAskedForWhileTheListGoes) {
  Progetti({"Bar"});
  frmCaricaProgetto& form = DalMenu();
  const PremeAllaChiusura again(form, *form.picLoad);
  Clicca(*form.picOpen);
  EXPECT_EQ(again.Premuti, 1);
  EXPECT_EQ(b.Schermi.Aperture.size(), 1U);
  EXPECT_TRUE(b.Finestre.Silenzio());
}

TEST_F(ElencoDeiProgetti, LettersTypedLookForANameWhereverTheRowWasClicked) {
  Progetti({"Bar", "Kitchen", "museum"});
  frmCaricaProgetto& form = DalMenu();
  const auto* model = form.lstProgetti->model();
  QTest::mouseClick(form.lstProgetti->viewport(), Qt::LeftButton, {},
                    form.lstProgetti->visualRect(model->index(0, ListaProgetti::Player)).center());
  EXPECT_TRUE(form.lstProgetti->selectionModel()->isRowSelected(0));
  QTest::keyClick(form.lstProgetti, Qt::Key_M);
  EXPECT_EQ(Scelto(), "museum") << "not a player of that name";
}

TEST_F(ElencoDeiProgetti, EveryPlayersDescriptionStandsWholeInItsCell) {
  Progetti({"Bar"});
  for (const char* language : {"English", "Italiano"}) {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + language + ".lan");
    frmCaricaProgetto& form = DalMenu();
    constexpr int kBeside = 18;  // the style's margins of a cell
    for (const char* key : {"0160008", "0160009", "0160010"}) {
      const std::string words =
          "KVR5 (" + TestoLingua(b.C, "0160003") + " " + TestoLingua(b.C, key) + ")";
      EXPECT_GE(form.lstProgetti->columnWidth(ListaProgetti::Player),
                form.lstProgetti->fontMetrics().horizontalAdvance(Qs(words)) + kBeside)
          << words;
    }
    const auto* model = form.lstProgetti->model();
    EXPECT_EQ(Std(model->data(model->index(0, ListaProgetti::Player), Qt::ToolTipRole).toString()),
              "KVR5 (words)");
    forma->Scarica();
  }
}

}  // namespace
}  // namespace kvr5
