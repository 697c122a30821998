#pragma once

#include "controls/services.h"
#include "files/preferences.h"

#include <QString>
#include <map>
#include <tuple>

namespace parabolt {

/// Preferences in an ini file of the application's name in the user's configuration folder. Where
/// the file can't be read or understood, or a folder stands in its place, nothing counts as stored:
/// what stands there is set aside under another name and, where even that can't be done,
/// preferences live as long as the store. The user is told once.
class SettingsStore : public PreferencesStore {
public:
    explicit SettingsStore(MessageBoxes& messages) : messages_(messages) {}

    Outcome<std::optional<std::string>, Refusal> read(const std::string& application,
                                                      const std::string& section,
                                                      const std::string& key) override;
    Outcome<void, Refusal> write(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& text) override;

private:
    bool isUsable(const std::string& application);
    void tell(const QString& file, const QString& aside);

    MessageBoxes& messages_;
    bool told_ = false;
    /// What couldn't be stored, by application, section and key.
    std::map<std::tuple<std::string, std::string, std::string>, std::string> kept_;
};

} // namespace parabolt
