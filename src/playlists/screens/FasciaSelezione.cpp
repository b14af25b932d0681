#include "playlists/screens/FasciaSelezione.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include "core/Lingua.h"
#include "core/Parole.h"
#include "core/screens/Pagina.h"
#include "core/screens/SenzaRotella.h"
#include "core/screens/SpuntaAlClic.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr std::uint32_t kLampOn = 255;
constexpr std::uint32_t kLampOff = 0xFFFFFF;

/// A group of the band: its controls in one line.
QWidget* GroupOf(const char* name, std::initializer_list<QWidget*> controls, QWidget* parent) {
  auto* group = new QWidget(parent);
  group->setObjectName(QLatin1String(name));
  auto* line = Riga(controls);
  line->setContentsMargins(0, 0, 0, 0);
  group->setLayout(line);
  return group;
}

}  // namespace

FasciaSelezione::FasciaSelezione(Contesto& contesto, QWidget* padre)
    : QWidget(padre), contesto_(contesto) {
  lblSelectPlaylist =
      NuovaEtichetta("lblSelectPlaylist", QStringLiteral("Select Playlist"), 1, this);
  cmbPlaylist = new QComboBox(this);
  cmbPlaylist->setObjectName(QStringLiteral("cmbPlaylist"));
  cmbPlaylist->setMinimumWidth(220);
  cmbPlaylist->setMaxVisibleItems(20);
  SenzaRotella(*cmbPlaylist);
  lblSelectPlaylist->setBuddy(cmbPlaylist);
  picfraSelezionePlaylist =
      GroupOf("picfraSelezionePlaylist", {lblSelectPlaylist, cmbPlaylist}, this);
  picFraIngresso = CostruisciIngressi();
  lblAddRemovePlaylist =
      NuovaEtichetta("lblAddRemovePlaylist", QStringLiteral("Add/Remove playlist"), 3, this);
  picAggiungiPL =
      new Coppia("picAggiungiPL", "lblAggiungi", QStringLiteral("Add"), "nuovo", 4, this);
  picRimuoviPL =
      new Coppia("picRimuoviPL", "lblRimuovi", QStringLiteral("Remove"), "rimuovi", 6, this);
  lblAggiungi = picAggiungiPL->Etichetta();
  lblRimuovi = picRimuoviPL->Etichetta();
  picfraAddRemovePL =
      GroupOf("picfraAddRemovePL", {lblAddRemovePlaylist, picAggiungiPL, picRimuoviPL}, this);
  auto* line = Riga({picfraSelezionePlaylist, picFraIngresso, picfraAddRemovePL, nullptr});
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(spazi::kLargo);
  setLayout(line);
  connect(cmbPlaylist, &QComboBox::activated, this, [this](int index) {
    if (SuVoce) SuVoce(index);
  });
}

QWidget* FasciaSelezione::CostruisciIngressi() {
  lblIngressi = NuovaEtichetta("lblIngressi", QStringLiteral("Inputs"), 2, this);
  QWidget* group = GroupOf("picFraIngresso", {lblIngressi}, this);
  auto* line = static_cast<QHBoxLayout*>(group->layout());
  for (std::size_t i = 0; i < chkIn.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    shaIn[i] = new Lampada(number, group);
    chkIn[i] = new QCheckBox(group);
    chkIn[i]->setObjectName(NomeElemento("chkIn", number));
    lblPlaylistNumber[i] = NuovaEtichetta("", QString::number(number), -1, group);
    lblPlaylistNumber[i]->setObjectName(NomeElemento("lblPlaylistNumber", number));
    lblPlaylistNumber[i]->setBuddy(chkIn[i]);
    SpuntaAlClic(*lblPlaylistNumber[i], *chkIn[i]);
    auto* one = Riga({shaIn[i], chkIn[i], lblPlaylistNumber[i]});
    one->setSpacing(2);
    line->addLayout(one);
    connect(chkIn[i], &QCheckBox::toggled, this, [this, number](bool on) {
      if (SuIngresso) SuIngresso(number, on);
    });
  }
  return group;
}

void FasciaSelezione::Disponi(const DisposizionePlaylist& disposizione) {
  picfraSelezionePlaylist->setVisible(disposizione.picfraSelezionePlaylist);
  picFraIngresso->setVisible(disposizione.picFraIngresso);
  picfraAddRemovePL->setVisible(disposizione.picfraAddRemovePL);
  setVisible(disposizione.picfraSelezionePlaylist || disposizione.picFraIngresso ||
             disposizione.picfraAddRemovePL);
}

void FasciaSelezione::Mostra(const EditorPlaylist& editor) {
  const QSignalBlocker quiet(cmbPlaylist);
  if (voci_ != editor.Voci()) {
    voci_ = editor.Voci();
    cmbPlaylist->clear();
    for (const VocePlaylist& each : voci_) {
      cmbPlaylist->addItem(Qs(SuUnaRiga(each.Testo)), each.ItemData);
    }
  }
  cmbPlaylist->setCurrentIndex(editor.Indice());
  for (std::size_t i = 0; i < chkIn.size(); ++i) {
    const QSignalBlocker same(chkIn[i]);
    const bool on = editor.Ingresso(static_cast<int>(i) + 1);
    chkIn[i]->setChecked(on);
    shaIn[i]->Imposta(on ? kLampOn : kLampOff, on);
  }
}

void FasciaSelezione::Localizza() {
  const std::string name = TestoLinguaO(contesto_, "0130178", "Input %1");
  for (std::size_t i = 0; i < chkIn.size(); ++i) {
    chkIn[i]->setAccessibleName(Qs(ConValori(name, {std::to_string(i + 1)})));
  }
}

}  // namespace kvr5
