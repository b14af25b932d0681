#include <gtest/gtest.h>
#include <iconv.h>

#include <array>
#include <optional>
#include <string>

#include "platform/CodePage.h"

namespace kvr5 {
namespace {

std::string Byte(int value) {
  return {static_cast<char>(value)};
}

/// A converter of the C library.
class Iconv {
 public:
  Iconv(const std::string& to, const std::string& from)
      : handle_(iconv_open(to.c_str(), from.c_str())) {}
  ~Iconv() { iconv_close(handle_); }
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;

  /// Nothing when the text can't be converted.
  std::optional<std::string> operator()(std::string text) {
    std::string result(text.size() * 4 + 4, '\0');
    char* in = text.data();
    char* out = result.data();
    std::size_t inLeft = text.size();
    std::size_t outLeft = result.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(handle_, &in, &inLeft, &out, &outLeft) != 0) return std::nullopt;
    result.resize(result.size() - outLeft);
    return result;
  }

 private:
  iconv_t handle_;
};

class CodePageOfBytes : public testing::TestWithParam<int> {
 protected:
  CodePage page_{GetParam()};
  std::string name_ = "CP" + std::to_string(GetParam());
};

TEST_P(CodePageOfBytes, DecodesEveryByteAsTheCLibraryDoes) {
  Iconv toUtf8("UTF-8", name_);
  int undefined = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = page_.Decode(Byte(byte));
    if (const auto expected = toUtf8(Byte(byte))) {
      EXPECT_EQ(text, *expected) << byte;
    } else {
      ++undefined;
      // A control character below A0, a private-use one (U+F8F9 to U+F8FD) above.
      EXPECT_EQ(text.substr(0, byte < 0xA0 ? 1 : 2), byte < 0xA0 ? "\xC2" : "\xEF\xA3") << byte;
      if (byte < 0xA0) {
        EXPECT_EQ(text.substr(1), Byte(byte));
      }
    }
  }
  EXPECT_LE(undefined, 17);
}

TEST_P(CodePageOfBytes, EncodesEveryByteBack) {
  Iconv fromUtf8(name_, "UTF-8");
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = page_.Decode(Byte(byte));
    EXPECT_EQ(page_.Encode(text), Byte(byte));
    EXPECT_TRUE(page_.CanEncode(text)) << byte;
    if (const auto expected = fromUtf8(text)) {
      EXPECT_EQ(*expected, Byte(byte));
    }
    all += Byte(byte);
  }
  EXPECT_EQ(page_.Encode(page_.Decode(all)), all);
}

TEST_P(CodePageOfBytes, FoldsALetterOntoOneOtherOfThePageAtMost) {
  int partners = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string folded = page_.Fold(Byte(byte));
    EXPECT_EQ(page_.Fold(folded), folded) << byte;
    int sharing = 0;
    for (int other = 0; other < 256; ++other) sharing += page_.Fold(Byte(other)) == folded;
    EXPECT_LE(sharing, 2) << byte;
    partners += sharing == 2;
  }
  EXPECT_GE(partners, 52 + 54) << "letters of the alphabet and of the page";
}

TEST_P(CodePageOfBytes, CountsBytes) {
  EXPECT_EQ(page_.Length("\xC3\xA8"), 2U);
  EXPECT_EQ(page_.Left("\xC3\xA8", 1), "\xC3");
  EXPECT_EQ(page_.Left("ab", 5), "ab");
}

INSTANTIATE_TEST_SUITE_P(Pages, CodePageOfBytes,
                         testing::Values(1250, 1251, 1252, 1253, 1254, 1257),
                         testing::PrintToStringParamName());

struct FoldCase {
  int Page;
  std::string_view Capitals;
  std::string_view Small;  ///< what folding makes of them; equal where there is no partner
};

TEST(CodePageFold, MakesTheLettersOfThePageSmall) {
  const std::array cases{FoldCase{1252, "ABCXYZ@[`{", "abcxyz@[`{"},
                         FoldCase{1252, "ŠŒŽŸÀÖØÞ", "šœžÿàöøþ"},
                         FoldCase{1252, "ß×÷ªºµƒ\u00A0\u0081", "ß×÷ªºµƒ\u00A0\u0081"},
                         FoldCase{1250, "ŠŚŤŽŹŁĄŞŻĽŔĂĹĆČĐŇŐŘŮŰŢ", "šśťžźłąşżľŕăĺćčđňőřůűţ"},
                         FoldCase{1250, "ßµ×÷˙", "ßµ×÷˙"},
                         FoldCase{1251, "ЂЃЉЊЌЋЏЎЈҐЁЄЇІЅАЯ", "ђѓљњќћџўјґёєїіѕая"},
                         FoldCase{1253, "ΆΈΉΊΌΎΏΑΣΩΪΫ", "άέήίόύώασωϊϋ"},
                         FoldCase{1253, "ςΐΰµ\u0081", "ςΐΰµ\u0081"},
                         FoldCase{1254, "ĞŞIŸÇ", "ğşiÿç"},
                         FoldCase{1254, "İıß", "İıß"},
                         FoldCase{1257, "ØŖÆĄĮĀĆŽŻŪŠ", "øŗæąįāćžżūš"},
                         FoldCase{1257, "ßµ˙", "ßµ˙"},
                         FoldCase{65001, "AZÀŸŠŒĀŹΆΣЯЁҐѢԱẄỲἈ", "azàÿšœāźάσяёґѣաẅỳἀ"},
                         FoldCase{65001, "ßẞİıς×÷日ÿǅ€😀Ⱥ\u2126", "ßẞİıς×÷日ÿǅ€😀Ⱥ\u2126"}};
  for (const auto& [number, capitals, small] : cases) {
    const CodePage page(number);
    EXPECT_TRUE(page.CanEncode(capitals)) << capitals;
    EXPECT_EQ(page.Decode(page.Fold(page.Encode(capitals))), small);
    EXPECT_EQ(page.Decode(page.Fold(page.Encode(small))), small);
  }
}

TEST(CodePage, TakesOnlyTheNumbersThatItKnows) {
  EXPECT_EQ(CodePage().Number(), 1252);
  EXPECT_EQ(CodePage(1253).Number(), 1253);
  EXPECT_EQ(CodePage(932).Number(), 1252);
  EXPECT_TRUE(CodePage(65001).IsUtf8());
  EXPECT_FALSE(CodePage(1250).IsUtf8());
}

TEST(CodePage, WritesAQuestionMarkForWhatThePageLacks) {
  const CodePage page(1252);
  EXPECT_EQ(page.Encode("a日ж😀è"), "a???\xE8");
  EXPECT_FALSE(page.CanEncode("è日"));
  EXPECT_TRUE(page.CanEncode("è€"));
  EXPECT_EQ(CodePage(1253).Encode("Ò"), "?") << "no letter of another page in an undefined byte";
}

TEST(CodePage, WritesAQuestionMarkForEachByteThatIsNoUtf8) {
  const CodePage page(1252);
  EXPECT_EQ(page.Encode("\xC3"), "?");
  EXPECT_EQ(page.Encode("a\xE2\x82z\xFF\x80"), "a??z??");
  EXPECT_EQ(page.Encode("\xC0\x80\xF4\x90\x80\x80"), "??????") << "too long, too large";
  EXPECT_EQ(page.Encode("\xED\xA0\x80!"), "?!") << "a lone surrogate is one character";
  EXPECT_FALSE(page.CanEncode("\xC3"));
}

TEST(CodePage, KeepsEverythingOnTheUtf8Page) {
  const CodePage page(65001);
  const std::string mixed = "è日\xFF\xC3(\xED\xA0\x80";
  EXPECT_EQ(page.Decode(mixed), mixed);
  EXPECT_EQ(page.Encode(mixed), mixed);
  EXPECT_EQ(page.Fold(mixed), mixed);
  EXPECT_TRUE(page.CanEncode(mixed));
}

TEST(CodePage, CountsCodePointsOnTheUtf8Page) {
  const CodePage page(65001);
  EXPECT_EQ(page.Length("aè日😀"), 4U);
  EXPECT_EQ(page.Length("a\xFF\xC3z"), 4U);
  EXPECT_EQ(page.Left("aè日😀", 3), "aè日");
  EXPECT_EQ(page.Left("aè", 9), "aè");
  EXPECT_EQ(page.Left("aè", 0), "");
}

}  // namespace
}  // namespace kvr5
