#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Session.h"
#include "cli/Status.h"

namespace kvr5::cli {

/// One verb of the companion.
struct Verb {
  std::string_view Name;
  std::string_view Usage;  ///< what follows the name
  std::string_view Help;   ///< what it does, for people
  bool NeedsProgram;       ///< reads settings and language before it runs
  /// Runs it; kUsage has the dispatcher print the usage.
  int (*Run)(Session& session, const std::vector<std::string>& arguments);
};

/// All verbs in the order of the help page.
std::span<const Verb> Verbs();

int RunMp3(Session& session, const std::vector<std::string>& arguments);
int RunNew(Session& session, const std::vector<std::string>& arguments);
int RunProjects(Session& session, const std::vector<std::string>& arguments);
int RunShow(Session& session, const std::vector<std::string>& arguments);
int RunConfig(Session& session, const std::vector<std::string>& arguments);
int RunInputs(Session& session, const std::vector<std::string>& arguments);
int RunSave(Session& session, const std::vector<std::string>& arguments);
int RunPlaylists(Session& session, const std::vector<std::string>& arguments);
int RunSchedule(Session& session, const std::vector<std::string>& arguments);
int RunReport(Session& session, const std::vector<std::string>& arguments);
int RunCards(Session& session, const std::vector<std::string>& arguments);
int RunRecord(Session& session, const std::vector<std::string>& arguments);
int RunReadback(Session& session, const std::vector<std::string>& arguments);
int RunErase(Session& session, const std::vector<std::string>& arguments);
int RunRelocate(Session& session, const std::vector<std::string>& arguments);
int RunTakeover(Session& session, const std::vector<std::string>& arguments);
int RunVerify(Session& session, const std::vector<std::string>& arguments);

}  // namespace kvr5::cli
