#pragma once

#include "files/failure.h"
#include "numbers/outcome.h"

#include <optional>
#include <string_view>

namespace parabolt {

/// Where preferences are kept: text values by key in the sections of an application.
class PreferencesStore {
public:
    /// What the store refused: the section, if it can't be opened; otherwise the value.
    struct Refusal {
        enum class Of { Section, Value } of;
        std::uint32_t code; ///< of the system behind the store
    };

    virtual ~PreferencesStore() = default;
    // The callers have trimmed application and section and folded the section's case.

    /// The stored text. Nothing if there is no such section, no such value, or a value that can't
    /// be fetched. A value that isn't a text is refused with the code of its type.
    virtual Outcome<std::optional<std::string>, Refusal>
    read(const std::string& application, const std::string& section, const std::string& key) = 0;
    /// Stores a text, in a section that comes into being if it is absent.
    virtual Outcome<void, Refusal> write(const std::string& application, const std::string& section,
                                         const std::string& key, const std::string& text) = 0;
};

// Both trim the application's name and the section of blanks, and tell sections apart without
// regard to case.

/// The stored text, or the default where nothing is stored.
Outcome<std::string, Failure> GetRegString(PreferencesStore& store, std::string_view AppName,
                                           std::string_view Section, std::string_view Key,
                                           std::string_view Default);

/// Stores a text. Creates the section if it is absent.
Outcome<void, Failure> SaveRegString(PreferencesStore& store, std::string_view AppName,
                                     std::string_view Section, std::string_view Key,
                                     std::string_view Setting);

} // namespace parabolt
