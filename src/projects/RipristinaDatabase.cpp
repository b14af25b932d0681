#include "projects/RipristinaDatabase.h"

#include "platform/FileOps.h"
#include "platform/db/Connection.h"

namespace kvr5 {

Error RipristinaDatabase(Contesto& contesto, const std::string& percorso) {
  if (!FileExists(contesto.Files, percorso + "-journal") &&
      !FileExists(contesto.Files, percorso + "-wal")) {
    return {};
  }
  Connection connection(contesto.Files);
  return connection.Open(percorso);
}

}  // namespace kvr5
