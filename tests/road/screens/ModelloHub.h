#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace kvr5::test {

/// What the hub of a project that inputs drive has to show, told apart from how it does it: the
/// assignments, the combination that is ticked, the file that is picked, the settings. Folders and
/// files have the bench's names ("music", "music/more").
class ModelloHub {
 public:
  /// A file that a code is given.
  struct Riga {
    std::string Nome;
    std::string Cartella;
    bool operator==(const Riga&) const = default;
  };
  using Valori = std::map<std::string, std::string>;

  /// The disk: files of each folder, and whether the player takes them.
  std::map<std::string, std::map<std::string, bool>> Dischi;
  std::map<int, Riga> Righe;
  Valori Config;  ///< the keys of the hub as Config.txt holds them

  /// The hub is loaded: nothing is ticked, the settings are those of the file.
  void Apri(const std::string& cartella);
  void Entra(const std::string& cartella);
  void Spunta(int ingresso);
  void ScegliCodice(int codice);
  void Scegli(const std::string& voce);
  void Conferma();

  int Codice = 0;
  bool Linea485 = false;  ///< IN5 and IN6 belong to the link
  std::string Cartella;
  std::vector<std::string> Voci;  ///< of the list of files, the blank first
  std::string Scelto = " ";
  bool Ok = false;                  ///< the confirm button is there
  std::vector<std::string> Elenco;  ///< the list of assignments as it was last filled
  std::map<std::string, int> Livelli;
  std::map<std::string, bool> Opzioni;
  std::string Tempo;  ///< lstTPCM
  bool TempoAcceso = false;

  void ScriviTempo(const std::string& cifre);
  void LasciaTempo();
  void SpostaTempo(int passo);

  bool Associato() const { return Righe.contains(Codice); }
  bool Esiste(const Riga& riga) const;
  /// The picked file is there and refused.
  bool Rifiutato() const;
  bool DaSalvare() const;
  /// A recording brings every file: none is missing, no two codes share one.
  bool Registrabile() const;

  /// Fills the list from the disk as it is now.
  void RiempiElenco();
  /// The hub was in front again: it looks at the disk.
  void Torna();

 private:
  std::vector<std::string> VociOra();
  void Mostra();
  void Valuta();
};

}  // namespace kvr5::test
