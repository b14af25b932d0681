#include "road/screens/ManoPalinsesto.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QTest>
#include <QToolButton>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "core/screens/frmSiNo.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {
namespace {

constexpr const char* kNotice = " !";

std::vector<std::string> WordsOf(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

/// Takes the marks of the notices off; how many there were.
int TakeNotices(std::string& line) {
  int notices = 0;
  for (; line.ends_with(kNotice); ++notices) line.resize(line.size() - 2);
  return notices;
}

void PressYes(frmSiNo& box) {
  Clicca(*box.cmdSi);
}

}  // namespace

void CliccaFile(frmPalinsesto& editor, const std::string& nome) {
  editor.fraFileInfo->tmrInfoMp3.setInterval(0);
  ElencoFile& pane = *editor.fraFile->filMp3;
  Clicca(*pane.viewport(), PostoDi(pane, nome));
  const auto judged = [&editor] {
    return editor.Editor().FileMp3Valido || !editor.fraFileInfo->lblBadFileType->isHidden();
  };
  EXPECT_TRUE(QTest::qWaitFor(judged)) << nome << " isn't judged";
}

void PalinsestoAMano::Esegui(const Passi& passi) {
  for (std::string line : passi) {
    std::vector<std::unique_ptr<Pilota<frmSiNo>>> boxes;
    const int notices = TakeNotices(line) + (line == "segment remove" ? 1 : 0);
    for (int i = 0; i < notices; ++i) {
      boxes.push_back(std::make_unique<Pilota<frmSiNo>>(PressYes));
    }
    SCOPED_TRACE(line);
    UnComando(WordsOf(line));
    LasciaCorrere();
  }
}

void PalinsestoAMano::LasciaCorrere() {
  QCoreApplication::processEvents();
  if (!e_.isActiveWindow()) e_.activateWindow();
  EXPECT_TRUE(Pronta(e_));
}

void PalinsestoAMano::UnComando(const Parole& parole) {
  if (parole[0] == "day") {
    const int entry = e_.cmbGiorno->findData(std::stoi(parole.at(1)));
    ScegliVoce(*e_.cmbGiorno, e_.cmbGiorno->itemText(entry).toStdString());
  } else if (parole[0] == "segment") {
    Segmento(parole);
  } else if (parole[0] == "spot") {
    Spot(parole);
  } else if (parole[0] == "time") {
    Orario(parole.at(1), parole.at(2));
  } else {
    throw std::logic_error("no command: " + parole[0]);
  }
}

void PalinsestoAMano::Segmento(const Parole& parole) {
  if (parole[1] == "select") return Scegli(std::stoll(parole.at(2)));
  if (parole[1] == "add") return Clicca(*e_.Segmenti->picAggiungiSegmento);
  if (parole[1] == "remove") return Clicca(*e_.Segmenti->picRimuoviSegmento);
  if (++copiati_ % 2 == 0) {
    e_.Segmenti->mnuDuplicaRiga->trigger();
  } else {
    Clicca(*e_.Segmenti->picCopiaSegmento);
  }
}

void PalinsestoAMano::Scegli(std::int64_t id) {
  GrigliaSegmenti& grid = *e_.Segmenti->grdSegmenti;
  const int row = grid.RigaDi(id);
  if (row < 0) throw std::logic_error("the day has no such segment");
  const QModelIndex cell = grid.model()->index(row, ModelloSegmenti::Inizio);
  grid.scrollTo(cell);
  Clicca(*grid.viewport(), grid.visualRect(cell).center());
  EXPECT_EQ(e_.Editor().SegmentoCorrente(), id);
}

void PalinsestoAMano::Orario(const std::string& ore, const std::string& minuti) {
  CampoOra& hours = *e_.picDettaglio->txtOre;
  CampoOra& minutes = *e_.picDettaglio->txtMin;
  CampoOra& first = hours.isEnabled() ? hours : minutes;
  if (!first.hasFocus()) Clicca(first);  // it has it after an add
  if (hours.isEnabled()) {
    Digita(hours, ore);
    EXPECT_EQ(e_.focusWidget(), &minutes);
  }
  Digita(minutes, minuti);
  EXPECT_EQ(e_.focusWidget(), e_.picDettaglio->grdDettaglio);
}

void PalinsestoAMano::Digita(CampoOra& campo, const std::string& testo) {
  EXPECT_TRUE(QTest::qWaitFor([&] { return campo.selectedText() == campo.text(); }));
  Scrivi(e_, QString::fromStdString(testo));
  Tasto(e_, Qt::Key_Return);
  LasciaCorrere();
}

void PalinsestoAMano::Spot(const Parole& parole) {
  const auto slot = static_cast<std::size_t>(std::stoi(parole.at(2)) - 1);
  if (parole[1] == "add") return Aggiungi(slot, radice_ / parole.at(3));
  if (parole[1] == "remove") return Clicca(*e_.picDettaglio->picRimuoviSpot.at(slot));
  const FrecceSpot& arrows = *e_.picDettaglio->UpDownFile.at(slot);
  Clicca(parole[1] == "up" ? *arrows.Su : *arrows.Giu);
}

void PalinsestoAMano::Aggiungi(std::size_t slot, const std::filesystem::path& file) {
  VaiA(file.parent_path());
  const int before = QuantiSpot();
  const bool free = static_cast<int>(slot) == before;
  const std::string name = file.filename().string();
  if (free && ++aggiunti_ % 2 == 0) {
    ElencoFile& pane = *e_.fraFile->filMp3;
    CliccaDoppio(*pane.viewport(), PostoDi(pane, name));
  } else {
    CliccaFile(e_, name);
    Clicca(*e_.picDettaglio->picAggiungiSpot.at(slot));
  }
  EXPECT_EQ(QuantiSpot(), before + (free ? 1 : 0)) << file;
}

void PalinsestoAMano::VaiA(const std::filesystem::path& cartella) {
  QLabel& shown = *e_.fraFile->lblPercorso;
  const auto now = [&shown] { return std::filesystem::path(shown.toolTip().toStdString()); };
  if (now() == cartella) return;
  if (now().parent_path() == cartella.parent_path()) {
    QListWidget& folders = *e_.fraFile->DirDirectoryMp3;
    for (const std::string& step : {std::string(".."), cartella.filename().string()}) {
      CliccaDoppio(*folders.viewport(), PostoDi(folders, step));
    }
  } else {
    const Pilota<QFileDialog> browser(
        [&](QFileDialog& chooser) { ScegliCartella(chooser, cartella.string()); });
    Clicca(*e_.fraFile->picDisk);
  }
  EXPECT_EQ(now(), cartella);
}

std::string TestoPalinsesto(const Passi& passi, const std::filesystem::path& radice) {
  std::string text;
  for (std::string line : passi) {
    TakeNotices(line);
    const auto words = WordsOf(line);
    if (line == "segment remove") {
      text += "yes\nsegment remove\n";
    } else if (words.size() == 4 && words[1] == "add") {
      text += "spot add " + words[2] + " \"" + (radice / words[3]).string() + "\"\n";
    } else {
      text += line + "\n";
    }
  }
  return text;
}

}  // namespace kvr5::test
