#pragma once

#include "files/failure.h"

#include <optional>
#include <string_view>

namespace parabolt {

/// Where preferences are kept: text values by key in the sections of an application. Codes are
/// those of the system behind it.
class PreferencesStore {
public:
    struct Absent {}; ///< no such section, no such value, or a value that can't be fetched
    struct NotText {
        std::uint32_t typeCode = 0;
    };
    struct CannotOpen {
        std::uint32_t code = 0;
    };
    struct CannotSet {
        std::uint32_t code = 0;
    };
    struct Written {};
    using ReadResult = std::variant<std::string, Absent, NotText, CannotOpen>;
    using WriteResult = std::variant<Written, CannotOpen, CannotSet>;

    virtual ~PreferencesStore() = default;
    // The callers have trimmed application and section and folded the section's case.
    virtual ReadResult read(const std::string& application, const std::string& section,
                            const std::string& key) = 0;
    virtual WriteResult write(const std::string& application, const std::string& section,
                              const std::string& key, const std::string& text) = 0;
};

// Both trim the application's name and the section of blanks, and tell sections apart without
// regard to case.

/// The stored text, or the default where nothing is stored.
Outcome<std::string> GetRegString(PreferencesStore& store, std::string_view AppName,
                                  std::string_view Section, std::string_view Key,
                                  std::string_view Default);

/// Stores a text. Creates the section if it is absent.
std::optional<Failure> SaveRegString(PreferencesStore& store, std::string_view AppName,
                                     std::string_view Section, std::string_view Key,
                                     std::string_view Setting);

} // namespace parabolt
