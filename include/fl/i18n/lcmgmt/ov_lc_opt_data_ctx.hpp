#ifndef FL_I18N_LCMGMT_OV_LC_OPT_DATA_CTX_HPP
#define FL_I18N_LCMGMT_OV_LC_OPT_DATA_CTX_HPP

#include <fl/i18n/export.hpp>

#include <boost/variant.hpp>

#include <string>

namespace fl {
namespace i18n {

// The vocabulary of the optional data a locale can answer: encodings for a JVM and a terminal,
// paper size and measurement units.
class FL_I18N_API OvLcOptDataCtx {
public:
    enum LcOptDataType {
        jvmencoding = 0,
        termencoding = 1,
        terminputencoding = 2,
        termoutputencoding = 3,
        papersize = 4,
        unittype = 5
    };

    // 1 for A4, 0 for any other size.
    enum LcPaperSizeType { paper_other = 0, paper_a4 = 1 };

    enum LcUnitType { unit_us = 0, unit_metric = 1, unit_british = 2 };

    using value_type = boost::variant<std::string, LcPaperSizeType, LcUnitType>;

    virtual ~OvLcOptDataCtx();

    // Case-insensitive; an unknown name throws OvLcDataNotFound.
    static LcOptDataType getOptDataType(std::string const& name);
};

}  // namespace i18n
}  // namespace fl

#endif
