#ifndef FL_I18N_CATALOG_META_INFO_EXPAT_EVENT_HANDLER_HPP
#define FL_I18N_CATALOG_META_INFO_EXPAT_EVENT_HANDLER_HPP

#include <fl/i18n/codecvt/codecvt_ascii.hpp>
#include <fl/i18n/ustring.hpp>

#include "i18n/catalog/expat_event_handler.hpp"

#include <boost/shared_ptr.hpp>
#include <boost/unordered_set.hpp>

#include <deque>

namespace fl {
namespace i18n {

// Reads a catalog map, MessageCatalogMap > entry*, and gathers the names one level below
// prefix: from each key "prefix:name[:...]" the name. Text is ignored. One handler may read
// several maps in turn into the same set.
class MetaInfoExpatEventHandler : public ExpatEventHandler {
public:
    enum xml_tags { in_catalog_map = 0, in_entry = 1, at_document = 2 };

    // names is shared with the caller, who reads it after the parse.
    MetaInfoExpatEventHandler(ustring const& prefix,
                              boost::shared_ptr<boost::unordered_set<ustring>> names);

    // A key that is not ASCII throws CvtInvalidCharacter.
    bool start_element(char const* name, char const** attributes) override;
    bool character_data(char const* text, int length, bool at_line_start) override;
    bool end_element(char const* name) override;

private:
    void read_entry(char const** attributes);

    ustring prefix_;
    // Always empty.
    ustring unused_;
    boost::shared_ptr<boost::unordered_set<ustring>> names_;
    std::deque<xml_tags> tag_stack_;
    codecvt_ascii_to_ustring ascii_;
};

}  // namespace i18n
}  // namespace fl

#endif
