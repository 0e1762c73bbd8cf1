#include <fl/filesystem/basic_path.hpp>

namespace fl {
namespace filesystem {

template class basic_path<char, char16_t, detail::path_traits<char, char16_t>>;
template class basic_path<char, char, detail::native_path_traits<char, char>>;

}  // namespace filesystem
}  // namespace fl
