#include "schedule/OrarioSegmento.h"

#include "core/Lingua.h"
#include "platform/Locale.h"
#include "projects/OraDelSegmento.h"

namespace kvr5 {
namespace {

constexpr double kHours = 24;
constexpr double kMinutes = 60;

bool IsDigit(char32_t character) {
  return character >= U'0' && character <= U'9';
}

/// What a field that is left holds from then on. A number below 0, which no key can type, keeps its
/// sign, and no time comes of it.
std::string Left(const std::string& text, double limit, const Locale& locale) {
  const auto number = TextToNumber(text, locale);
  return FormatDigits(number && *number < limit ? *number : 0, 2);
}

/// Shows the fields as they are now, also under the box that may follow, and saves.
bool Save(EditorPalinsesto& editor) {
  if (editor.SuOrario) editor.SuOrario();
  return SalvaOrarioSegmento(editor, false);
}

}  // namespace

bool TastoOrario(char32_t carattere) {
  constexpr char32_t kFirstNoControlKey = 14;
  return carattere < kFirstNoControlKey || IsDigit(carattere);
}

std::string DigitatoSopra(std::string_view contenuto, std::string_view testo) {
  std::string digits;
  for (const char each : testo) {
    if (IsDigit(static_cast<unsigned char>(each))) digits += each;
  }
  return digits.empty() ? std::string(contenuto) : digits;
}

bool LasciaOre(EditorPalinsesto& editor) {
  editor.txtOre = Left(editor.txtOre, kHours, editor.C().Luogo);
  return Save(editor);
}

bool LasciaMin(EditorPalinsesto& editor) {
  editor.txtMin = Left(editor.txtMin, kMinutes, editor.C().Luogo);
  return Save(editor);
}

bool LasciaOreEMin(EditorPalinsesto& editor) {
  editor.txtOre = Left(editor.txtOre, kHours, editor.C().Luogo);
  editor.txtMin = Left(editor.txtMin, kMinutes, editor.C().Luogo);
  return Save(editor);
}

bool SalvaOrarioSegmento(EditorPalinsesto& editor, bool controllaDoppi) {
  const Locale& locale = editor.C().Luogo;
  const OwnError own(editor.C().Errore);
  const std::int64_t id = editor.SegmentoCorrente();
  const auto hours = TextToNumber(editor.txtOre, locale);
  const auto minutes = TextToNumber(editor.txtMin, locale);
  if (id <= 0 || !hours || !minutes) return false;
  const std::string time = FormatDigits(*hours, 2) + "." + FormatDigits(*minutes, 2);
  const std::string before = OraConPunto(OraDa(editor.rsSegmenti().Text("StartTime")));
  const bool stored = editor.Record(editor.ConnessionePalinsesto().Execute(
      "UPDATE [HEAD] SET [StartTime]=#" + time + "# WHERE ID=" + std::to_string(id)));
  if (stored && before != time) editor.Modificato();
  if (!controllaDoppi) VerificaOrarioDoppio(editor, time, id);
  editor.AggiornaElencoSegmenti(id);
  return stored;
}

void VerificaOrarioDoppio(EditorPalinsesto& editor, const std::string& orario, std::int64_t id) {
  Recordset rows;
  const bool read = editor.Record(rows.Open(
      editor.ConnessionePalinsesto(),
      "SELECT TOP 1 * FROM [HEAD] WHERE [HEAD].[ID]<>" + std::to_string(id) + " AND [StartTime]=#" +
          orario + "# AND [NScheduler]=" + std::to_string(editor.GiornoCorrente()) +
          " ORDER BY ID DESC"));
  if (!read || rows.RecordCount() < 1) return;
  auto& context = editor.C();
  DiciPalinsesto(context, TestoLingua(context, "0140020"),
                 TestoLingua(context, "0140021") + " (" + orario + ")");
}

}  // namespace kvr5
