#ifndef FL_I18N_LCMGMT_EVENT_HANDLER_HPP
#define FL_I18N_LCMGMT_EVENT_HANDLER_HPP

namespace fl {
namespace i18n {
namespace lcmgmt {

// What an XML document's events turn into. Each operation returns 0 to go on; anything else
// stops the parse, which then fails as an invalid document.
class EventHandler {
public:
    virtual ~EventHandler() = default;

    // encoding is null when the declaration has none.
    virtual int xmlDecl(char const* version, char const* encoding, int standalone) = 0;
    // attributes: name, value pairs ending in a null name.
    virtual int startElement(char const* name, char const** attributes) = 0;
    virtual int characterData(char const* data, int length) = 0;
    virtual int endElement(char const* name) = 0;
    // The encoding the parser is told to read the document in.
    virtual char const* parserEncoding() const = 0;
};

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
