#pragma once

#include "core/Contesto.h"
#include "core/SelezioneFlash.h"

namespace kvr5 {

/// How an erasing ended.
enum class FineSvuotamento {
  Svuotata,     ///< told by a box
  GiaVuota,     ///< told by a box: there was no file to delete
  Fallita,      ///< told by a box: what was deleted before the failure is gone
  SenzaScheda,  ///< no card was chosen; nothing was said or touched
  Rinunciata,   ///< one of the questions was answered no
};

/// Deletes the files in the card's root after two questions whose default is no.
///
/// Folders stay with what is in them, and so do hidden, system and read-only files. The first file
/// that can't be deleted ends it. A card that isn't there any more fails with error 68, so that the
/// folder that it was mounted at loses nothing.
FineSvuotamento CancellaFlash(Contesto& contesto, SelezioneFlash& scelta);

}  // namespace kvr5
