#include "filesystem/wildcard_prefilter.hpp"

#include <fl/filesystem/wildcard_pattern.hpp>

namespace fl {
namespace filesystem {
namespace detail {

wildcard_prefilter::wildcard_prefilter(fl::i18n::ustring const& filename,
                                       fl::i18n::ustring const& pattern) {
    if (filename == u"." || filename == u".." ||
        pattern != generate_pattern_from_filename(filename, velmor_pattern_string_generator())) {
        return;
    }
    active_ = true;
    auto const first_star = filename.find(u'*');
    if (first_star == fl::i18n::ustring::npos) {
        head_ = filename;  // no star: the name must be exactly this
        return;
    }
    head_ = filename.substr(0, first_star);
    tail_ = filename.substr(filename.rfind(u'*') + 1);
}

bool wildcard_prefilter::may_match(fl::i18n::ustring const& name) const {
    if (!active_) {
        return true;
    }
    if (name.compare(0, head_.size(), head_) != 0) {
        return false;
    }
    return name.size() >= head_.size() + tail_.size() &&
           name.compare(name.size() - tail_.size(), tail_.size(), tail_) == 0;
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
