#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kvr5 {

/// The sign that a message box carries.
enum class Icona { Nessuna, Informazione, Avviso, Domanda };
/// The buttons of a message box.
enum class Pulsanti { Ok, SiNo, SiNoAnnulla };
/// What was pressed. A box closed by the window's own button answers as its cancel, or No where
/// it has none.
enum class Risposta { Ok, Si, No, Annulla };

/// A plain message box.
struct Messaggio {
  std::string Titolo;
  std::string Testo;  ///< lines divided by CR LF
  Icona Segno = Icona::Nessuna;
  Pulsanti Scelte = Pulsanti::Ok;
  Risposta Predefinita = Risposta::Ok;
};

/// The box frmSiNo: a question with a yes and a no side, or a notice with one button.
struct BoxSiNo {
  std::string Titolo;
  std::string Nota;                         ///< lines divided by CR LF
  std::optional<std::string> SoloOk;        ///< caption of the only button; nothing: yes and no
  std::optional<std::uint32_t> ColoreNota;  ///< blue-green-red value, such as 33023 (orange)
  bool Toglie = false;                      ///< yes takes something away: the keyboard begins on no
};

/// A kind of files in a file chooser.
struct FiltroFile {
  std::string Testo;    ///< "File TXT,M3U (*.txt,*.m3u)"
  std::string Modelli;  ///< "*.txt;*.m3u"
};

/// How the logic speaks with the user in the middle of a routine. The screens show windows, the
/// command line prints and asks on the terminal, tests answer from a script.
class Dialoghi {
 public:
  virtual ~Dialoghi() = default;
  virtual Risposta MostraMessaggio(const Messaggio& messaggio) = 0;
  /// Shows frmSiNo and waits: 1 yes (or the only button), 2 no, 0 closed by the window's button.
  virtual std::uint8_t MostraSiNo(const BoxSiNo& box) = 0;
  /// Lets the user choose a folder, starting in `inizio` (system form, may be "" or gone). The
  /// folder in the system's form; "" when nothing was chosen.
  virtual std::string SfogliaCartella(const std::string& titolo, const std::string& inizio) = 0;
  /// Lets the user choose a file that exists, the same way; "" when none was chosen.
  virtual std::string ScegliFile(const std::string& titolo, const FiltroFile& filtro,
                                 const std::string& inizio) = 0;
};

}  // namespace kvr5
