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

PreferencesStore::ReadResult SettingsStore::read(const std::string& application,
                                                 const std::string& section,
                                                 const std::string& key) {
    const UserSettings settings(application, section);
    if (settings.refused())
        return CannotOpen{settings.code()};
    const QVariant value = settings.value(toQt(key));
    if (!value.isValid())
        return Absent{};
    if (value.typeId() != QMetaType::QString)
        return NotText{static_cast<std::uint32_t>(value.typeId())};
    return fromQt(value.toString());
}

PreferencesStore::WriteResult SettingsStore::write(const std::string& application,
                                                   const std::string& section,
                                                   const std::string& key,
                                                   const std::string& text) {
    UserSettings settings(application, section);
    if (settings.refused() || !settings.isWritable())
        return CannotOpen{static_cast<std::uint32_t>(QSettings::AccessError)};
    settings.setValue(toQt(key), toQt(text));
    settings.sync();
    if (settings.refused())
        return CannotSet{settings.code()};
    return Written{};
}

} // namespace parabolt
