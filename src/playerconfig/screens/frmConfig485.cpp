#include "playerconfig/screens/frmConfig485.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "core/Lingua.h"
#include "core/screens/Avvisi.h"
#include "core/screens/EtichettaElisa.h"
#include "core/screens/LocalizzaForm.h"
#include "core/screens/Pagina.h"
#include "core/screens/Riquadro.h"
#include "core/screens/SpuntaAlClic.h"
#include "core/screens/Tema.h"
#include "core/screens/Testo.h"
#include "playerconfig/LineaSeriale.h"
#include "projects/Descrittore.h"

namespace kvr5 {
namespace {

constexpr std::int16_t kFormConfig485 = 11;
constexpr std::int16_t kOstrel = 3;
constexpr int kTagDefaults485 = 3;
constexpr int kTagUse485 = 4;
constexpr int kTagChangePage = 5;

QGridLayout* RowsOf(QWidget* page) {
  auto* rows = new QGridLayout(page);
  rows->setContentsMargins(0, 0, 0, 0);
  return rows;
}

}  // namespace

frmConfig485::frmConfig485(Ambiente& ambiente)
    : SchermoParametri(ambiente, "frmConfig485", SchermoParametro::Seriale, kFormConfig485) {
  setWindowTitle(QStringLiteral("RS485"));
  resize(700, 590);
  auto* body = new QWidget(this);
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(spazi::kMedio);
  lblFunzionamento = new EtichettaElisa("lblFunzionamento", body);
  Veste(*lblFunzionamento, Carattere::Corpo, Ruolo::Attenuato);
  rows->addWidget(lblFunzionamento);
  rows->addWidget(CostruisciUso(body));
  rows->addWidget(CostruisciPagine(body));
  rows->addStretch();
  picDefaults = NuoviPredefiniti(kTagDefaults485);
  lblDefaults = picDefaults->Etichetta();
  connect(picDefaults, &QAbstractButton::clicked, this, [this] { Predefinisci(); });
  CostruisciPagina(nullptr, body, picDefaults);
  OrdineTab({picHelp, chkUse485, cmbCMAD, cmbCMCK, cmbCMCL, cmbCMBR, cmbCMPR, cmbCMSB, cmbCMDB,
             cmbCMDR, cmbCMI3, cmbORI3, imgPagina2, picCancel, picDefaults, picSave});
}

QWidget* frmConfig485::CostruisciUso(QWidget* corpo) {
  auto* frame = new Riquadro("picUse485", {}, -1, corpo);
  picUse485 = frame;
  chkUse485 = new QCheckBox(frame);
  chkUse485->setObjectName(QStringLiteral("chkUse485"));
  lblDescrizione = TestoLungo("lblDescrizione", QStringLiteral("Use 485"), frame);
  lblDescrizione->setProperty(kTag, kTagUse485);
  SpuntaAlClic(*lblDescrizione, *chkUse485);
  auto* line = Riga({chkUse485, lblDescrizione});
  line->setStretch(1, 1);
  frame->Corpo()->addLayout(line);
  frame->hide();
  return frame;
}

QWidget* frmConfig485::CostruisciPagine(QWidget* corpo) {
  auto* frame = new Riquadro("fraPorta", {}, -1, corpo);
  pagine_ = new QStackedLayout();
  pagine_->addWidget(CostruisciPrima(frame));
  pagine_->addWidget(CostruisciSeconda(frame));
  frame->Corpo()->addLayout(pagine_);
  picPagina2 = new QWidget(frame);
  picPagina2->setObjectName(QStringLiteral("picPagina2"));
  imgPagina2 = new Coppia("imgPagina2", "lblCambiaPagina", QStringLiteral("Cambia Pagina"),
                          "duplica", kTagChangePage, picPagina2);
  lblCambiaPagina = imgPagina2->Etichetta();
  auto* line = new QHBoxLayout(picPagina2);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(imgPagina2);
  line->addStretch();
  frame->Corpo()->addWidget(picPagina2);
  picPagina2->hide();
  connect(imgPagina2, &QAbstractButton::clicked, this, [this] { CambiaPagina(); });
  return frame;
}

QWidget* frmConfig485::CostruisciPrima(QWidget* cornice) {
  auto* page = new QWidget(cornice);
  auto* rows = new QVBoxLayout(page);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(spazi::kStretto);
  indirizzo_ = new QWidget(page);
  cmbCMAD = RigaElenco(*RowsOf(indirizzo_), "cmbCMAD", "CMAD", "Address", 6, indirizzo_);
  picContenitore = new QWidget(page);
  picContenitore->setObjectName(QStringLiteral("picContenitore"));
  struct Row {
    QComboBox** List;
    const char *Name, *Key, *Words;
    int Tag;
  };
  QGridLayout* grid = RowsOf(picContenitore);
  for (const Row& row : {Row{&cmbCMCK, "cmbCMCK", "CMCK", "Checksum", 7},
                         Row{&cmbCMCL, "cmbCMCL", "CMCL", "CR LF", 8},
                         Row{&cmbCMBR, "cmbCMBR", "CMBR", "Baud rate", 9},
                         Row{&cmbCMPR, "cmbCMPR", "CMPR", "Parity", 10},
                         Row{&cmbCMSB, "cmbCMSB", "CMSB", "Stop bits", 11},
                         Row{&cmbCMDB, "cmbCMDB", "CMDB", "Data bits", 20},
                         Row{&cmbCMDR, "cmbCMDR", "CMDR", "Delay", 21}}) {
    *row.List = RigaElenco(*grid, row.Name, row.Key, row.Words, row.Tag, picContenitore);
  }
  rows->addWidget(indirizzo_);
  rows->addWidget(picContenitore);
  rows->addStretch();
  return page;
}

QWidget* frmConfig485::CostruisciSeconda(QWidget* cornice) {
  picRele = new QWidget(cornice);
  picRele->setObjectName(QStringLiteral("picRele"));
  QGridLayout* grid = RowsOf(picRele);
  cmbCMI3 = RigaElenco(*grid, "cmbCMI3", "CMI3", "Relay", 23, picRele);
  cmbORI3 = RigaElenco(*grid, "cmbORI3", "ORI3", "Contact", 30, picRele);
  grid->setRowStretch(grid->rowCount(), 1);
  picRele->hide();
  return picRele;
}

void frmConfig485::CambiaPagina() {
  pagine_->setCurrentIndex(picRele->isHidden() ? 1 : 0);
}

void frmConfig485::AlCaricamento() {
  C().Messaggi.ImpostaPuntatore(Puntatore::Attesa);
  Localizza();
  if (ModoRS232) {
    ImpostaTitolo(Qs(TestoLinguaO(C(), "0110019", "RS232")));
    indirizzo_->hide();  // the others move up
    Valori().Escludi("CMAD");
  }
  chkUse485->setAccessibleName(lblDescrizione->text());
  Leggi();
  lblFunzionamento->setText(Qs(C().Stato.PlayerConfigDesc));
  C().Messaggi.ImpostaPuntatore(Puntatore::Normale);
  if (C().Stato.PlayerType == kOstrel) {
    pagine_->setCurrentIndex(0);
    picPagina2->show();
  }
  (ModoRS232 ? cmbCMCK : cmbCMAD)->setFocus();
  if (!SceglieUse485(C())) return;
  C().Stato.Usa485 = LeggiUse485(C());
  chkUse485->setChecked(C().Stato.Usa485);
  picUse485->show();
  C().Finestre.MostraSiNo(
      {TestoLingua(C(), "0040051"), TestoLingua(C(), "0110022"), TestoLingua(C(), "0140022"), {}});
}

void frmConfig485::SalvaAltro() {
  if (SceglieUse485(C())) ScriviUse485(C(), chkUse485->isChecked());
}

}  // namespace kvr5
