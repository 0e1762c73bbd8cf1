#ifndef FL_I18N_CATALOG_MESSAGE_CATALOG_HPP
#define FL_I18N_CATALOG_MESSAGE_CATALOG_HPP

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <resource_core/resource_core.hpp>

#include <boost/shared_ptr.hpp>

#include <exception>
#include <string>
#include <vector>

namespace fl {
namespace i18n {

class CatalogID;
class MessageID;
class OvLocale;

// One loaded catalog: an immutable table from keys to message texts, for one catalog name and
// the locale of the file it came from. Clients hold it through
// boost::shared_ptr<MessageCatalog const>; any number of threads may read it without a lock.
class FL_I18N_API MessageCatalog {
public:
    // The arguments that fill a text's holes, in order.
    using ArgList = resource_core::ArgList;

    class FL_I18N_API MessageCatalogNotInitialized : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    class FL_I18N_API MessageCatalogIncorrectRoot : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    // Said alike for a file that is missing and for one that does not parse.
    class FL_I18N_API MessageCatalogLoadFailed : public std::exception {
    public:
        explicit MessageCatalogLoadFailed(std::string const& catalog_name);
        char const* what() const noexcept override;

    private:
        std::string message_;
    };
    class FL_I18N_API MessageNotFound : public std::exception {
    public:
        MessageNotFound(std::string const& catalog_name, std::string const& key);
        char const* what() const noexcept override;

    private:
        std::string message_;
    };
    class FL_I18N_API MessageFormatIncorrect : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    // expected is the number of arguments supplied, found the number of distinct holes.
    class FL_I18N_API IncorrectHoleCount : public std::exception {
    public:
        IncorrectHoleCount(unsigned long expected, unsigned long found);
        char const* what() const noexcept override;
        unsigned long expected() const noexcept { return expected_; }
        unsigned long found() const noexcept { return found_; }

    private:
        unsigned long expected_;
        unsigned long found_;
        std::string message_;
    };
    class FL_I18N_API InvalidPathSupplied : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    class FL_I18N_API ResDirNotPresent : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    class FL_I18N_API ResourcePathNotFound : public std::exception {
    public:
        char const* what() const noexcept override;
    };
    class FL_I18N_API ResPathRemovalUnknownError : public std::exception {
    public:
        explicit ResPathRemovalUnknownError(std::string const& detail);
        char const* what() const noexcept override;

    private:
        std::string message_;
    };

    MessageCatalog() = default;
    MessageCatalog(MessageCatalog const&) = delete;
    MessageCatalog& operator=(MessageCatalog const&) = delete;
    virtual ~MessageCatalog();

    // The raw text of key; MessageNotFound if this catalog has no such key.
    virtual ustring get_message_text(std::string const& key) const = 0;
    // All keys, in no particular order.
    virtual std::vector<std::string> get_message_keys() const = 0;
    // The locale of the file loaded, which may be a fallback of the one asked for.
    virtual std::string get_catalog_locale() const = 0;
    // The text of id's key with its holes filled from id's arguments, without a count check.
    // MessageNotFound also when id names another catalog.
    virtual ustring format_message(resource_core::BaseMsgID const& id) const = 0;
    virtual std::string get_catalog_name() const = 0;

    // Fills the holes of text, numbered or named, from arguments; named holes take the
    // arguments in the sorted order of their names. Numbers are written as in en_US_POSIX,
    // whatever the locale. A single apostrophe is literal. Throws IncorrectHoleCount when the
    // count of arguments differs from the count of distinct holes, and MessageFormatIncorrect
    // for a text that is no valid pattern.
    static ustring GetFormattedMessage(ustring const& text, ArgList const& arguments);

    // The catalog service. Catalogs are looked for below each root's "resources" directory,
    // the locale and its fallbacks tried in turn, and kept loaded once per catalog and locale
    // until flushed. Every operation may be called from any thread; a cached catalog is
    // returned without waiting for loads or for other readers.

    // Takes the installation roots; those without a "resources" directory are passed over,
    // and MessageCatalogIncorrectRoot is thrown when none is left. A later call changes
    // nothing and answers whether it names exactly the roots in use.
    static bool MessageCatalogInit(std::vector<ustring> const& roots);
    static bool MessageCatalogInit(ustring const& root);
    // All or nothing: one bad path throws MessageCatalogIncorrectRoot and adds none. The
    // catalogs already cached stay in use.
    static void set_additional_resource_locations(std::vector<ustring> const& paths);
    // Removes every additional location with this path and flushes the catalogs it holds in
    // English, in all locales.
    static void remove_additional_resource_location(ustring const& path);

    // The catalog for locale, or for the fallback locale that has a file; the same object for
    // both. MessageCatalogLoadFailed when no file is found or the one found doesn't load.
    static boost::shared_ptr<MessageCatalog const> GetMessageCatalog(CatalogID const& id,
                                                                     OvLocale const& locale);
    static boost::shared_ptr<MessageCatalog const> openCatalog(
        resource_core::BaseCatalogID const& id, OvLocale const& locale);
    // Forgets id in every locale; catalogs still held elsewhere live on.
    static void FlushCatalogFromCache(CatalogID const& id);

    // The raw text. There is no fallback per message: a key missing from the catalog found is
    // MessageNotFound even when a fallback locale's catalog has it.
    static ustring get_message(MessageID const& id, OvLocale const& locale);
    // The text with id's arguments filled in, without a count check.
    static ustring get_message(resource_core::BaseMsgID const& id, OvLocale const& locale);
    static ustring get_default_locale_message(resource_core::BaseMsgID const& id);
};

}  // namespace i18n
}  // namespace fl

#endif
