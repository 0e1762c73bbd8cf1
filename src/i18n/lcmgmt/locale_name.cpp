#include <fl/i18n/lcmgmt/locale_name.hpp>

#include <cstddef>

namespace fl {
namespace i18n {
namespace lcmgmt {
namespace {

// Only ASCII counts: bytes above 0x7F are in no class, whatever the C library's locale says.
bool is_alpha(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
bool is_alnum(char c) {
    return is_alpha(c) || is_digit(c);
}

template <class Predicate>
bool all_of(std::string const& s, Predicate p) {
    for (char c : s) {
        if (!p(c)) {
            return false;
        }
    }
    return true;
}

bool sized(std::string const& s, std::size_t low, std::size_t high) {
    return s.size() >= low && s.size() <= high;
}

bool is_language(std::string const& s) {
    return sized(s, 2, 3) && all_of(s, is_alpha);
}
bool is_script(std::string const& s) {
    return s.size() == 4 && all_of(s, is_alpha);
}
bool is_region(std::string const& s) {
    return (s.size() == 2 && all_of(s, is_alpha)) || (s.size() == 3 && all_of(s, is_digit));
}
bool is_variant(std::string const& s) {
    return sized(s, 5, 8) && all_of(s, is_alnum);
}
bool is_extension_value(std::string const& s) {
    return sized(s, 2, 8) && all_of(s, is_alnum);
}
bool is_private_use(std::string const& s) {
    return sized(s, 1, 8) && all_of(s, is_alnum);
}
bool is_singleton(char c) {
    return is_alnum(c) && c != 'x' && c != 'X';
}

bool is_separator(char c) {
    return c == '-' || c == '_';
}

class tag_parser {
public:
    explicit tag_parser(locale_name_context& out) : out_(out) {}

    bool parse(std::string name) {
        if (!take_private_use(name)) {
            return false;
        }
        std::size_t const first = name.find_first_of("-_");
        if (first == std::string::npos) {
            out_.language = name;
            return is_language(name);
        }
        std::string const language = name.substr(0, first);
        if (!is_language(language)) {
            return false;
        }
        out_.language = language;

        std::size_t const last = name.find_last_of("-_");
        std::size_t begin = first + 1;
        while (begin <= last) {
            std::size_t end = begin;
            while (!is_separator(name[end])) {
                ++end;
            }
            if (!take_piece(name.substr(begin, end - begin))) {
                return false;
            }
            begin = end + 1;
        }
        std::string const tail = name.substr(last + 1);
        return tail.size() >= 2 && take_token(tail);
    }

private:
    bool take_private_use(std::string& name) {
        std::size_t at = name.find("-x-");
        if (at == std::string::npos) {
            at = name.find("-X-");
        }
        if (at == std::string::npos) {
            return true;
        }
        std::string const rest = name.substr(at + 3);
        if (rest.empty()) {
            return false;
        }
        std::size_t begin = 0;
        for (;;) {
            std::size_t const end = rest.find('-', begin);
            std::string const piece = rest.substr(begin, end - begin);
            if (!is_private_use(piece)) {
                return false;
            }
            out_.private_use.push_back(piece);
            if (end == std::string::npos) {
                break;
            }
            begin = end + 1;
        }
        out_.private_use_prefix = name.substr(at + 1, 1);
        name.erase(at);
        return true;
    }

    // A piece that isn't the last: a lone character opens an extension.
    bool take_piece(std::string const& piece) {
        if (piece.size() == 1) {
            if (pending_ != '\0' || !is_singleton(piece[0])) {
                return false;
            }
            pending_ = piece[0];
            return true;
        }
        return take_token(piece);
    }

    bool take_token(std::string const& piece) {
        if (pending_ != '\0') {
            if (!is_extension_value(piece)) {
                return false;
            }
            out_.extensions.push_back(language_extension_context{pending_, piece});
            pending_ = '\0';
            return true;
        }
        if (is_script(piece)) {
            out_.script = piece;
        } else if (is_region(piece)) {
            out_.region = piece;
        } else if (is_variant(piece)) {
            out_.variants.push_back(piece);
        } else {
            return false;
        }
        return true;
    }

    locale_name_context& out_;
    char pending_ = '\0';
};

void append_joined(std::string& out, char separator, std::vector<std::string> const& parts) {
    for (std::string const& part : parts) {
        out += separator;
        out += part;
    }
}

void append_part(std::string& out, char separator, std::string const& part) {
    if (!part.empty()) {
        if (!out.empty()) {
            out += separator;
        }
        out += part;
    }
}

}  // namespace

locale_name_context parse_locale_name(std::string const& name) {
    locale_name_context result;
    std::string rest = name;

    std::size_t const at = rest.find('@');
    if (at != std::string::npos) {
        std::size_t begin = at + 1;
        for (;;) {
            std::size_t const end = rest.find('@', begin);
            result.modifiers.push_back(rest.substr(begin, end - begin));
            if (end == std::string::npos) {
                break;
            }
            begin = end + 1;
        }
        rest.erase(at);
    }
    std::size_t const dot = rest.find('.');
    if (dot != std::string::npos) {
        result.encoding = rest.substr(dot + 1);
        rest.erase(dot);
    }
    if (!tag_parser(result).parse(rest)) {
        return locale_name_context();
    }
    return result;
}

bool locale_name_context::empty() const {
    return language.empty() && script.empty() && region.empty() && encoding.empty() &&
           modifiers.empty() && variants.empty() && extensions.empty() &&
           private_use_prefix.empty() && private_use.empty();
}

std::string locale_name_context::language_and_script() const {
    std::string out = language;
    append_part(out, '-', script);
    return out;
}

std::string locale_name_context::language_and_region() const {
    std::string out = language;
    append_part(out, '_', region);
    return out;
}

std::string locale_name_context::canonical_name() const {
    std::string out = language_and_script();
    append_part(out, '_', region);
    return out;
}

std::string locale_name_context::posix_name() const {
    std::string out = canonical_name();
    append_part(out, '.', encoding);
    return out + modifiers_string();
}

std::string locale_name_context::tag() const {
    std::string out = language_and_script();
    append_part(out, '-', region);
    append_joined(out, '-', variants);
    for (language_extension_context const& e : extensions) {
        out += '-';
        out += e.singleton;
        out += '-';
        out += e.value;
    }
    if (!private_use.empty()) {
        append_part(out, '-', private_use_prefix);
        append_joined(out, '-', private_use);
    }
    return out;
}

std::string locale_name_context::modifiers_string() const {
    std::string out;
    append_joined(out, '@', modifiers);
    return out;
}

std::string locale_name_context::variants_string() const {
    std::string out;
    append_joined(out, '-', variants);
    return out;
}

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl
