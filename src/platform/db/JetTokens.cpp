#include "platform/db/JetTokens.h"

#include <optional>

#include "platform/Digit.h"
#include "platform/db/TimeOfDay.h"

namespace kvr5 {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// Letters, also those beyond ASCII, and the underscore.
bool IsWordLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

class Tokenizer {
 public:
  explicit Tokenizer(std::string_view statement) : rest_(statement) {}

  Result<std::vector<Token>> Run() {
    if (rest_.find('\0') != std::string_view::npos) return BadStatement("zero character");
    std::vector<Token> tokens;
    do {
      std::optional<Token> token = Take();
      if (!token) return BadStatement(reason_);
      tokens.push_back(std::move(*token));
    } while (tokens.back().Kind != TokenKind::End);
    return tokens;
  }

 private:
  std::nullopt_t Fail(std::string_view reason) {
    reason_ = reason;
    return std::nullopt;
  }

  void SkipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
  }

  std::string_view TakeWhile(bool (*belongs)(char)) {
    std::size_t size = 0;
    while (size < rest_.size() && belongs(rest_[size])) ++size;
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
  }

  std::optional<Token> Take() {
    SkipBlanks();
    if (rest_.empty()) return Token{};
    const char c = rest_.front();
    if (IsWordLetter(c)) return TakeWord();
    if (IsDigit(c)) return TakeNumber();
    if (c == '\'' || c == '"') return TakeText(c);
    if (c == '[') return TakeBracket();
    if (c == '#') return TakeTime();
    if (c == ';') return TakeEnd();
    return TakeSymbol();
  }

  std::optional<Token> TakeWord() {
    const auto belongs = [](char c) { return IsWordLetter(c) || IsDigit(c); };
    return Token{TokenKind::Word, std::string(TakeWhile(belongs))};
  }

  std::optional<Token> TakeNumber() {
    std::string number(TakeWhile(IsDigit));
    if (rest_.size() > 1 && rest_[0] == '.' && IsDigit(rest_[1])) {
      rest_.remove_prefix(1);
      number += '.';
      number += TakeWhile(IsDigit);
    }
    if (!rest_.empty() && IsWordLetter(rest_.front())) return Fail("letters behind a number");
    return Token{TokenKind::Number, std::move(number)};
  }

  std::optional<Token> TakeText(char quote) {
    std::string text;
    for (std::size_t i = 1; i < rest_.size(); ++i) {
      if (rest_[i] == quote) {
        if (i + 1 == rest_.size() || rest_[i + 1] != quote) {
          rest_.remove_prefix(i + 1);
          return Token{TokenKind::Text, std::move(text)};
        }
        ++i;
      }
      text += rest_[i];
    }
    return Fail("unclosed text");
  }

  /// What stands between the first character and the next `closing`.
  std::optional<std::string_view> TakeEnclosed(char closing) {
    const std::size_t end = rest_.find(closing, 1);
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view inside = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    return inside;
  }

  std::optional<Token> TakeBracket() {
    const std::optional<std::string_view> name = TakeEnclosed(']');
    if (!name) return Fail("unclosed bracket");
    if (name->empty() || name->find('[') != std::string_view::npos) return Fail("bad name");
    return Token{TokenKind::Name, std::string(*name)};
  }

  std::optional<Token> TakeTime() {
    const std::optional<std::string_view> text = TakeEnclosed('#');
    std::optional<std::string> time = text ? StoredTime(*text) : std::nullopt;
    if (!time) return Fail("bad time");
    return Token{TokenKind::Time, std::move(*time)};
  }

  std::optional<Token> TakeEnd() {
    rest_.remove_prefix(1);
    SkipBlanks();
    if (!rest_.empty()) return Fail("characters behind the end of the statement");
    return Token{};
  }

  std::optional<Token> TakeSymbol() {
    for (const std::string_view comment : {"--", "/*"}) {
      if (rest_.starts_with(comment)) return Fail("comment");
    }
    for (const std::string_view symbol :
         {"<>", "<=", ">=", "<", ">", "=", "(", ")", ",", ".", "+", "-", "*"}) {
      if (!rest_.starts_with(symbol)) continue;
      rest_.remove_prefix(symbol.size());
      return Token{TokenKind::Symbol, std::string(symbol)};
    }
    return Fail("unknown sign");
  }

  std::string_view rest_;
  std::string_view reason_;
};

}  // namespace

Error BadStatement(std::string_view reason) {
  const Error plain(errors::BadStatement);
  return {errors::BadStatement, plain.Description() + ": " + std::string(reason)};
}

Result<std::vector<Token>> TokenizeJetSql(std::string_view statement) {
  return Tokenizer(statement).Run();
}

}  // namespace kvr5
