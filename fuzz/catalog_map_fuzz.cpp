#include <fl/i18n/codecvt/codecvt_exception.hpp>

#include "i18n/catalog/expat_file_parser.hpp"
#include "i18n/catalog/meta_info_expat_event_handler.hpp"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

namespace {

using fl::i18n::ustring;

// Notes the keys of the entries the map handler accepts, to check its names against them.
class recording_handler : public fl::i18n::MetaInfoExpatEventHandler {
public:
    using MetaInfoExpatEventHandler::MetaInfoExpatEventHandler;

    bool start_element(char const* name, char const** attributes) override {
        std::vector<std::string> keys;
        for (char const** a = attributes; a[0] != nullptr; a += 2) {
            if (std::strcmp(a[0], "key") == 0) {
                keys.emplace_back(a[1]);
            }
        }
        pending = keys;
        bool const accepted = MetaInfoExpatEventHandler::start_element(name, attributes);
        if (accepted && std::strcmp(name, "entry") == 0) {
            seen.insert(seen.end(), keys.begin(), keys.end());
        }
        return accepted;
    }

    std::vector<std::string> pending;
    std::vector<std::string> seen;
};

bool is_ascii(std::string const& text) {
    for (char c : text) {
        if (static_cast<unsigned char>(c) > 0x7F) {
            return false;
        }
    }
    return true;
}

}  // namespace

// Catalog maps come from every installed product, and message ID completion reads them while
// the user types: any bytes must give names taken from the keys below the prefix, or the
// documented refusal of a key that is not ASCII.
// Input: a length byte, that many bytes of prefix (cut to seven bits), then the map file.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    std::size_t const prefix_size = std::min<std::size_t>(data[0] % 8, size - 1);
    ustring prefix;
    for (std::size_t i = 1; i <= prefix_size; ++i) {
        prefix.push_back(static_cast<char16_t>(data[i] & 0x7F));
    }
    auto const names = boost::make_shared<boost::unordered_set<ustring>>();
    auto const handler = boost::make_shared<recording_handler>(prefix, names);
    std::istringstream input(
        std::string(reinterpret_cast<char const*>(data) + 1 + prefix_size, size - 1 - prefix_size));
    try {
        fl::i18n::ExpatFileParser(fl::filesystem::upath(), handler).parse(input);
    } catch (fl::i18n::CvtInvalidCharacter const&) {
        bool refused_rightly = false;
        for (std::string const& key : handler->pending) {
            refused_rightly = refused_rightly || !is_ascii(key);
        }
        if (!refused_rightly) {
            std::abort();
        }
    }
    // Each name is the element after "prefix:" of a key that was read, and every such key
    // gave its name.
    ustring const head = prefix + u':';
    boost::unordered_set<ustring> expected;
    for (std::string const& key : handler->seen) {
        ustring const wide(key.begin(), key.end());
        if (wide.compare(0, head.size(), head) == 0) {
            ustring const rest = wide.substr(head.size());
            expected.insert(rest.substr(0, rest.find(u':')));
        }
    }
    if (expected != *names) {
        std::abort();
    }
    return 0;
}
