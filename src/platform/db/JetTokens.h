#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"

namespace kvr5 {

enum class TokenKind {
  Word,    ///< a keyword, a function or a name, as it is written
  Name,    ///< a name in brackets, without them
  Text,    ///< a text, without its quotes and with doubled ones made single
  Number,  ///< digits, perhaps with a fraction
  Time,    ///< a time between "#", as "HH:MM:SS"
  Symbol,  ///< an operator, a parenthesis, a comma, a point
  End,
};

struct Token {
  TokenKind Kind = TokenKind::End;
  std::string Value;
};

/// -2147217900 with the reason behind the classic words.
Error BadStatement(std::string_view reason);

/// The words of a statement, closed by one of kind End. Anything outside the dialect is error
/// -2147217900: a comment, a semicolon that isn't the last character but blanks, an unclosed text
/// or bracket, a time that isn't one, a sign or control character without meaning.
Result<std::vector<Token>> TokenizeJetSql(std::string_view statement);

}  // namespace kvr5
