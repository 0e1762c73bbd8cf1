#ifndef OVI18N_TESTS_FILESYSTEM_STREAMS_NAME_MODEL_HPP
#define OVI18N_TESTS_FILESYSTEM_STREAMS_NAME_MODEL_HPP

#include <cstddef>
#include <string>

// Whether text fits model: "x" stands for a lower-case hexadecimal digit, "v" for one of
// 8, 9, a, b (a UUID's variant), any other character for itself.
inline bool fits_model(std::string const& text, std::string const& model) {
    if (text.size() != model.size()) {
        return false;
    }
    std::string const hex = "0123456789abcdef";
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const c = text[i];
        bool const ok = model[i] == 'x'   ? hex.find(c) != std::string::npos
                        : model[i] == 'v' ? std::string("89ab").find(c) != std::string::npos
                                          : c == model[i];
        if (!ok) {
            return false;
        }
    }
    return true;
}

#endif
