#ifndef FL_I18N_CATALOG_EXPAT_FILE_PARSER_HPP
#define FL_I18N_CATALOG_EXPAT_FILE_PARSER_HPP

#include <fl/filesystem/basic_path.hpp>

#include "i18n/catalog/expat_event_handler.hpp"

#include <boost/noncopyable.hpp>
#include <boost/shared_ptr.hpp>

#include <exception>
#include <istream>

struct XML_ParserStruct;

namespace fl {
namespace i18n {

// Feeds a file to expat one line at a time, without the newlines: lines are joined with no
// separator, so markup split across lines must stay well-formed when put end to end. Only a
// last line without a newline is parsed as final, so a document in a file ending in a newline
// may stay unclosed and still pass.
class ExpatFileParser : private boost::noncopyable {
public:
    ExpatFileParser(fl::filesystem::upath const& file,
                    boost::shared_ptr<ExpatEventHandler> handler);
    ~ExpatFileParser();

    // False when the file cannot be opened or is no acceptable document. Exceptions of the
    // handler come out of here, after expat has been left; a line over 0x7fffffff bytes throws
    // boost::numeric::positive_overflow.
    bool parse();

    // The same over an open stream.
    bool parse(std::istream& input);

    // What the expat callbacks reach through their user data.
    struct callback_context {
        XML_ParserStruct* parser;
        boost::shared_ptr<ExpatEventHandler> handler;
        bool at_line_start;
        // An exception may not unwind through expat; it waits here until XML_Parse returns.
        std::exception_ptr failure;
    };

private:
    fl::filesystem::upath file_;
    XML_ParserStruct* parser_;
    boost::shared_ptr<ExpatEventHandler> handler_;
    callback_context context_;
};

}  // namespace i18n
}  // namespace fl

#endif
