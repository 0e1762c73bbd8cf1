#ifndef FL_I18N_LCMGMT_OV_LOCALE_HPP
#define FL_I18N_LCMGMT_OV_LOCALE_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>

#include <boost/noncopyable.hpp>
#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace fl {
namespace i18n {

// A locale: six categories, each with a name and a modifier, plus an encoding and a terminal
// encoding. Locales are read without locks: one handed out never changes, except that
// system() and the user locale switch once, whole, to the setting start-up reads.
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

    // New locales. A name is "language[-Script][_REGION][.encoding][@modifier]" or an alias such
    // as "C"; without an encoding the locale gets the database's default one. An empty name
    // throws OvLcInvLcArgument, an unknown locale or encoding OvLcInvLcName with the offending
    // text as its detail. Changing a category never changes the encoding.
    static boost::shared_ptr<OvLocale> createLocale(std::string const& name);
    static boost::shared_ptr<OvLocale> createLocale(OvLocale const& source);
    // The library's own number formatting: numeric is "en_US_POSIX".
    static boost::shared_ptr<OvLocale> createLocaleWithCForNumeric(std::string const& name);
    static boost::shared_ptr<OvLocale> createLocale(std::string const& name,
                                                    std::vector<CategoryContext> const& changes);
    static boost::shared_ptr<OvLocale> createLocale(OvLocale const& source,
                                                    std::vector<CategoryContext> const& changes);
    static boost::shared_ptr<OvLocale> createLocale(std::string const& name, LcCategory category,
                                                    std::string const& categoryName);
    static boost::shared_ptr<OvLocale> createLocale(OvLocale const& source, LcCategory category,
                                                    std::string const& categoryName);
    // A copy of source with one category taken from other.
    static boost::shared_ptr<OvLocale> createLocale(OvLocale const& source, LcCategory category,
                                                    OvLocale const& other);
};

}  // namespace i18n
}  // namespace fl

#endif
