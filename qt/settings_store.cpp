#include "qt/settings_store.h"

#include "qt/text.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <utility>

namespace parabolt {

namespace {

/// The name of an application's ini file. Settings would tell it only after they have opened the
/// file, and a pipe in its place is waited for without end: so a neighbour is asked.
QString fileOf(const std::string& application) {
    const QSettings neighbour(QSettings::NativeFormat, QSettings::UserScope, "neighbour");
    return QFileInfo(neighbour.fileName()).dir().filePath(toQt(application) + ".conf");
}

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

/// Gives what stands there another name beside it: the new one, or an empty text if that fails.
QString setAside(const QString& file) {
    const QString wanted = file + ".unreadable";
    QString name = wanted;
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = wanted + QString::number(i);
    return QDir().rename(file, name) ? name : QString();
}

} // namespace

bool SettingsStore::isUsable(const std::string& application) {
    const QString file = fileOf(application);
    const QFileInfo there(file);
    const bool other = there.exists() && !there.isFile();
    if (!other && UserSettings(application, {}).status() == QSettings::NoError)
        return true;
    const QString aside = setAside(file);
    if (!std::exchange(told_, true))
        tell(file, aside);
    return !aside.isEmpty();
}

void SettingsStore::tell(const QString& file, const QString& aside) {
    const QString end = aside.isEmpty() ? QString("Until it can be, the folder of the last file is "
                                                  "remembered only while the program runs.")
                                        : "It is now called \"" + QFileInfo(aside).fileName() +
                                              "\", and the program begins a new one.";
    messages_.show(fromQt("The file of preferences \"" + QDir::toNativeSeparators(file) +
                          "\" can't be read. " + end));
}

Outcome<std::optional<std::string>, PreferencesStore::Refusal>
SettingsStore::read(const std::string& application, const std::string& section,
                    const std::string& key) {
    if (const auto kept = kept_.find({application, section, key}); kept != kept_.end())
        return {kept->second};
    if (!isUsable(application))
        return {std::nullopt};
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
    if (!isUsable(application)) {
        kept_[{application, section, key}] = text;
        return {};
    }
    UserSettings settings(application, section);
    if (settings.refused() || !settings.isWritable())
        return because(Refusal{Refusal::Of::Section, QSettings::AccessError});
    settings.setValue(toQt(key), toQt(text));
    settings.sync();
    if (settings.refused())
        return because(Refusal{Refusal::Of::Value, settings.code()});
    kept_.erase({application, section, key}); // the file has the word again
    return {};
}

} // namespace parabolt
