#include "platform/db/JetSql.h"

#include "platform/db/JetParser.h"

namespace kvr5 {

Result<std::string> TranslateJetSql(std::string_view statement) {
  Result<JetStatement> parsed = ParseJetSql(statement);
  if (!parsed) return parsed.Err();
  return std::move(parsed.Value().Sql);
}

}  // namespace kvr5
