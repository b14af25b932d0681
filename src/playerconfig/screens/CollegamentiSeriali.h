#pragma once

#include <QLabel>

#include "core/screens/Coppia.h"
#include "core/screens/Riquadro.h"

namespace kvr5 {

/// The frames of the serial links and of the copy by hand. No model shows them; they are there with
/// their texts and buttons, and what they do is reached another way or not at all.
class CollegamentiSeriali : public QWidget {
 public:
  explicit CollegamentiSeriali(QWidget* padre);

  Riquadro *fra232, *fra232bis, *fra485, *fra485bis, *fraCopiaFilesFlash;
  QLabel *lblRS232, *lblRS232bis, *lblConfig232, *lblConfig232bis;
  QLabel *lbl485, *lbl485bis, *lblConfigPorta485, *lblConfigPorta485bis;
  Coppia *cmdConfigure232, *cmdConfigure232bis, *picConfig485, *picConfig485bis;
  QLabel *lblConfigure232, *lblConfigure232bis, *lblConfig485, *lblConfig485bis;
  Coppia* cmdCopiaFileManuale;

  /// The "bis" controls take the captions of their twins, so that one text serves both.
  void SegueScritte();
};

}  // namespace kvr5
