#include <fl/i18n/catalog/message_catalog.hpp>

#include "i18n/catalog/format_text.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>

// Message texts are written by translators; whatever holes, quotes and sub-formats a text holds,
// formatting gives text or a stated exception. The first byte picks the arguments and whether
// holes are counted; the rest is the text in UTF-16.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    using fl::i18n::MessageCatalog;
    unsigned const mode = data[0];
    fl::i18n::ustring text((size - 1) / 2, u'\0');
    std::memcpy(&text[0], data + 1, text.size() * 2);

    MessageCatalog::ArgList const all{-12345L, std::string("bytes"), fl::i18n::ustring(u"text"),
                                      1296000000L};
    MessageCatalog::ArgList const args(all.begin(), all.begin() + (mode & 3U));
    try {
        fl::i18n::catalog::format_text(text, args, (mode & 4U) != 0);
    } catch (MessageCatalog::MessageFormatIncorrect const&) {
    } catch (MessageCatalog::IncorrectHoleCount const&) {
    }
    return 0;
}
