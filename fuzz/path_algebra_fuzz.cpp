#include <fl/filesystem/path_algebra.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

// Path texts come from users, configuration and directory listings. The path algebra takes its
// text as an owned string, so a guarded buffer would not reach it; AddressSanitizer watches the
// string's own heap block instead. Checked: the native form is a fixed point with no empty
// element; tilde expansion is HOME put in front; taking a path apart and joining it again gives
// it back; the element cursor walks the same elements both ways; UTF-16 texts give the same
// answers as their bytes.

namespace {

namespace fs = fl::filesystem::detail;

char const home[] = "/home/fuzz";

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

fl::i18n::ustring widen(std::string const& text) {
    return fl::i18n::ustring(text.begin(), text.end());
}

template <class Char>
std::vector<std::basic_string<Char>> walk_down(std::basic_string<Char> const& text) {
    unsigned long const root = fs::get_root_path_length(text);
    unsigned long position = 0;
    std::basic_string<Char> element = fs::extract_first_element(text, root);
    std::vector<std::basic_string<Char>> elements;
    while (position < text.size()) {
        require(elements.size() <= text.size());
        elements.push_back(element);
        fs::move_down(text, root, position, element);
    }
    require(position == text.size() && element.empty());
    return elements;
}

template <class Char>
std::vector<std::basic_string<Char>> walk_up(std::basic_string<Char> const& text) {
    unsigned long const root = fs::get_root_path_length(text);
    unsigned long position = text.size();
    std::basic_string<Char> element;
    std::vector<std::basic_string<Char>> elements;
    while (position != 0) {
        require(elements.size() <= text.size());
        fs::move_up(text, root, position, element);
        elements.insert(elements.begin(), element);
    }
    return elements;
}

template <class Char>
void check_native(std::basic_string<Char> const& native) {
    Char const slash = '/';
    require(fs::make_native_form(native, false) == native);
    require(native.find(std::basic_string<Char>(2, slash)) == std::basic_string<Char>::npos);
    require(native.size() <= 1 || native.back() != slash);
    require(fs::extract_root_path(native) + fs::extract_relative_path(native) == native);

    std::basic_string<Char> const parent = fs::extract_parent_path(native);
    std::basic_string<Char> const filename = fs::extract_filename(native);
    std::basic_string<Char> without = native;
    require(fs::remove_filename(without) == parent);
    if (native.size() > 1) {
        std::basic_string<Char> joined = parent;
        require(fs::concatenate_pathname(joined, filename, false) == native);
    }

    fs::pathname_element_context<Char> const pieces = fs::extract_pathname_elements(native);
    require(pieces.directory == parent && pieces.filename == filename);
    std::basic_string<Char> rebuilt = pieces.stem;
    if (!pieces.extension.empty()) {
        rebuilt += Char('.') + pieces.extension;
        require(fs::extract_extension(native) == pieces.extension);
    }
    require(rebuilt == filename);

    std::vector<std::basic_string<Char>> const down = walk_down(native);
    require(walk_up(native) == down);
    std::basic_string<Char> joined;
    for (std::basic_string<Char> const& element : down) {
        require(!element.empty());
        if (!joined.empty() && joined.back() != slash) {
            joined += slash;
        }
        joined += element;
    }
    require(joined == native);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    setenv("HOME", home, 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const text(reinterpret_cast<char const*>(data), size);
    std::string const native = fs::make_native_form(text, false);
    check_native(native);
    require(fs::make_native_form(widen(text), false) == widen(native));
    check_native(widen(native));

    // Other users' homes depend on the machine; the current user's is HOME.
    bool const own_home = text == "~" || text.rfind("~/", 0) == 0;
    if (own_home) {
        require(fs::make_native_form(text, true) ==
                fs::make_native_form(home + text.substr(1), false));
    } else if (text.empty() || text[0] != '~') {
        require(fs::make_native_form(text, true) == native);
    }
    return 0;
}
