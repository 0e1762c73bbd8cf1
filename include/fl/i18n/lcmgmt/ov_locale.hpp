#ifndef FL_I18N_LCMGMT_OV_LOCALE_HPP
#define FL_I18N_LCMGMT_OV_LOCALE_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>

#include <boost/noncopyable.hpp>

#include <string>

namespace fl {
namespace i18n {

// A locale: six categories, each with a name and a modifier, plus an encoding and a terminal
// encoding. Locales never change once handed out, so they are read without locks.
class FL_I18N_API OvLocale : private boost::noncopyable {
public:
    enum LcCategory { ctype = 0, collate = 1, time = 2, numeric = 3, monetary = 4, messages = 5 };

    struct CategoryContext {
        LcCategory category;
        std::string name;
    };

    virtual ~OvLocale();

    virtual bool operator==(OvLocale const& other) const = 0;
    virtual bool operator!=(OvLocale const& other) const = 0;
    virtual std::string getLocaleName(LcCategory category) const = 0;
    // The language, with "-" and the script when the name has one: "sr-Latn".
    virtual std::string getLanguage(LcCategory category) const = 0;
    virtual std::string getRegion(LcCategory category) const = 0;
    // "@" before each modifier, or empty.
    virtual std::string getModifier(LcCategory category) const = 0;
    virtual std::string getEncoding() const = 0;
    virtual OvLcOptDataCtx::value_type getOptData(OvLcOptDataCtx::LcOptDataType type) const = 0;

    // The default setting's locale; never changes.
    static OvLocale const& classic();
    // What the environment said at start-up.
    static OvLocale const& system();
    // The active locale.
    static OvLocale const& global();

    // Case-insensitive; an unknown name throws OvLcDataNotFound.
    static LcCategory getLcCategory(std::string const& name);
    static std::string getLcCategoryName(LcCategory category);
};

}  // namespace i18n
}  // namespace fl

#endif
