#ifndef FL_I18N_LCMGMT_OV_LOCALE_IMPL_HPP
#define FL_I18N_LCMGMT_OV_LOCALE_IMPL_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <string>

namespace fl {
namespace i18n {

namespace lcmgmt {
class Lcdb;
}

// The one implementation of OvLocale: plain names, modifiers and encodings. It is filled while
// it is built and never changes once handed out.
class FL_I18N_API OvLocaleImpl : public OvLocale {
public:
    static constexpr int category_count = 6;

    explicit OvLocaleImpl(lcmgmt::Lcdb const* database);
    // Reads the source through its virtual interface; an empty terminal encoding of the source
    // becomes its encoding here.
    OvLocaleImpl(lcmgmt::Lcdb const* database, OvLocale const& source);
    ~OvLocaleImpl() override;

    bool operator==(OvLocale const& other) const override;
    bool operator!=(OvLocale const& other) const override;
    std::string getLocaleName(LcCategory category) const override;
    std::string getLanguage(LcCategory category) const override;
    std::string getRegion(LcCategory category) const override;
    std::string getModifier(LcCategory category) const override;
    std::string getEncoding() const override;
    OvLcOptDataCtx::value_type getOptData(OvLcOptDataCtx::LcOptDataType type) const override;

    // Messages never carry "en_US_POSIX": catalogs have no such locale, so it is stored as
    // "en_US". The modifier is given without its leading "@", which getModifier adds back.
    void set_category(std::string const& name, std::string const& modifier, LcCategory category);
    void set_encoding(std::string const& encoding) { encoding_ = encoding; }
    void set_terminal_encoding(std::string const& encoding) { terminal_encoding_ = encoding; }

    lcmgmt::Lcdb const* database() const noexcept { return database_; }
    std::string const& terminal_encoding() const noexcept { return terminal_encoding_; }

private:
    struct category_entry {
        std::string name;
        std::string modifier;
    };

    category_entry const& entry(LcCategory category) const;

    lcmgmt::Lcdb const* database_;
    category_entry categories_[category_count];
    std::string encoding_;
    std::string terminal_encoding_;
};

}  // namespace i18n
}  // namespace fl

#endif
