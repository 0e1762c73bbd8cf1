#include <fl/filesystem/path_algebra.hpp>

#include "filesystem/path_grammar.hpp"

namespace fl {
namespace filesystem {
namespace detail {
namespace {

template <class CharT>
std::basic_string<CharT> first_element(std::basic_string<CharT> const& text,
                                       unsigned long root_length) {
    if (text.empty()) {
        return {};
    }
    if (root_length != 0) {
        return text.substr(0, root_length);
    }
    return text.substr(0, text.find(grammar::units<CharT>::separator));
}

template <class CharT>
void step_down(std::basic_string<CharT> const& text, unsigned long root_length,
               unsigned long& position, std::basic_string<CharT>& element) {
    if (position >= text.size()) {
        element.clear();
        return;
    }
    if (position + element.size() >= text.size()) {
        position = text.size();
        element.clear();
        return;
    }
    // Leaving the root element skips only the root itself, since no separator follows it.
    position += (position == 0 && root_length != 0) ? root_length : element.size() + 1;
    auto const next = text.find(grammar::units<CharT>::separator, position);
    element = text.substr(position, next == std::basic_string<CharT>::npos
                                        ? std::basic_string<CharT>::npos
                                        : next - position);
}

template <class CharT>
void step_up(std::basic_string<CharT> const& text, unsigned long root_length,
             unsigned long& position, std::basic_string<CharT>& element) {
    if (position == 0) {
        return;
    }
    if (position == root_length) {
        position = 0;
        element.assign(1, grammar::units<CharT>::separator);
        return;
    }
    // Drop the separator in front of the current element, then find the one before that.
    auto const prefix = position >= text.size() ? text : text.substr(0, position - 1);
    auto const p = prefix.rfind(grammar::units<CharT>::separator);
    position = p == std::basic_string<CharT>::npos ? 0 : p + 1;
    element = prefix.substr(position);
}

}  // namespace

fl::i18n::ustring extract_first_element(fl::i18n::ustring const& text, unsigned long root_length) {
    return first_element(text, root_length);
}

std::string extract_first_element(std::string const& text, unsigned long root_length) {
    return first_element(text, root_length);
}

void move_down(fl::i18n::ustring const& text, unsigned long root_length, unsigned long& position,
               fl::i18n::ustring& element) {
    step_down(text, root_length, position, element);
}

void move_down(std::string const& text, unsigned long root_length, unsigned long& position,
               std::string& element) {
    step_down(text, root_length, position, element);
}

void move_up(fl::i18n::ustring const& text, unsigned long root_length, unsigned long& position,
             fl::i18n::ustring& element) {
    step_up(text, root_length, position, element);
}

void move_up(std::string const& text, unsigned long root_length, unsigned long& position,
             std::string& element) {
    step_up(text, root_length, position, element);
}

}  // namespace detail
}  // namespace filesystem
}  // namespace fl
