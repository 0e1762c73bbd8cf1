#include "i18n/lcmgmt/encoding_standard_name.hpp"

#include "common/unique_converter.hpp"

#include <unicode/ucnv.h>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

char const* standard_name(char const* icu_name, char const* standard) {
    UErrorCode error = U_ZERO_ERROR;
    char const* name = ucnv_getStandardName(icu_name, standard, &error);
    return (U_FAILURE(error) || name == nullptr || *name == '\0') ? nullptr : name;
}

}  // namespace

std::string encoding_standard_name(std::string const& name) {
    // ICU opens its default converter for an empty name, which is not what was asked.
    if (name.empty()) {
        return std::string();
    }
    UErrorCode error = U_ZERO_ERROR;
    detail::unique_converter const converter(ucnv_open(name.c_str(), &error));
    if (U_FAILURE(error) || !converter) {
        return std::string();
    }
    error = U_ZERO_ERROR;
    char const* icu_name = ucnv_getName(converter.get(), &error);
    if (U_FAILURE(error) || icu_name == nullptr || *icu_name == '\0') {
        return std::string();
    }
    for (char const* standard : {"MIME", "IANA", "WINDOWS"}) {
        if (char const* found = standard_name(icu_name, standard)) {
            return found;
        }
    }
    return icu_name;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
