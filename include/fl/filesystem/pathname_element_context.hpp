#ifndef FL_FILESYSTEM_PATHNAME_ELEMENT_CONTEXT_HPP
#define FL_FILESYSTEM_PATHNAME_ELEMENT_CONTEXT_HPP

#include <string>

namespace fl {
namespace filesystem {
namespace detail {

// The four pieces of a path name, computed together by extract_pathname_elements.
template <class CharT>
struct pathname_element_context {
    std::basic_string<CharT> directory;
    std::basic_string<CharT> filename;
    std::basic_string<CharT> stem;
    std::basic_string<CharT> extension;
};

}  // namespace detail
}  // namespace filesystem
}  // namespace fl

#endif
