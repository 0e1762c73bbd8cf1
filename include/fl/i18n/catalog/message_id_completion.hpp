#ifndef FL_I18N_CATALOG_MESSAGE_ID_COMPLETION_HPP
#define FL_I18N_CATALOG_MESSAGE_ID_COMPLETION_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <vector>

namespace fl {
namespace i18n {

// What may follow a partly typed message identifier: catalog names (each ending in ":") and
// message keys, to be put in the input from start_offset on.
struct FL_I18N_API MessageIdCompletions {
    std::vector<ustring> completions;
    int start_offset = 0;
};

// Never throws: any failure, including a catalog service not yet initialised, gives an empty
// list at offset 0. Case is ignored when matching; completions keep the catalog's case.
FL_I18N_API MessageIdCompletions getMessageIdCompletions(ustring const& input);

}  // namespace i18n
}  // namespace fl

#endif
