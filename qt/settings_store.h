#pragma once

#include "files/preferences.h"

namespace parabolt {

/// Preferences in an ini file of the application's name in the user's configuration folder. What
/// can't be understood in the file counts as absent, and goes with the next write.
class SettingsStore : public PreferencesStore {
public:
    Outcome<std::optional<std::string>, Refusal> read(const std::string& application,
                                                      const std::string& section,
                                                      const std::string& key) override;
    Outcome<void, Refusal> write(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& text) override;
};

} // namespace parabolt
