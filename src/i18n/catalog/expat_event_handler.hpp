#ifndef FL_I18N_CATALOG_EXPAT_EVENT_HANDLER_HPP
#define FL_I18N_CATALOG_EXPAT_EVENT_HANDLER_HPP

#include <boost/noncopyable.hpp>

#include <string>
#include <utility>

namespace fl {
namespace i18n {

// What ExpatFileParser turns a document's events into. An event answering false stops the
// parse, which then fails; after that no further event is delivered.
class ExpatEventHandler : private boost::noncopyable {
public:
    // encoding is the one the parser reads the document in, whatever its declaration says.
    explicit ExpatEventHandler(std::string encoding) : encoding_(std::move(encoding)) {}
    virtual ~ExpatEventHandler() = default;

    // attributes: name, value pairs ending in a null name.
    virtual bool start_element(char const* name, char const** attributes) = 0;
    // at_line_start marks the first piece of text delivered for a physical line of the file.
    virtual bool character_data(char const* text, int length, bool at_line_start) = 0;
    virtual bool end_element(char const* name) = 0;

    bool parsing_ok() const noexcept { return parsing_ok_; }
    void set_parsing_ok(bool ok) noexcept { parsing_ok_ = ok; }
    std::string const& encoding() const noexcept { return encoding_; }

private:
    bool parsing_ok_ = true;
    std::string encoding_;
};

}  // namespace i18n
}  // namespace fl

#endif
