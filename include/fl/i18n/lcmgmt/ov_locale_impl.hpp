#ifndef FL_I18N_LCMGMT_OV_LOCALE_IMPL_HPP
#define FL_I18N_LCMGMT_OV_LOCALE_IMPL_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>

#include <atomic>
#include <string>

namespace fl {
namespace i18n {

namespace lcmgmt {
class Lcdb;
}

// The one implementation of OvLocale: plain names, modifiers and encodings. It is filled while
// it is built. After that only publish() changes it, by switching to new immutable data, so a
// reference taken earlier sees the new setting and a reader never sees half of one.
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
    void set_encoding(std::string const& encoding);
    void set_terminal_encoding(std::string const& encoding);

    // Makes this locale read as source does now, database included, for the manager's own
    // locales at start-up. Readers may still hold the old data, so it is never freed.
    void publish(OvLocaleImpl const& source);

    lcmgmt::Lcdb const* database() const noexcept;
    std::string const& terminal_encoding() const noexcept;

private:
    struct data;

    data const& current() const noexcept;
    // The setters' view: only while the object is being built, before anyone else can read it.
    data& building() noexcept;

    std::atomic<data const*> data_;
};

}  // namespace i18n
}  // namespace fl

#endif
