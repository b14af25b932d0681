#include <gtest/gtest.h>

#include <array>
#include <map>

#include "platform/Locale.h"

namespace kvr5 {
namespace {

Locale FromVariables(const std::map<std::string, std::string>& variables) {
  return Locale::FromEnvironment([&variables](const std::string& name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  });
}

struct LocaleCase {
  std::string Name;
  std::uint32_t Lcid;
  int AnsiCodePage;
  std::string DecimalMark;
  std::string GroupMark;
};

TEST(Locale, HasTheNumberThePageAndTheMarksOfItsName) {
  const std::array cases{LocaleCase{"", 1033, 1252, ".", ","},
                         LocaleCase{"C", 1033, 1252, ".", ","},
                         LocaleCase{"C.UTF-8", 1033, 1252, ".", ","},
                         LocaleCase{"POSIX", 1033, 1252, ".", ","},
                         LocaleCase{"en_US.UTF-8", 1033, 1252, ".", ","},
                         LocaleCase{"en_GB", 2057, 1252, ".", ","},
                         LocaleCase{"it_IT.UTF-8", 1040, 1252, ",", "."},
                         LocaleCase{"it_IT@euro", 1040, 1252, ",", "."},
                         LocaleCase{"it_CH.UTF-8", 2064, 1252, ".", "’"},
                         LocaleCase{"it", 1040, 1252, ",", "."},
                         LocaleCase{"it_SM.UTF-8", 0x1000, 1252, ",", "."},
                         LocaleCase{"de_DE.ISO-8859-1", 1031, 1252, ",", "."},
                         LocaleCase{"de_CH", 2055, 1252, ".", "’"},
                         LocaleCase{"fr_FR", 1036, 1252, ",", "\u202F"},
                         LocaleCase{"es_ES", 3082, 1252, ",", "."},
                         LocaleCase{"pt_BR", 1046, 1252, ",", "."},
                         LocaleCase{"pt_PT", 2070, 1252, ",", "."},
                         LocaleCase{"nl_BE", 2067, 1252, ",", "."},
                         LocaleCase{"sv_SE", 1053, 1252, ",", "\u202F"},
                         LocaleCase{"nb_NO", 1044, 1252, ",", "\u202F"},
                         LocaleCase{"cs_CZ", 1029, 1250, ",", "\u202F"},
                         LocaleCase{"hu_HU", 1038, 1250, ",", "."},
                         LocaleCase{"pl_PL", 1045, 1250, ",", "\u202F"},
                         LocaleCase{"sk_SK", 1051, 1250, ",", "\u202F"},
                         LocaleCase{"sl_SI", 1060, 1250, ",", "."},
                         LocaleCase{"hr_HR", 1050, 1250, ",", "."},
                         LocaleCase{"bs_BA", 5146, 1250, ",", "."},
                         LocaleCase{"ro_RO", 1048, 1250, ",", "."},
                         LocaleCase{"sq_AL", 1052, 1250, ",", "."},
                         LocaleCase{"sr_RS", 10266, 1251, ",", "."},
                         LocaleCase{"sr_RS.UTF-8@latin", 9242, 1250, ",", "."},
                         LocaleCase{"ru_RU", 1049, 1251, ",", "\u202F"},
                         LocaleCase{"uk_UA", 1058, 1251, ",", "\u202F"},
                         LocaleCase{"be_BY@latin", 1059, 1251, ",", "."},
                         LocaleCase{"bg_BG", 1026, 1251, ",", "\u00A0"},
                         LocaleCase{"mk_MK", 1071, 1251, ",", "\u202F"},
                         LocaleCase{"el_GR", 1032, 1253, ",", "."},
                         LocaleCase{"tr_TR", 1055, 1254, ",", "."},
                         LocaleCase{"az_AZ", 1068, 1254, ",", "."},
                         LocaleCase{"et_EE", 1061, 1257, ",", "\u202F"},
                         LocaleCase{"lv_LV", 1062, 1257, ",", "\u202F"},
                         LocaleCase{"lt_LT", 1063, 1257, ",", "."},
                         LocaleCase{"ja_JP.UTF-8", 1041, 1252, ".", ","},
                         LocaleCase{"tlh_US", 1033, 1252, ".", ","},
                         LocaleCase{"_.@", 1033, 1252, ".", ","},
                         LocaleCase{"@latin", 1033, 1252, ".", ","},
                         LocaleCase{"it_", 1040, 1252, ",", "."}};
  for (const auto& [name, lcid, page, decimalMark, groupMark] : cases) {
    const Locale locale = FromVariables({{"LANG", name}});
    EXPECT_EQ(locale.Lcid, lcid) << name;
    EXPECT_EQ(locale.AnsiCodePage, page) << name;
    EXPECT_EQ(locale.DecimalMark, decimalMark) << name;
    EXPECT_EQ(locale.GroupMark, groupMark) << name;
  }
}

TEST(Locale, TakesEachCategoryFromItsOwnVariable) {
  const Locale locale = FromVariables({{"LANG", "de_DE"},
                                       {"LC_MESSAGES", "it_IT"},
                                       {"LC_NUMERIC", "en_US"},
                                       {"LC_CTYPE", "pl_PL"}});
  EXPECT_EQ(locale.Lcid, 1040U);
  EXPECT_EQ(locale.DecimalMark, ".");
  EXPECT_EQ(locale.GroupMark, ",");
  EXPECT_EQ(locale.AnsiCodePage, 1250);
}

TEST(Locale, LetsOneVariableOverruleAllAndFallsBackToTheLast) {
  const Locale all =
      FromVariables({{"LC_ALL", "el_GR"}, {"LC_MESSAGES", "it_IT"}, {"LANG", "de_DE"}});
  EXPECT_EQ(all.Lcid, 1032U);
  EXPECT_EQ(all.AnsiCodePage, 1253);
  const Locale one = FromVariables({{"LC_ALL", ""}, {"LC_NUMERIC", "C"}, {"LANG", "de_DE"}});
  EXPECT_EQ(one.Lcid, 1031U);
  EXPECT_EQ(one.DecimalMark, ".");
}

TEST(Locale, ReadsTheEnvironmentOfTheProcess) {
  setenv("LC_ALL", "it_IT.UTF-8", 1);
  EXPECT_EQ(Locale::Host().Lcid, 1040U);
  unsetenv("LC_ALL");
}

}  // namespace
}  // namespace kvr5
