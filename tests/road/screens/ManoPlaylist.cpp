#include "road/screens/ManoPlaylist.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QTest>
#include <stdexcept>

#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"
#include "support/screens/Scelte.h"

namespace kvr5::test {

void CliccaFile(frmPlaylistEditor& editor, const std::string& nome) {
  editor.fraFileInfo->tmrInfoMp3.setInterval(0);
  ElencoFile& pane = *editor.fraFile->filMp3;
  Clicca(*pane.viewport(), PostoDi(pane, nome));
  const auto judged = [&editor] {
    return !editor.cmdAggiungiFile->isHidden() || !editor.fraFileInfo->lblBadFileType->isHidden();
  };
  EXPECT_TRUE(QTest::qWaitFor(judged)) << nome << " isn't judged";
}

void CliccaFileDueVolte(frmPlaylistEditor& editor, const std::string& nome) {
  ElencoFile& pane = *editor.fraFile->filMp3;
  CliccaDoppio(*pane.viewport(), PostoDi(pane, nome));
}

void CliccaBrano(frmPlaylistEditor& editor, int riga) {
  GrigliaPlaylist& grid = *editor.Brani->grdPlaylist;
  const QModelIndex name = grid.model()->index(riga, ModelloBrani::Nome);
  grid.scrollTo(name);
  Clicca(*grid.viewport(), grid.visualRect(name).center());
}

void SessioneAMano::Esegui(const Passi& passi) {
  for (const std::string& each : passi) {
    const std::size_t blank = std::min(each.find(' '), each.size() - 1);
    UnComando(each.substr(0, blank), each.substr(blank + 1));
  }
}

void SessioneAMano::UnComando(const std::string& parola, const std::string& resto) {
  if (parola == "select") {
    QComboBox& entries = *e_.Fascia->cmbPlaylist;
    ScegliVoce(entries, entries.itemText(std::stoi(resto)).toStdString());
  } else if (parola == "add") {
    Aggiungi(radice_ / resto);
  } else if (parola == "addall") {
    VaiA(radice_ / resto);
    Clicca(*e_.cmdAggiungiTuttiFiles);
  } else if (parola == "new") {
    Nuova(resto);
  } else if (parola == "inputs") {
    Ingressi(std::stoi(resto));
  } else {
    VaiAlPosto(resto);
    Clicca(parola == "remove" ? *e_.cmdRimuoviFile
           : parola == "up"   ? *e_.Brani->cmdSpostaSu
                              : *e_.Brani->cmdSpostaGiu);
  }
}

void SessioneAMano::VaiA(const std::filesystem::path& cartella) {
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

void SessioneAMano::Aggiungi(const std::filesystem::path& file) {
  VaiA(file.parent_path());
  const int before = e_.Brani->grdPlaylist->model()->rowCount();
  if (++aggiunti_ % 2 == 0) {
    CliccaFile(e_, file.filename().string());
    Clicca(*e_.cmdAggiungiFile);
  } else {
    CliccaFileDueVolte(e_, file.filename().string());
  }
  EXPECT_EQ(e_.Brani->grdPlaylist->model()->rowCount(), before + 1) << file;
}

void SessioneAMano::VaiAlPosto(const std::string& pos) {
  const QAbstractItemModel& rows = *e_.Brani->grdPlaylist->model();
  for (int row = 0; row < rows.rowCount(); ++row) {
    if (rows.index(row, ModelloBrani::Posto).data().toString().toStdString() != pos) continue;
    return CliccaBrano(e_, row);
  }
  throw std::logic_error("no track is at " + pos);
}

void SessioneAMano::Nuova(const std::string& nome) {
  const Pilota<frmPlaylistName> dialog([&](frmPlaylistName& form) {
    Scrivi(form, QString::fromStdString(nome));
    Clicca(*form.picOk);
  });
  Clicca(*e_.Fascia->picAggiungiPL);
}

void SessioneAMano::Ingressi(int bit) {
  for (std::size_t i = 0; i < e_.Fascia->chkIn.size(); ++i) {
    const bool on = (bit >> i & 1) != 0;
    if (e_.Fascia->chkIn[i]->isChecked() != on) Clicca(*e_.Fascia->chkIn[i]);
  }
}

std::string TestoSessione(const Passi& passi, const std::filesystem::path& radice) {
  std::string text;
  for (const std::string& each : passi) {
    const std::size_t blank = each.find(' ');
    const std::string name = each.substr(0, blank);
    const bool file = name == "add" || name == "addall";
    text += file ? name + " \"" + (radice / each.substr(blank + 1)).string() + "\"" : each;
    text += "\n";
  }
  return text;
}

}  // namespace kvr5::test
