#pragma once

#include <string>
#include <string_view>

#include "core/Contesto.h"
#include "core/Dialoghi.h"
#include "platform/ShellCopy.h"

namespace kvr5 {

/// The copy window's words for a failure: what happened, what to do, and the file in the host's
/// form.
Messaggio BoxGuastoCopia(Contesto& contesto, const CopyFailure& guasto);

/// A path as a person reads it: in the host's form, or as it stands where it has none here.
std::string PercorsoPerPersone(const Contesto& contesto, std::string_view percorso);

}  // namespace kvr5
