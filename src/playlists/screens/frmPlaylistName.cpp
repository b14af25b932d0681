#include "playlists/screens/frmPlaylistName.h"

#include <QVBoxLayout>

#include "core/Aiuti.h"
#include "core/Lingua.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "platform/Path.h"
#include "playlists/NomiPlaylist.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormPlaylistName = 15;

}  // namespace

frmPlaylistName::frmPlaylistName(Ambiente& ambiente) : Form(ambiente, "frmPlaylistName") {
  setWindowTitle(QStringLiteral("Select Playlist Name"));
  resize(480, 300);
  Costruisci();
  Collega();
}

void frmPlaylistName::Costruisci() {
  auto* page = NuovaPagina(*this);
  lblNomePlaylist = NuovaEtichetta("lblNomePlaylist", QStringLiteral("PlaylistName"), 1, this);
  Veste(*lblNomePlaylist, Carattere::Schermata);
  picHelp = NuovoAiuto(this);
  page->addLayout(Riga({lblNomePlaylist, nullptr, picHelp}));
  txtNomePlaylist = new QLineEdit(this);
  txtNomePlaylist->setObjectName(QStringLiteral("txtNomePlaylist"));
  txtNomePlaylist->setMaxLength(static_cast<int>(kCaratteriNomePlaylist));
  lblNomePlaylist->setBuddy(txtNomePlaylist);
  page->addWidget(txtNomePlaylist);
  lblCaratteriDisponibili =
      NuovaEtichetta("lblCaratteriDisponibili", QStringLiteral("CharsLeft:8/8"), 2, this);
  Veste(*lblCaratteriDisponibili, Carattere::Suggerimento, Ruolo::Attenuato);
  page->addWidget(lblCaratteriDisponibili);
  lblWarn = new EtichettaAvviso("lblWarn", QStringLiteral("Warning"), Carattere::Riquadro, this);
  lblWarn->setProperty(kTag, 5);
  lblNota = new EtichettaAvviso("lblNota", {}, Carattere::Suggerimento, this);
  for (EtichettaAvviso* each : {lblWarn, lblNota}) {
    each->setWordWrap(true);
    each->hide();
    page->addWidget(each);
  }
  page->addStretch(1);
  picCancel = new Coppia("picCancel", "lblCanc", QStringLiteral("Cancel"), "indietro", 4, this);
  picOk = new Coppia("picOk", "lblOk", QStringLiteral("OK"), "fatto", 3, this);
  picOk->ImpostaGenere(Coppia::Genere::Primario);
  lblCanc = picCancel->Etichetta();
  lblOk = picOk->Etichetta();
  page->addLayout(Riga({picCancel, nullptr, picOk}));
  OrdineTab({txtNomePlaylist, picCancel, picOk, picHelp});
}

void frmPlaylistName::Collega() {
  connect(txtNomePlaylist, &QLineEdit::textChanged, this, [this] { CambiaNome(); });
  connect(txtNomePlaylist, &QLineEdit::returnPressed, this, [this] { Conferma(); });
  connect(picOk, &QAbstractButton::clicked, this, [this] { Conferma(); });
  connect(picCancel, &QAbstractButton::clicked, this, [this] { Annulla(); });
  connect(picHelp, &QAbstractButton::clicked, this, [this] { Aiuto(); });
  SuTasto(Qt::Key_Escape, [this] { Annulla(); });
  SuTasto(Qt::Key_F1, [this] { Aiuto(); });
}

void frmPlaylistName::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  LocalizzaForm(C(), kFormPlaylistName, *this);
  prefisso_ = lblCaratteriDisponibili->text() + QStringLiteral(": ");
  avviso_ = lblWarn->text();
  lblNota->setText(Qs(TestoLingua(C(), "0150101")));
  lblWarn->hide();  // nothing was typed yet
  txtNomePlaylist->setFocus();
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
}

void frmPlaylistName::CambiaNome() {
  const std::string name = Std(txtNomePlaylist->text());
  const bool blank = Rifila(name).empty();
  lblWarn->setText(avviso_);
  lblWarn->setVisible(blank);
  const auto left = txtNomePlaylist->maxLength() - txtNomePlaylist->text().size();
  lblCaratteriDisponibili->setText(prefisso_ + QString::number(left));
  const bool allowed = name.find_first_of(kVietatiNomePlaylist) == std::string::npos;
  lblNota->setVisible(!blank && allowed && !CardCanHold(std::string(Rifila(name)) + ".m3u"));
}

void frmPlaylistName::Conferma() {
  const std::string name = Std(txtNomePlaylist->text());
  if (Rifila(name).empty()) return;
  const std::string fault = DifettoNomePlaylist(C(), name);
  if (!fault.empty()) {
    lblWarn->setText(QsRighe(fault));
    lblWarn->show();
    txtNomePlaylist->setFocus();
    return;
  }
  C().Stato.NomePlaylistScelta = name;
  Scarica();
}

void frmPlaylistName::Annulla() {
  C().Stato.NomePlaylistScelta.clear();
  Scarica();
}

bool frmPlaylistName::PuoChiudere(Causa causa) {
  if (causa == Causa::Utente) C().Stato.NomePlaylistScelta.clear();
  return true;
}

}  // namespace kvr5
