#ifndef FL_I18N_CATALOG_CATALOG_ID_HPP
#define FL_I18N_CATALOG_CATALOG_ID_HPP

#include <fl/i18n/export.hpp>

#include <exception>
#include <string>

namespace fl {
namespace i18n {

// The name of a message catalog: two or more ASCII tokens joined by ":", such as "a:b:c". The
// first token is the component; the rest, colons kept, are the sub-components. A token starts
// with a letter or "_" and goes on with letters, digits or "_".
class FL_I18N_API CatalogID {
public:
    class FL_I18N_API badCatalogIDException : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    static char const* const badCatException_;

    CatalogID() = default;
    // Throws badCatalogIDException if id is malformed.
    explicit CatalogID(std::string const& id);

    // An empty id throws; the present value is taken back without a check; otherwise a
    // malformed id throws and leaves the object unchanged.
    void setCatalogID(std::string const& id);

    // Splits at the first colon. False without a colon (outputs untouched) or with an empty side.
    static bool extractIDComponents(std::string const& id, std::string& component,
                                    std::string& subcomponent_names);

    std::string getCatalogID() const { return catalog_id; }
    char const* getCatalogIDStr() const noexcept { return catalog_id.c_str(); }
    std::string getComponentName() const { return component; }
    std::string getSubComponentsNames() const { return subcomponent_names; }

private:
    std::string catalog_id;
    std::string component;
    std::string subcomponent_names;
};

}  // namespace i18n
}  // namespace fl

#endif
