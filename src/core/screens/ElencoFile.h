#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Contesto.h"
#include "core/PannelloFile.h"
#include "core/screens/ElencoModesto.h"

namespace kvr5 {

/// filMp3: the MP3 files of a folder. Several may be selected, and dragged to wherever files can be
/// dropped.
class ElencoFile : public ElencoModesto {
 public:
  ElencoFile(Contesto& contesto, QWidget* padre);

  /// Lists the files of a folder (system form); what was selected stays so in the same folder.
  void Mostra(const std::string& cartella, const std::vector<FilePannello>& file);
  std::string Corrente() const;
  std::vector<std::string> Scelti() const;
  /// Goes to the first file whose name holds the text, from the current one on, or behind that.
  bool Cerca(const QString& testo, bool prossimo);

  /// Called when the user picks a file, the same one too, or none; and for a double click or Enter.
  std::function<void()> SuClic;
  std::function<void()> SuDoppio;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void selectionChanged(const QItemSelection& ora, const QItemSelection& prima) override;
  QMimeData* mimeData(const QList<QListWidgetItem*>& voci) const override;
  QStringList mimeTypes() const override;
  Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }

 private:
  void Clic() const {
    if (SuClic) SuClic();
  }
  void AggiungiVoce(const FilePannello& file);

  Contesto& contesto_;
  std::string cartella_;
  bool muta_ = false;  ///< a change that isn't a pick, or whose pick is told by others
};

}  // namespace kvr5
