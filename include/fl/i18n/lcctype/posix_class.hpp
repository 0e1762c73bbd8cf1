#ifndef FL_I18N_LCCTYPE_POSIX_CLASS_HPP
#define FL_I18N_LCCTYPE_POSIX_CLASS_HPP

namespace fl {
namespace i18n {
namespace lcctype {

// The class bits that lcctype::scan takes; the ASCII class table uses the same values. Each bit
// is tested by itself, so a mask is the union of its classes; alnum and graph are compounds.
namespace posix_class {
constexpr unsigned int alpha = 0x001;
constexpr unsigned int digit = 0x002;
constexpr unsigned int cntrl = 0x004;
constexpr unsigned int punct = 0x008;
constexpr unsigned int space = 0x010;
constexpr unsigned int xdigit = 0x020;
constexpr unsigned int lower = 0x040;
constexpr unsigned int upper = 0x080;
constexpr unsigned int print = 0x100;
constexpr unsigned int alnum = alpha | digit;
constexpr unsigned int graph = alpha | digit | punct;
}  // namespace posix_class

}  // namespace lcctype
}  // namespace i18n
}  // namespace fl

#endif
