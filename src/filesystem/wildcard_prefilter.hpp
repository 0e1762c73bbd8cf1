#ifndef FL_FILESYSTEM_WILDCARD_PREFILTER_HPP
#define FL_FILESYSTEM_WILDCARD_PREFILTER_HPP

#include <fl/i18n/ustring.hpp>

namespace fl {
namespace filesystem {
namespace detail {

// A cheap necessary condition for a name to match a pattern made from a wildcard file name: the
// literal text before the first star must begin the name and the text after the last star must
// end it, unit for unit (matching is exact, never folded or normalised). Rejecting here saves the
// regular expression engine for most names of a directory; the engine still decides every name
// that passes. A pattern that isn't the one the file name generates gets no filter.
class wildcard_prefilter {
public:
    wildcard_prefilter(fl::i18n::ustring const& filename, fl::i18n::ustring const& pattern);
    bool may_match(fl::i18n::ustring const& name) const;

private:
    bool active_ = false;
    fl::i18n::ustring head_;
    fl::i18n::ustring tail_;
};

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
