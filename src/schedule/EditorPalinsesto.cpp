#include "schedule/EditorPalinsesto.h"

#include "core/Domanda.h"
#include "core/Lingua.h"
#include "projects/OraDelSegmento.h"

namespace kvr5 {

EditorPalinsesto::EditorPalinsesto(Contesto& contesto)
    : contesto_(contesto), chiusa_(contesto.Files) {}

void EditorPalinsesto::Carica() {
  const auto& state = contesto_.Stato;
  FileMp3Valido = false;
  modifiche_ = 0;
  copia_.emplace(contesto_, "scheduler.mdb", "tmpScheduler.mdb");
  copia_->Apri();
  disposizione_ = DisposizionePalinsestoDi(state.PlayerType, state.PlayerMode);
  giornoCorrente_ = disposizione_.GiornoCorrente;
  segmentoCorrente_ = 0;
}

void EditorPalinsesto::Chiudi() {
  dettaglio_.Close();
  segmenti_.Close();
  copia_.reset();
}

void EditorPalinsesto::ScegliGiorno(std::int16_t giorno) {
  constexpr std::int16_t kSunday = 7;
  if (!disposizione_.picFraDay || giorno < 1 || giorno > kSunday) return;
  giornoCorrente_ = giorno;
  AggiornaElencoSegmenti(-1);
}

std::string EditorPalinsesto::IstruzioneSegmenti() const {
  const std::string day = std::to_string(giornoCorrente_);
  std::string query = "SELECT [HEAD].ID,[HEAD].[StartTime]";
  for (int place = 1; place <= SlotSpot::kPosti; ++place) {
    const std::string number = std::to_string(place);
    query.append(",(SELECT TOP 1 [Filename] FROM [List] WHERE [NPlaylist]=" + day)
        .append(" AND Pos=" + number)
        .append(" AND IDSched=[HEAD].ID) AS Spot" + number);
  }
  return query + " FROM [HEAD] WHERE [NScheduler]=" + day + " ORDER BY [StartTime] ASC";
}

std::string EditorPalinsesto::IstruzioneSpot(std::int64_t segmento) const {
  return "SELECT * FROM [List] WHERE [NPlaylist]=" + std::to_string(giornoCorrente_) +
         " AND IDSched=" + std::to_string(segmento) + " ORDER BY [Pos],[ID] ASC";
}

void EditorPalinsesto::AggiornaElencoSegmenti(std::int64_t daSelezionare) {
  segmenti_.Close();
  Record(segmenti_.Open(ConnessionePalinsesto(), IstruzioneSegmenti()));
  if (daSelezionare > 0 && QuantiSegmenti() > 0) {
    Record(segmenti_.MoveFirst());
    Record(segmenti_.Find("ID=" + std::to_string(daSelezionare)));
  }
  AggiornaVociInElenco();
  if (SuElenco) SuElenco();
  RigaCambiata();
}

bool EditorPalinsesto::VaiAlSegmento(std::int64_t id) {
  if (QuantiSegmenti() < 1) return false;
  if (segmenti_.AbsolutePosition() > 0 && segmenti_.Number("ID", -1) == id) return true;
  const std::int64_t before = segmentoCorrente_;
  if (!Trova(id)) {
    Trova(before);
    return false;
  }
  RigaCambiata();
  return true;
}

bool EditorPalinsesto::Trova(std::int64_t id) {
  return !segmenti_.MoveFirst() && !segmenti_.Find("ID=" + std::to_string(id)) && !segmenti_.Eof();
}

void EditorPalinsesto::RigaCambiata() {
  dettaglio_.Close();
  segmentoCorrente_ = segmenti_.Number("ID");
  if (segmentoCorrente_ > 0) {
    Record(dettaglio_.Open(ConnessionePalinsesto(), IstruzioneSpot(segmentoCorrente_)));
  }
  MostraOrario();
  AggiornaSlotSpot();
}

void EditorPalinsesto::SelezionaNuovo(std::int64_t id) {
  segmentoCorrente_ = id;
  AggiornaElencoSegmenti(id);
}

void EditorPalinsesto::MostraOrario() {
  const std::string time = OraConPunto(OraDa(segmenti_.Text("StartTime")));
  const std::size_t dot = time.find('.');
  txtOre = time.substr(0, dot);
  txtMin = dot == std::string::npos ? std::string() : time.substr(dot + 1);
  // The hour can't be typed there: without it a segment without a time could never get one.
  if (time.empty() && segmentoCorrente_ > 0 && disposizione_.OreBloccate) txtOre = "00";
}

void EditorPalinsesto::AggiornaSlotSpot() {
  slot_ = kvr5::AggiornaSlotSpot(QuantiSpot(), QuantiSegmenti(), contesto_.Stato.UsaPlayerEsterno);
  if (SuDettaglio) SuDettaglio();
}

void EditorPalinsesto::AggiornaVociInElenco() {
  conto_ = TestoLingua(contesto_, "0140024") + " : " + std::to_string(QuantiSegmenti());
}

void DiciPalinsesto(Contesto& contesto, const std::string& titolo, const std::string& testo) {
  ChiediSiNo(contesto, {titolo, testo, TestoLingua(contesto, "0140022"), {}});
}

}  // namespace kvr5
