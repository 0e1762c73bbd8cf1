#ifndef FL_I18N_LCMGMT_MANAGER_CONTEXT_HPP
#define FL_I18N_LCMGMT_MANAGER_CONTEXT_HPP

#include <fl/i18n/lcmgmt/lcdb.hpp>
#include <fl/i18n/lcmgmt/ov_lc_opt_data_ctx.hpp>
#include <fl/i18n/lcmgmt/ov_locale.hpp>
#include <fl/i18n/lcmgmt/ov_locale_impl.hpp>

#include "i18n/lcmgmt/lc_status.hpp"
#include "i18n/lcmgmt/locale_env_snapshot.hpp"

#include <boost/thread/mutex.hpp>

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace fl {
namespace i18n {
namespace lcmgmt {

class system_setting_reader;

// What locale creation and encoding lookups consult without a lock. Start-up builds a new one
// and publishes it once; the one it replaces is never freed, as a reader may still hold it.
struct lookup_data {
    Lcdb database;
    bool use_utf8_as_default = false;
    // Kept reachable rather than freed.
    lookup_data const* replaced = nullptr;
};

// What start-up tells about itself, read without a lock. Start-up works on the manager's own
// fields under the mutex and publishes a copy when it ends; the one replaced is never freed.
struct startup_outcome {
    std::int32_t status = status_not_initialized;
    std::string status_message;
    std::vector<std::string> warnings;
    std::string database_file;
    // The environment and C library as start-up found them.
    locale_env_snapshot setting;
    startup_outcome const* replaced = nullptr;
};

// The process-wide locale state. Created on first touch and never destroyed, so references to
// its locales stay valid for the life of the process, even during static destruction.
class manager_context {
public:
    // Creates the object and its default setting on first call; safe from any thread.
    static manager_context& instance();

    bool initialized = false;
    // Start-up's working state, under the mutex; readers use outcome().
    std::int32_t status = status_not_initialized;
    std::string status_message;
    locale_env_snapshot setting;
    std::unique_ptr<OvLocaleImpl> classic_locale;
    std::unique_ptr<OvLocaleImpl> system_locale;
    std::unique_ptr<OvLocaleImpl> user_locale;
    std::unique_ptr<OvLocaleImpl> english_messages_locale;
    // Not owning: one of the locales above. Readers load it without a lock, so it is atomic.
    std::atomic<OvLocaleImpl const*> global_locale{nullptr};
    system_setting_reader* setting_reader = nullptr;
    bool l10n_resource_enabled = true;
    bool global_locale_locked = false;
    boost::mutex mutex;
    std::vector<std::string> warnings;
    std::map<std::string, OvLocale::LcCategory> category_by_name;
    std::map<OvLocale::LcCategory, std::string> name_by_category;
    std::map<std::string, OvLcOptDataCtx::LcOptDataType> opt_data_type_by_name;
    // The database file start-up read (or tried to), kept for diagnostics.
    std::string database_file;

    startup_outcome const& outcome() const noexcept {
        return *outcome_.load(std::memory_order_acquire);
    }
    // Start-up only, under the mutex: copies the working state above.
    void publish_outcome();

    lookup_data const& lookup() const noexcept { return *lookup_.load(std::memory_order_acquire); }
    Lcdb const& database() const noexcept { return lookup().database; }
    // Start-up only, under the mutex.
    void publish(lookup_data* fresh) noexcept {
        fresh->replaced = lookup_.load(std::memory_order_relaxed);
        lookup_.store(fresh, std::memory_order_release);
    }

    manager_context(manager_context const&) = delete;
    manager_context& operator=(manager_context const&) = delete;

private:
    manager_context();
    static void create();
    void apply_default_setting();

    std::atomic<lookup_data const*> lookup_;
    std::atomic<startup_outcome const*> outcome_;
};

// Gives messages in English from here on; the caller holds the mutex.
void switch_to_english_messages(manager_context& context);

}  // namespace lcmgmt
}  // namespace i18n
}  // namespace fl

#endif
