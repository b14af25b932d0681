#include <gtest/gtest.h>

#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <sstream>

#include "playerconfig/screens/BancoHub.h"

// What each model and mode sees once its hub is loaded.

namespace kvr5 {
namespace {

class HubLayout : public test::Hub {
 protected:
  /// Names of the controls of the hub that are shown, sorted, with blanks between.
  std::string Shown() {
    std::string names;
    for (const char* name : kControls) {
      const auto& control = Trova<QWidget>(name);
      // A label lies in its picture; a frame may lie in one that is hidden.
      const bool shown = name[0] == 'l' ? control.isVisible() : !control.isHidden();
      if (shown) names += std::string(names.empty() ? "" : " ") + name;
    }
    return names;
  }

  static constexpr std::array kControls{"cmdMp3Preview_Stop",
                                        "cmdStopMp3",
                                        "fra232",
                                        "fra232bis",
                                        "fra485",
                                        "fra485bis",
                                        "fraAnalyzer",
                                        "fraCopiaFilesFlash",
                                        "fraExtra",
                                        "fraFADE",
                                        "fraFileInfo",
                                        "fraFileName",
                                        "fraIMOD",
                                        "fraIngressiLogici",
                                        "fraMICP",
                                        "fraMPLL",
                                        "fraMirs",
                                        "fraMonitor",
                                        "fraOutputLevel",
                                        "fraTPCM",
                                        "lblBadFileType",
                                        "lblEtichettaTroppoLunga",
                                        "lblMp3_Dir",
                                        "lblPalinsesto",
                                        "lblPlaylist",
                                        "picDisk",
                                        "picOstrel",
                                        "picOstrelSmall",
                                        "picPalinsesto",
                                        "picPanel",
                                        "picPanelSmall",
                                        "picPlaylist",
                                        "picVeskadroSmall",
                                        "picZub",
                                        "picZubSmall"};
};

constexpr const char* kVeskadro =
    "cmdMp3Preview_Stop cmdStopMp3 fraFADE fraFileInfo fraFileName fraIMOD fraIngressiLogici "
    "fraMICP fraMirs fraMonitor fraOutputLevel fraTPCM lblMp3_Dir picDisk";
constexpr const char* kZubAndOstrel =
    "cmdMp3Preview_Stop cmdStopMp3 fraFADE fraFileInfo fraFileName fraIMOD fraIngressiLogici "
    "fraMICP fraMirs fraOutputLevel fraTPCM lblMp3_Dir lblPlaylist picDisk picPlaylist";
constexpr const char* kInputs =
    "cmdMp3Preview_Stop cmdStopMp3 fraExtra fraFADE fraFileInfo fraFileName fraIMOD "
    "fraIngressiLogici fraMICP fraMirs fraOutputLevel fraTPCM lblMp3_Dir picDisk";
constexpr const char* kSchedule =
    "cmdMp3Preview_Stop cmdStopMp3 fraExtra fraFADE fraOutputLevel lblPalinsesto picPalinsesto "
    "picPanel";
constexpr const char* kPlaylist =
    "cmdMp3Preview_Stop cmdStopMp3 fraExtra fraFADE fraOutputLevel fraTPCM lblPlaylist picPanel "
    "picPlaylist";

struct Model {
  std::int16_t Type, Mode, Config;
  const char* Shown;
};

class EveryModel : public HubLayout, public testing::WithParamInterface<Model> {};

TEST_P(EveryModel, ShowsWhatItHasAndHidesTheRest) {
  const Model& model = GetParam();
  // A playlist mode that no wizard offers has no device file of its own.
  Progetto(model.Type, model.Mode == 9 ? std::int16_t{5} : model.Mode, model.Config);
  b.C.Stato.PlayerMode = model.Mode;
  Apri();
  EXPECT_EQ(Shown(), model.Shown);
  const bool inputs = std::string_view(model.Shown).find("fraFileName") != std::string::npos;
  EXPECT_EQ(Trova<QWidget>("DirDirectoryMp3").isEnabled(), inputs);
  EXPECT_EQ(SiVede("lstAssegnati"), inputs);
  EXPECT_FALSE(SiVede("fraFileAssociato"));
  EXPECT_FALSE(SiVede("cmdOkFileMp3"));
}

INSTANTIATE_TEST_SUITE_P(
    Hub, EveryModel,
    testing::Values(Model{1, 0, 0, kVeskadro}, Model{2, 0, 1, kZubAndOstrel},
                    Model{2, 0, 3, kZubAndOstrel}, Model{3, 1, 0, kZubAndOstrel},
                    Model{3, 2, 0, kZubAndOstrel}, Model{3, 3, 0, kZubAndOstrel},
                    Model{3, 5, 0, kZubAndOstrel}, Model{4, 1, 0, kInputs},
                    Model{4, 2, 0, kSchedule}, Model{4, 5, 0, kPlaylist}, Model{4, 6, 0, kPlaylist},
                    Model{4, 7, 0, kPlaylist}, Model{4, 9, 0, kPlaylist}),
    [](const auto& row) {
      const Model& m = row.param;
      return "Type" + std::to_string(m.Type) + "Mode" + std::to_string(m.Mode) + "Config" +
             std::to_string(m.Config);
    });

TEST_F(HubLayout, AKvr5WithListsHasItsFiguresAndItsButtonInTheField) {
  Progetto(4, 5);
  b.ScriviMp3("music/a.mp3");
  b.AggiungiRiga("playlist.mdb", 1, 1, "a.mp3", b.Percorso("music") + "\\", "P01-001.mp3");
  b.AggiungiRiga("playlist.mdb", 3, 1, "gone.mp3", b.Percorso("music") + "\\", "P03-001.mp3");
  Apri();
  ASSERT_TRUE(QTest::qWaitFor([this] { return SiVede("lblMancanti"); }));
  EXPECT_TRUE(Testo("lblSommario").starts_with("2 lists, 2 tracks")) << Testo("lblSommario");
  EXPECT_EQ(Testo("lblMancanti"), "1 missing");
  const auto& field = Trova<QWidget>("fraPannello");
  EXPECT_TRUE(field.isAncestorOf(&Trova<QWidget>("picPlaylist")));
  EXPECT_FALSE(field.isAncestorOf(&Trova<QWidget>("picPalinsesto")));
}

TEST_F(HubLayout, MissingFilesAreToldWhenAllHaveBeenLookedFor) {
  Progetto(4, 5);
  constexpr int kRows = 250;
  for (int pos = 1; pos <= kRows; ++pos) {
    b.AggiungiRiga("playlist.mdb", 1, pos, "gone.mp3", "C:\\far\\", "");
  }
  Apri();
  std::vector<std::string> told;
  ASSERT_TRUE(QTest::qWaitFor([&] {
    const std::string now = SiVede("lblMancanti") ? Testo("lblMancanti") : "";
    if (told.empty() || told.back() != now) told.push_back(now);
    return now.starts_with(std::to_string(kRows));
  }));
  EXPECT_EQ(told.size(), 2U) << "nothing, then all of them";
}

TEST_F(HubLayout, AnEmptyScheduleSaysSo) {
  Progetto(4, 2);
  Apri();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Testo("lblSommario").empty(); }));
  EXPECT_EQ(Testo("lblSommario"), "0 segments, 0 spots");
  EXPECT_FALSE(SiVede("lblMancanti"));
  EXPECT_TRUE(Trova<QWidget>("fraPannello").isAncestorOf(&Trova<QWidget>("picPalinsesto")));
}

TEST_F(HubLayout, OtherModelsHaveTheButtonInTheBar) {
  Progetto(2, 0, 3);
  Apri();
  EXPECT_TRUE(hub->Barra->isAncestorOf(&Trova<QWidget>("picPlaylist")));
}

TEST_F(HubLayout, MoreLeadsToWhatAHiddenButtonWouldAndToTheFolder) {
  Progetto(2, 0, 3);
  b.Cartella.Write("program/Projects/Hall/scheduler.mdb", "");
  Apri();
  std::vector<std::string> entries;
  for (const QAction* entry : hub->Barra->menuAltro.actions()) {
    entries.push_back(entry->text().toStdString());
  }
  const bool playlists = Trova<QWidget>("picPlaylist").isVisible();
  ASSERT_TRUE(playlists);
  EXPECT_EQ(entries, (std::vector<std::string>{"Schedule…", "Find missing files…", "Copy by hand…",
                                               "Eject card", "Open project folder"}));
  hub->Barra->menuAltro.actions().back()->trigger();
  EXPECT_EQ(b.Documenti.Aperti, std::vector{b.C.Stato.CartellaProgetto});
}

TEST_F(HubLayout, MoreOpensItsMenuAboveItself) {
  Progetto(4, 1);
  Apri();
  Clic("picAltro");
  QMenu& menu = hub->Barra->menuAltro;
  ASSERT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }));
  EXPECT_LE(
      menu.geometry().bottom(),
      hub->mapToGlobal(hub->Barra->picAltro->mapTo(hub, QPoint(0, hub->Barra->picAltro->height())))
          .y());
  menu.close();
}

TEST_F(HubLayout, MoreLeadsToPlaylistsWhoseButtonIsHidden) {
  Progetto(4, 1);
  b.Cartella.Write("program/Projects/Hall/playlist.mdb", "");
  Apri();
  ASSERT_FALSE(SiVede("picPlaylist"));
  EXPECT_EQ(hub->Barra->menuAltro.actions().front()->text(), "Playlists…");
}

TEST_F(HubLayout, AModelWithoutADatabaseSaysThatNothingCanBeKept) {
  Progetto(2, 0, 3);
  Apri();
  EXPECT_TRUE(SiVede("fraIngressiLogici"));
  EXPECT_EQ(Testo("lblCifre"),
            "This project lacks its database of inputs: assignments can't be kept.");
}

TEST_F(HubLayout, FitsTheWindowItComesUpInWithoutScrolling) {
  struct Kind {
    std::int16_t Type, Mode, Config;
  };
  for (const Kind& kind : {Kind{1, 0, 0}, Kind{2, 0, 0}, Kind{2, 0, 3}, Kind{3, 1, 0},
                           Kind{3, 2, 0}, Kind{4, 1, 0}, Kind{4, 2, 0}, Kind{4, 5, 0}}) {
    Progetto(kind.Type, kind.Mode, kind.Config);
    Apri();
    QCoreApplication::processEvents();
    const auto* middle = hub->findChild<QScrollArea*>();
    EXPECT_EQ(middle->verticalScrollBar()->maximum(), 0) << kind.Type << " " << kind.Mode;
    EXPECT_EQ(middle->horizontalScrollBar()->maximum(), 0) << kind.Type << " " << kind.Mode;
    Chiudi();
    std::filesystem::remove_all(b.Cartella.Host() / "program/Projects/Hall");
  }
}

TEST_F(HubLayout, WithTheExternalPlayerThereIsNothingToStop) {
  Progetto(4, 1);
  b.C.Stato.UsaPlayerEsterno = true;
  Apri();
  EXPECT_TRUE(Trova<QWidget>("cmdStopMp3").isHidden());
  EXPECT_TRUE(Trova<QWidget>("cmdMp3Preview_Stop").isHidden());
  EXPECT_TRUE(SiVede("cmdPlayMp3"));
}

TEST_F(HubLayout, FadesLieWhereTheHiddenPlaylistLoopWouldBe) {
  Progetto(4, 1);
  Apri();
  QWidget& fade = Trova<QWidget>("fraFADE");
  QWidget& extra = Trova<QWidget>("fraExtra");
  EXPECT_LT(fade.y() - extra.geometry().bottom(), 15) << "no hole between them";
}

TEST_F(HubLayout, AProjectThatDoesntDescribeItselfShowsItsModel) {
  Progetto(2, 1);
  for (const char* description : {"", "  ", "of my own"}) {
    SCOPED_TRACE(description);
    b.C.Stato.PlayerConfigDesc = description;
    Apri();
    EXPECT_EQ(SiVede("lblModello"), std::string(description) != "of my own");
    EXPECT_EQ(Testo("lblModello"), "Zub");
    Chiudi();
  }
}

TEST_F(HubLayout, TheModeIsToldFromTheDescription) {
  struct Case {
    const char* Description;
    const char* Big;
    const char* Zub;
  };
  Progetto(4, 5);
  for (const auto& each :
       {Case{"KVR5 (Inputs)", "Mode:Inputs", "Inputs"},
        Case{"KVR5 ( Playlist 2 )", "Mode:Playlist 2", "Playlist 2"},
        Case{"Zub Player 3 inputs", "Mode:3 inputs", "3 inputs"}, Case{"of my own", "Mode:", ""}}) {
    b.C.Stato.PlayerConfigDesc = each.Description;
    Apri();
    EXPECT_EQ(Testo("lblTipoPlayer"), each.Description);
    for (const char* name :
         {"lblModoPanel", "lblModoPanelBig", "lblModoOstrel", "lblModoOstrelBig"}) {
      EXPECT_EQ(Testo(name), each.Big) << name;
    }
    EXPECT_EQ(Testo("lblModoZub"), each.Zub);
    EXPECT_EQ(Testo("lblModoZubBig"), each.Zub);
    Chiudi();
  }
}

}  // namespace
}  // namespace kvr5
