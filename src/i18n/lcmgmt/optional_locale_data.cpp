#include "i18n/lcmgmt/optional_locale_data.hpp"

#include <unicode/ulocdata.h>

namespace fl {
namespace i18n {
namespace lcmgmt {

std::string jvm_encoding_name(Lcdb const* database, std::string const& encoding) {
    // An encoding the database doesn't know is passed on as it is: the JVM may still know it.
    char const* jvm = database != nullptr ? database->jvm_encoding_name(encoding) : nullptr;
    return jvm != nullptr ? std::string(jvm) : encoding;
}

bool terminal_input_follows_output() {
    return true;
}

OvLcOptDataCtx::LcPaperSizeType paper_size_of(std::string const& locale_name) {
    int32_t height = 0;
    int32_t width = 0;
    UErrorCode status = U_ZERO_ERROR;
    ulocdata_getPaperSize(locale_name.c_str(), &height, &width, &status);
    if (U_FAILURE(status)) {
        status = U_ZERO_ERROR;
        ulocdata_getPaperSize("en_US_POSIX", &height, &width, &status);
        if (U_FAILURE(status)) {
            return OvLcOptDataCtx::paper_other;
        }
    }
    return (height == 297 && width == 210) ? OvLcOptDataCtx::paper_a4 : OvLcOptDataCtx::paper_other;
}

OvLcOptDataCtx::LcUnitType unit_type_of(std::string const& locale_name) {
    UErrorCode status = U_ZERO_ERROR;
    UMeasurementSystem system = ulocdata_getMeasurementSystem(locale_name.c_str(), &status);
    if (U_FAILURE(status)) {
        status = U_ZERO_ERROR;
        system = ulocdata_getMeasurementSystem("en_US_POSIX", &status);
        if (U_FAILURE(status)) {
            return OvLcOptDataCtx::unit_us;
        }
    }
    switch (system) {
        case UMS_SI:
            return OvLcOptDataCtx::unit_metric;
        case UMS_UK:
            return OvLcOptDataCtx::unit_british;
        default:
            return OvLcOptDataCtx::unit_us;
    }
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
