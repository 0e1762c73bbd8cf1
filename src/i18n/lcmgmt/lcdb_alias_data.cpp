#include "i18n/lcmgmt/lcdb_builtin_data.hpp"

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace builtin {

char const* const canonical_locale_names[] = {
    "af_ZA",  "am_ET", "ar_EG",      "cs_CZ",       "cy_GB",      "da_DK",       "de_DE",
    "ee_EE",  "el_GR", "en_029",     "en_GB",       "en_US",      "en_US_POSIX", "es_ES",
    "et_EE",  "eu_ES", "fa_IR",      "fi_FI",       "fo_FO",      "fr_FR",       "ga_IE",
    "gd_GB",  "gl_ES", "gu_IN",      "gv_GB",       "ha-Latn_NG", "he_IL",       "hi_IN",
    "hr_HR",  "hu_HU", "hy_AM",      "id_ID",       "is_IS",      "it_IT",       "iu-Latn_CA",
    "ja_JP",  "kk_KZ", "kl_GL",      "kn_IN",       "ko_KR",      "kw_GB",       "ky_KG",
    "lt_LT",  "lv_LV", "mi_NZ",      "mk_MK",       "ml_IN",      "mr_IN",       "ms_MY",
    "mt_MT",  "nb_NO", "nl_NL",      "nn_NO",       "no_NO",      "nr_ZA",       "nso_ZA",
    "ny_NO",  "oc_FR", "pa_IN",      "pl_PL",       "pt_BR",      "quz_BO",      "quz_EC",
    "quz_PE", "ro_RO", "ru_RU",      "rw_RW",       "se_NO",      "si_LK",       "sk_SK",
    "sl_SI",  "sq_AL", "sr-Cyrl_BA", "sr-Latn_BA",  "ss_ZA",      "st_ZA",       "sv_SE",
    "sw_KE",  "ta_IN", "te_IN",      "tg-Cyrl_TJ",  "th_TH",      "tk_TM",       "tl_PH",
    "tn_ZA",  "tr_TR", "ts_ZA",      "tzm-Latn_DZ", "uk_UA",      "ur_PK",       "uz_UZ",
    "ve_ZA",  "vi_VN", "wa_BE",      "xh_ZA",       "yi_US",      "zh_CN",       "zh_HK",
    "zh_MO",  "zh_TW", "zu_ZA",
};
std::size_t const canonical_locale_name_count =
    sizeof(canonical_locale_names) / sizeof(canonical_locale_names[0]);

locale_alias_row const locale_alias_rows[] = {
    {"C", "", "", "", '_', 12},            // en_US_POSIX
    {"he", "", "", "", '_', 26},           // he_IL
    {"POSIX", "", "", "", '_', 12},        // en_US_POSIX
    {"af", "", "", "", '_', 0},            // af_ZA
    {"am", "", "", "", '_', 1},            // am_ET
    {"ar", "", "", "", '_', 2},            // ar_EG
    {"cs", "", "", "", '_', 3},            // cs_CZ
    {"cs", "", "CS", "", '_', 3},          // cs_CZ
    {"cy", "", "", "", '_', 4},            // cy_GB
    {"cz", "", "", "", '_', 3},            // cs_CZ
    {"cz", "", "CZ", "", '_', 3},          // cs_CZ
    {"da", "", "", "", '_', 5},            // da_DK
    {"de", "", "", "", '_', 6},            // de_DE
    {"ee", "", "", "", '_', 7},            // ee_EE
    {"el", "", "", "", '_', 8},            // el_GR
    {"en", "", "", "", '_', 11},           // en_US
    {"en", "", "CB", "", '_', 9},          // en_029
    {"en", "", "UK", "", '_', 10},         // en_GB
    {"en", "", "US", "POSIX", '_', 12},    // en_US_POSIX
    {"es", "", "", "", '_', 13},           // es_ES
    {"et", "", "", "", '_', 14},           // et_EE
    {"eu", "", "", "", '_', 15},           // eu_ES
    {"fa", "", "", "", '_', 16},           // fa_IR
    {"fi", "", "", "", '_', 17},           // fi_FI
    {"fo", "", "", "", '_', 18},           // fo_FO
    {"fr", "", "", "", '_', 19},           // fr_FR
    {"ga", "", "", "", '_', 20},           // ga_IE
    {"gd", "", "", "", '_', 21},           // gd_GB
    {"gl", "", "", "", '_', 22},           // gl_ES
    {"gu", "", "", "", '_', 23},           // gu_IN
    {"gv", "", "", "", '_', 24},           // gv_GB
    {"ha", "", "NG", "", '_', 25},         // ha-Latn_NG
    {"hi", "", "", "", '_', 27},           // hi_IN
    {"hr", "", "", "", '_', 28},           // hr_HR
    {"hu", "", "", "", '_', 29},           // hu_HU
    {"hy", "", "", "", '_', 30},           // hy_AM
    {"hy", "", "AM", "REVISED", '_', 30},  // hy_AM
    {"id", "", "", "", '_', 31},           // id_ID
    {"in", "", "", "", '_', 31},           // id_ID
    {"in", "", "ID", "", '_', 31},         // id_ID
    {"is", "", "", "", '_', 32},           // is_IS
    {"it", "", "", "", '_', 33},           // it_IT
    {"iu", "", "CA", "", '_', 34},         // iu-Latn_CA
    {"iw", "", "", "", '_', 26},           // he_IL
    {"iw", "", "IL", "", '_', 26},         // he_IL
    {"ja", "", "", "", '_', 35},           // ja_JP
    {"kk", "", "", "", '_', 36},           // kk_KZ
    {"kl", "", "", "", '_', 37},           // kl_GL
    {"kn", "", "", "", '_', 38},           // kn_IN
    {"ko", "", "", "", '_', 39},           // ko_KR
    {"kw", "", "", "", '_', 40},           // kw_GB
    {"ky", "", "", "", '_', 41},           // ky_KG
    {"lt", "", "", "", '_', 42},           // lt_LT
    {"lv", "", "", "", '_', 43},           // lv_LV
    {"mi", "", "", "", '_', 44},           // mi_NZ
    {"mk", "", "", "", '_', 45},           // mk_MK
    {"ml", "", "", "", '_', 46},           // ml_IN
    {"mr", "", "", "", '_', 47},           // mr_IN
    {"ms", "", "", "", '_', 48},           // ms_MY
    {"mt", "", "", "", '_', 49},           // mt_MT
    {"nb", "", "", "", '_', 50},           // nb_NO
    {"nl", "", "", "", '_', 51},           // nl_NL
    {"nn", "", "", "", '_', 52},           // nn_NO
    {"no", "", "", "", '_', 53},           // no_NO
    {"nr", "", "", "", '_', 54},           // nr_ZA
    {"nso", "", "", "", '_', 55},          // nso_ZA
    {"ny", "", "", "", '_', 56},           // ny_NO
    {"oc", "", "", "", '_', 57},           // oc_FR
    {"pa", "", "", "", '_', 58},           // pa_IN
    {"pl", "", "", "", '_', 59},           // pl_PL
    {"pt", "", "", "", '_', 60},           // pt_BR
    {"qu", "", "BO", "", '_', 61},         // quz_BO
    {"qu", "", "EC", "", '_', 62},         // quz_EC
    {"qu", "", "PE", "", '_', 63},         // quz_PE
    {"ro", "", "", "", '_', 64},           // ro_RO
    {"ru", "", "", "", '_', 65},           // ru_RU
    {"ru", "", "SU", "", '_', 65},         // ru_RU
    {"rw", "", "", "", '_', 66},           // rw_RW
    {"se", "", "", "", '_', 67},           // se_NO
    {"sh", "", "HR", "", '_', 28},         // hr_HR
    {"si", "", "", "", '_', 68},           // si_LK
    {"sk", "", "", "", '_', 69},           // sk_SK
    {"sl", "", "", "", '_', 70},           // sl_SI
    {"sq", "", "", "", '_', 71},           // sq_AL
    {"sr", "Cyrl", "", "", '_', 72},       // sr-Cyrl_BA
    {"sr", "Latn", "", "", '_', 73},       // sr-Latn_BA
    {"ss", "", "", "", '_', 74},           // ss_ZA
    {"st", "", "", "", '_', 75},           // st_ZA
    {"sv", "", "", "", '_', 76},           // sv_SE
    {"sw", "", "", "", '_', 77},           // sw_KE
    {"ta", "", "", "", '_', 78},           // ta_IN
    {"te", "", "", "", '_', 79},           // te_IN
    {"tg", "", "", "", '_', 80},           // tg-Cyrl_TJ
    {"tg", "", "TJ", "", '_', 80},         // tg-Cyrl_TJ
    {"th", "", "", "", '_', 81},           // th_TH
    {"tk", "", "", "", '_', 82},           // tk_TM
    {"tl", "", "", "", '_', 83},           // tl_PH
    {"tn", "", "", "", '_', 84},           // tn_ZA
    {"tr", "", "", "", '_', 85},           // tr_TR
    {"ts", "", "", "", '_', 86},           // ts_ZA
    {"tzm", "", "DZ", "", '_', 87},        // tzm-Latn_DZ
    {"uk", "", "", "", '_', 88},           // uk_UA
    {"ur", "", "", "", '_', 89},           // ur_PK
    {"uz", "", "", "", '_', 90},           // uz_UZ
    {"ve", "", "", "", '_', 91},           // ve_ZA
    {"vi", "", "", "", '_', 92},           // vi_VN
    {"wa", "", "", "", '_', 93},           // wa_BE
    {"xh", "", "", "", '_', 94},           // xh_ZA
    {"yi", "", "", "", '_', 95},           // yi_US
    {"zh", "Hans", "", "", '-', 96},       // zh_CN
    {"zh", "Hans", "CN", "", '-', 96},     // zh_CN
    {"zh", "Hant", "", "", '-', 99},       // zh_TW
    {"zh", "Hant", "HK", "", '-', 97},     // zh_HK
    {"zh", "Hant", "MO", "", '-', 98},     // zh_MO
    {"zh", "Hant", "TW", "", '-', 99},     // zh_TW
    {"zu", "", "", "", '_', 100},          // zu_ZA
};
std::size_t const locale_alias_row_count = sizeof(locale_alias_rows) / sizeof(locale_alias_rows[0]);

default_encoding_row const default_encoding_rows[] = {
    {"en_US_POSIX", "US-ASCII"},
};
std::size_t const default_encoding_row_count =
    sizeof(default_encoding_rows) / sizeof(default_encoding_rows[0]);

}  // namespace builtin
}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
