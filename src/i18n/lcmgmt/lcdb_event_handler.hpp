#ifndef FL_I18N_LCMGMT_LCDB_EVENT_HANDLER_HPP
#define FL_I18N_LCMGMT_LCDB_EVENT_HANDLER_HPP

#include <fl/i18n/lcmgmt/lcdb.hpp>

#include "i18n/lcmgmt/event_handler.hpp"
#include "i18n/lcmgmt/event_validator.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

// Turns the elements of a locale database file into changes of the database. A change the
// database refuses becomes a warning and never stops the parse; a grammar error or a missing
// required attribute does.
class LcdbEventHandler : public EventHandler {
public:
    LcdbEventHandler(Lcdb& database, std::vector<std::string>& warnings);

    int xmlDecl(char const* version, char const* encoding, int standalone) override;
    int startElement(char const* name, char const** attributes) override;
    int characterData(char const* data, int length) override;
    int endElement(char const* name) override;
    char const* parserEncoding() const override;

private:
    int start_locale(char const** attributes);
    int start_alias(char const** attributes, bool region_table);
    int start_l10n(char const** attributes);
    int start_encoding(char const** attributes);
    int start_encoding_alias(char const** attributes);

    // Each compares with what the database holds and changes only what differs.
    void addLcName(std::string const& name, std::string const& encoding,
                   std::string const& xpg_name);
    void addAliasName(std::string const& name, std::string const& alias, bool region_table);
    void addL10nFlag(std::string const& name, std::string const& disable);
    void addEncodingName(std::string const& name, std::string const& jvm,
                         std::string const& compat);
    void addEncodingAlias(std::string const& name, std::string const& alias);

    void warn_unless_done(char const* prefix, std::int32_t code,
                          std::vector<std::string> const& arguments);

    Lcdb& database_;
    std::vector<std::string>& warnings_;
    std::string encoding_ = "UTF-8";
    EventValidator validator_;
    struct {
        std::string name;
        std::string encoding;
        std::string xpg_name;
        std::string unused;
        // Read for the sake of files that have it; it means nothing.
        std::string disable_user_locale;
    } locale_;
    std::string encoding_name_;
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
