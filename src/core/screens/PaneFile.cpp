#include "core/screens/PaneFile.h"

#include <QShortcut>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/ParoleCopia.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {

PaneFile::PaneFile(Contesto& contesto, int tag, QWidget* padre)
    : Riquadro("fraFile", {}, -1, padre), contesto_(contesto) {
  Costruisci(tag);
  DirDirectoryMp3->SuCambio = [this] {
    const QString folder = Qs(PercorsoPerPersone(contesto_, DirDirectoryMp3->Percorso()));
    lblPercorso->setText(folder);
    lblPercorso->setToolTip(Suggerimento(folder));
    txtCerca->clear();
    Riempi();
    if (SuCartella) SuCartella();
  };
  connect(txtCerca, &QLineEdit::textChanged, this, [this] { Cerca(false); });
  connect(txtCerca, &QLineEdit::returnPressed, this, [this] { Cerca(true); });
  const auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, this, [this] {
    txtCerca->setFocus();
    txtCerca->selectAll();
  });
}

void PaneFile::Costruisci(int tag) {
  picDisk = new Coppia("picDisk", "", {}, "cartella", -1, this);
  picDisk->ImpostaGenere(Coppia::Genere::Quieto);
  lblMp3_Dir = NuovaEtichetta("lblMp3_Dir", QStringLiteral("MP3 Directory"), tag, this);
  Veste(*lblMp3_Dir, Carattere::Riquadro);
  lblPercorso = new EtichettaElisa("lblPercorso", this, Qt::ElideMiddle);
  Veste(*lblPercorso, Carattere::Suggerimento, Ruolo::Attenuato);
  auto* words = new QVBoxLayout();
  words->setSpacing(0);
  words->addWidget(lblMp3_Dir);
  words->addWidget(lblPercorso);
  auto* top = new QHBoxLayout();
  top->addWidget(picDisk);
  top->addLayout(words, 1);
  Corpo()->addLayout(top);
  DirDirectoryMp3 = new ElencoCartelle(contesto_, "DirDirectoryMp3", this);
  DirDirectoryMp3->setMinimumHeight(64);
  lblMp3_Dir->setBuddy(DirDirectoryMp3);
  Corpo()->addWidget(DirDirectoryMp3, 3);
  txtCerca = new CasellaCerca(this);
  Corpo()->addWidget(txtCerca);
  filMp3 = new ElencoFile(contesto_, this);
  filMp3->setMinimumHeight(96);
  Corpo()->addWidget(filMp3, 5);
  lblVuota = NuovaEtichetta("lblVuota", {}, -1, this);
  Veste(*lblVuota, Carattere::Suggerimento, Ruolo::Attenuato);
  Corpo()->addWidget(lblVuota);
}

void PaneFile::Riempi() {
  file_ = FileDelPannello(DirDirectoryMp3->Voci());
  filMp3->Mostra(DirDirectoryMp3->Percorso(), file_);
  lblVuota->setVisible(file_.empty());
  txtCerca->setEnabled(!file_.empty());
  txtCerca->setToolTip(Qs(TestoLingua(contesto_, file_.empty() ? "0130138" : "0050111")));
}

bool PaneFile::Rileggi() {
  if (!DirDirectoryMp3->Rileggi()) return false;
  Riempi();
  return true;
}

std::vector<std::string> PaneFile::Nomi() const {
  return NomiDa(file_);
}

void PaneFile::Cerca(bool prossimo) {
  const bool found = filMp3->Cerca(txtCerca->text(), prossimo);
  txtCerca->MostraEsito(found);
}

void PaneFile::Localizza() {
  const auto text = [this](const char* key) { return Qs(TestoLingua(contesto_, key)); };
  picDisk->ImpostaScritta(text("0130171"));
  lblVuota->setText(text("0130138"));
  txtCerca->ImpostaParole(text("0050112"), text("0050111"), text("0050110"));
  filMp3->setAccessibleName(text("0050124"));
  DirDirectoryMp3->setAccessibleName(text("0130180"));
}

}  // namespace kvr5
