#ifndef FL_TESTS_FILESYSTEM_PATH_TEST_SUPPORT_HPP
#define FL_TESTS_FILESYSTEM_PATH_TEST_SUPPORT_HPP

#include <fl/i18n/codecvt/converter.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <string>
#include <utility>

namespace fstest {

// Widens ASCII test text to a path name.
inline fl::i18n::ustring u(std::string const& ascii) {
    return fl::i18n::ustring(ascii.begin(), ascii.end());
}

// The same text as the character type under test, so one table serves both path types.
template <class CharT>
std::basic_string<CharT> as(std::string const& ascii) {
    return std::basic_string<CharT>(ascii.begin(), ascii.end());
}

// Copies each unit across, or answers with a fixed text; records what it was given, so that tests
// can see which text reaches a caller's converter, and whether any does.
template <class To, class From>
class recording_converter : public fl::i18n::converter<To, From> {
public:
    explicit recording_converter(std::basic_string<To> answer = {}) : answer_(std::move(answer)) {}
    std::size_t do_get_destination_size(From const*, std::size_t size) const override {
        return size;
    }
    std::basic_string<To> do_convert(From const* source, std::size_t size) const override {
        seen.assign(source, size);
        ++calls;
        return answer_.empty() ? std::basic_string<To>(source, source + size) : answer_;
    }
    std::size_t do_convert(To*, std::size_t, From const*, std::size_t size) const override {
        return size;
    }
    mutable std::basic_string<From> seen;
    mutable int calls = 0;

private:
    std::basic_string<To> answer_;
};

}  // namespace fstest

#endif
