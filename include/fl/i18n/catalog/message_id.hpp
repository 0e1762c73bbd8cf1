#ifndef FL_I18N_CATALOG_MESSAGE_ID_HPP
#define FL_I18N_CATALOG_MESSAGE_ID_HPP

#include <fl/i18n/catalog/catalog_id.hpp>
#include <fl/i18n/export.hpp>

#include <exception>
#include <string>

namespace fl {
namespace i18n {

// The name of one message: a catalog identifier, ":" and the key, three tokens at least, such as
// "a:b:key".
class FL_I18N_API MessageID {
public:
    class FL_I18N_API badMessageIDException : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    static char const* const badMsgException_;

    MessageID() = default;
    // Keys come from catalog files, where they follow no syntax, so neither the key nor the
    // catalog is checked here; only an empty key throws.
    MessageID(CatalogID const& catalog, std::string const& key);
    // Throws badMessageIDException if id is malformed.
    explicit MessageID(std::string const& id);

    // Same rules as CatalogID::setCatalogID.
    void setCompositeMsgID(std::string const& id);

    // Splits at the last colon into catalog and key. False without a colon, with a bad catalog
    // part or with an empty key; in the last case the catalog part has already been replaced.
    bool extractIDComponents(std::string const& id);

    std::string getCatalogID() const { return catalog.getCatalogID(); }
    std::string getCompositeID() const { return composite_id; }
    char const* getCompositeIDstr() const noexcept { return composite_id.c_str(); }
    std::string getMsgKey() const { return msg_key; }

private:
    std::string composite_id;
    CatalogID catalog;
    std::string msg_key;
};

}  // namespace i18n
}  // namespace fl

#endif
