#include "qt/settings_store.h"

#include "qt/text.h"

#include <QSettings>

namespace parabolt {

namespace {

class UserSettings : public QSettings {
public:
    UserSettings(const std::string& application, const std::string& section)
        : QSettings(NativeFormat, UserScope, toQt(application)) {
        setFallbacksEnabled(false);
        beginGroup(toQt(section));
    }
    bool refused() const { return status() == AccessError; }
    std::uint32_t code() const { return static_cast<std::uint32_t>(status()); }
};

} // namespace

Outcome<std::optional<std::string>, PreferencesStore::Refusal>
SettingsStore::read(const std::string& application, const std::string& section,
                    const std::string& key) {
    const UserSettings settings(application, section);
    if (settings.refused())
        return because(Refusal{Refusal::Of::Section, settings.code()});
    const QVariant value = settings.value(toQt(key));
    if (!value.isValid())
        return {std::nullopt};
    if (value.typeId() != QMetaType::QString)
        return because(Refusal{Refusal::Of::Value, static_cast<std::uint32_t>(value.typeId())});
    return {fromQt(value.toString())};
}

Outcome<void, PreferencesStore::Refusal> SettingsStore::write(const std::string& application,
                                                              const std::string& section,
                                                              const std::string& key,
                                                              const std::string& text) {
    UserSettings settings(application, section);
    if (settings.refused() || !settings.isWritable())
        return because(Refusal{Refusal::Of::Section, QSettings::AccessError});
    settings.setValue(toQt(key), toQt(text));
    settings.sync();
    if (settings.refused())
        return because(Refusal{Refusal::Of::Value, settings.code()});
    return {};
}

} // namespace parabolt
