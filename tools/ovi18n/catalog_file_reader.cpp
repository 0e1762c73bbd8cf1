#include "catalog_file_reader.hpp"

#include <expat.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <memory>

namespace ovi18n_tool {
namespace {

bool is(char const* name, char const* expected) {
    return std::strcmp(name, expected) == 0;
}

void trim(std::string& text) {
    static char const blanks[] = " \t\v\n\r";  // no form feed, as in the loader
    std::size_t const last = text.find_last_not_of(blanks);
    if (last == std::string::npos) {
        text.clear();
        return;
    }
    text.erase(last + 1);
    text.erase(0, text.find_first_not_of(blanks));
}

// The loader steps over a known attribute's value but only one place past an unknown name, so
// an unknown attribute's value is then taken for a name.
bool catalog_attributes_ok(char const** attributes) {
    for (std::size_t i = 0; attributes[i] != nullptr;) {
        if (is(attributes[i], "version") || is(attributes[i], "locale")) {
            if (attributes[i + 1] == nullptr) {
                return false;
            }
            i += 2;
        } else {
            ++i;
        }
    }
    return true;
}

class reader {
public:
    explicit reader(catalog_file& result) : result_(result), parser_(XML_ParserCreate("UTF-8")) {
        if (parser_ == nullptr) {
            throw std::bad_alloc();
        }
        XML_SetElementHandler(parser_, &on_start, &on_end);
        XML_SetCharacterDataHandler(parser_, &on_text);
        XML_SetUserData(parser_, this);
    }
    ~reader() { XML_ParserFree(parser_); }
    reader(reader const&) = delete;
    reader& operator=(reader const&) = delete;

    void read(std::istream& input) {
        bool ok = true;
        std::string line;
        while (ok && std::getline(input, line)) {
            line_starts_.push_back(fed_);
            lines_.push_back(line);
            fed_ += line.size();
            at_line_start_ = true;
            ok = XML_Parse(parser_, line.data(), static_cast<int>(line.size()),
                           input.eof() ? 1 : 0) != XML_STATUS_ERROR;
        }
        result_.loaded = ok;
        if (!ok) {
            if (refusal_.empty()) {
                refusal_ = XML_ErrorString(XML_GetErrorCode(parser_));
                refused_at_ = locate(XML_GetCurrentByteIndex(parser_));
            }
            result_.error = refusal_;
            result_.error_at = refused_at_;
            result_.entries.clear();
        } else {
            result_.unclosed = depth_ > 0;
        }
    }

private:
    enum class state { before_root, in_catalog, in_message, in_entry };

    file_location locate(XML_Index index) const {
        file_location where;
        for (std::size_t i = line_starts_.size(); i-- > 0;) {
            if (index >= 0 && static_cast<std::size_t>(index) >= line_starts_[i]) {
                std::string const& line = lines_[i];
                std::size_t const end =
                    std::min(line.size(), static_cast<std::size_t>(index) - line_starts_[i]);
                where.line = i + 1;
                where.column = 1;
                for (std::size_t b = 0; b < end; ++b) {
                    where.column += (static_cast<unsigned char>(line[b]) & 0xC0) != 0x80;
                }
                break;
            }
        }
        return where;
    }

    // Returns the refusal's reason, empty when the element is accepted.
    std::string start(char const* name, char const** attributes) {
        if (is(name, "rsccat")) {
            bool const first = state_ == state::before_root;
            state_ = state::in_catalog;
            if (!first) {
                return "'rsccat' may only be the root element";
            }
            return catalog_attributes_ok(attributes)
                       ? ""
                       : "an unknown attribute of 'rsccat' has the value \"version\" or "
                         "\"locale\", which is then read as a name without a value";
        }
        if (is(name, "message")) {
            if (state_ != state::in_catalog) {
                return "'message' may only appear once, directly inside 'rsccat'";
            }
            state_ = state::in_message;
            return "";
        }
        if (is(name, "entry")) {
            bool const placed = state_ == state::in_message || state_ == state::in_entry;
            state_ = state::in_entry;
            for (std::size_t i = 0; attributes[i] != nullptr; i += 2) {
                if (is(attributes[i], "key")) {
                    key_ = attributes[i + 1];
                }
            }
            entry_at_ = locate(XML_GetCurrentByteIndex(parser_));
            return placed ? "" : "'entry' outside 'message'";
        }
        return std::string("unknown element '") + name + "'";
    }

    void text(char const* text, int length, bool at_line_start) {
        if (state_ != state::in_entry || key_.empty()) {
            return;
        }
        if (at_line_start) {
            trim(line_);
            text_ += ' ';
            text_ += line_;
            line_.assign(text, static_cast<std::size_t>(length));
        } else {
            line_.append(text, static_cast<std::size_t>(length));
        }
    }

    std::string end(char const* name) {
        if (!is(name, "entry")) {
            return "";
        }
        if (state_ != state::in_entry || key_.empty()) {
            return "'entry' without a 'key'";
        }
        trim(line_);
        text_ += ' ';
        text_ += line_;
        trim(text_);
        catalog_entry entry;
        entry.key = key_;
        icu::UnicodeString stored = icu::UnicodeString::fromUTF8(text_);
        if (text_.find('\\') != std::string::npos) {
            stored = stored.unescape();
            entry.escape_failed = stored.isEmpty();
        }
        entry.text.assign(stored.getBuffer(), static_cast<std::size_t>(stored.length()));
        entry.where = entry_at_;
        result_.entries.push_back(std::move(entry));
        key_.clear();
        line_.clear();
        text_.clear();
        return "";
    }

    // Once a handler has refused, expat is stopped and no further event counts.
    void deliver(std::string const& refusal) {
        if (!refusal.empty()) {
            refusal_ = refusal;
            refused_at_ = locate(XML_GetCurrentByteIndex(parser_));
            XML_StopParser(parser_, XML_FALSE);
        }
    }

    static void XMLCALL on_start(void* data, XML_Char const* name, XML_Char const** attributes) {
        auto& r = *static_cast<reader*>(data);
        ++r.depth_;
        if (r.refusal_.empty()) {
            r.deliver(r.start(name, attributes));
        }
    }
    static void XMLCALL on_end(void* data, XML_Char const* name) {
        auto& r = *static_cast<reader*>(data);
        --r.depth_;
        if (r.refusal_.empty()) {
            r.deliver(r.end(name));
        }
    }
    static void XMLCALL on_text(void* data, XML_Char const* text, int length) {
        auto& r = *static_cast<reader*>(data);
        bool const at_line_start = r.at_line_start_;
        r.at_line_start_ = false;
        if (r.refusal_.empty()) {
            r.text(text, length, at_line_start);
        }
    }

    catalog_file& result_;
    XML_Parser parser_;
    std::vector<std::size_t> line_starts_;
    std::vector<std::string> lines_;
    std::size_t fed_ = 0;
    bool at_line_start_ = false;
    state state_ = state::before_root;
    int depth_ = 0;
    std::string key_, line_, text_;
    file_location entry_at_;
    std::string refusal_;
    file_location refused_at_;
};

}  // namespace

catalog_file read_catalog(std::istream& input) {
    catalog_file result;
    reader(result).read(input);
    return result;
}

catalog_file read_catalog_file(std::string const& path) {
    std::ifstream input(path, std::ios_base::in | std::ios_base::binary);
    if (!input.good()) {
        catalog_file result;
        result.error = "cannot be opened";
        return result;
    }
    return read_catalog(input);
}

}  // namespace ovi18n_tool
