#pragma once

#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/db/Value.h"
#include "support/TempFolder.h"

namespace kvr5::test {

using RigheDb = std::vector<std::vector<DbValue>>;

/// The rows of a table of a database of ours, by ID, with all columns in their order.
RigheDb RigheList(FileSystem& disco, const std::string& percorso);
RigheDb RigheHead(FileSystem& disco, const std::string& percorso);

/// A database of ours becomes the Jet file that the earlier program had, with sources on another
/// computer: each FilePath keeps its last folder, below "C:\Musica". Nothing where there is none.
void RendiVecchio(FileSystem& disco, const TempFolder& cartella, const std::string& nome);

}  // namespace kvr5::test
