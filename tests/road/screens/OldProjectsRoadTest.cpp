#include <QFileDialog>

#include "core/screens/RiquadroMessaggio.h"
#include "projects/CartellaProgetto.h"
#include "projects/screens/frmCaricaProgetto.h"
#include "road/screens/StradaDeiModelli.h"
#include "support/ProgettoVecchio.h"
#include "support/screens/Scelte.h"

// A project of each model and mode as an earlier program left it on another computer comes in by
// the list, has its files found, is recorded as it ever was, and then changed and recorded again.

namespace kvr5 {
namespace {

using test::Clicca;
using test::Foto;
using test::Modello;

class OldProjectsRoad : public test::StradaDeiModelli {
 protected:
  using Box = test::Pilota<RiquadroMessaggio>;

  /// Takes the next box, whose title is this.
  static Box Says(const QString& title) {
    return Box([title](RiquadroMessaggio& box) {
      EXPECT_EQ(box.windowTitle(), title);
      Clicca(box, "cmdOk");
    });
  }
  static std::string InProject(const std::string& name) {
    return std::string(kProgetto) + "/" + name;
  }
  /// The project Bar as the earlier program has it.
  void MakeOld() {
    for (const char* database : kDatabaseProgetto) {
      test::RendiVecchio(b.Disco, b.Cartella, InProject(database));
      if (b.Cartella.Exists(InProject(database))) {
        originals[database] = b.Cartella.Read(InProject(database));
      }
    }
    ASSERT_FALSE(originals.empty());
  }
  void OpenOld() {
    frmCaricaProgetto& list = TornaAllElenco();
    MakeOld();
    {
      const auto taken = Says("Project taken over");
      test::Tasto(list, Qt::Key_Return);
    }
    Hub();
    for (const auto& [name, bytes] : originals) {
      EXPECT_TRUE(b.Cartella.Read(InProject("Originals/" + name)) == bytes) << name;
    }
  }
  /// The one of the hub's buttons that is seen; null for none.
  Coppia* FindButton() {
    for (Coppia* each : {Hub().Assegnazioni->picTrova, Hub().Pannello->picTrovaBrani}) {
      if (each->isVisible()) return each;
    }
    return nullptr;
  }
  void Find() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return FindButton() != nullptr; }));
    {
      const auto browser = test::RispondiCartella(Host("music").string());
      const auto told = Says("Missing files");
      Clicca(*FindButton());
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return FindButton() == nullptr; }));
  }
  /// The card F as the card E was, but for the databases, which are of the other format.
  void ExpectTheSameCard() {
    Foto now = Byte("card2");
    for (const auto& [name, bytes] : originals) {
      EXPECT_EQ(now.erase(name), first.erase(name)) << name;
    }
    ExpectUguali(first, now);
  }
  void Edit() {
    const auto kind = GetParam().Edit;
    if (kind == Modello::Schedule) {
      Palinsesto({"segment add", "time 21 0", "spot add 1 b/10.mp3"}, false);
    } else if (kind != Modello::None) {
      Sessione({"add b/10.mp3"}, false);
    }
    CambiaVolumeESalva();
  }

  Foto originals;  ///< the databases of the earlier program
};

TEST_P(OldProjectsRoad, ComesInIsFoundAgainRecordedChangedAndRecordedOnceMore) {
  RecordFirst();
  OpenOld();
  Find();
  ScegliScheda('F');
  Registra();
  EXPECT_EQ(Verifica(), "");
  ExpectTheSameCard();
  const std::size_t before = Byte("card2").size();
  Edit();
  EXPECT_NE(Verifica(), "") << "what was changed isn't on the card";
  Registra();
  EXPECT_EQ(Verifica(), "");
  EXPECT_GE(Byte("card2").size(), before + (GetParam().Edit != Modello::None ? 1 : 0));
}

INSTANTIATE_TEST_SUITE_P(Models, OldProjectsRoad, testing::ValuesIn(test::kModelli),
                         [](const auto& each) { return std::string(each.param.Name); });

}  // namespace
}  // namespace kvr5
