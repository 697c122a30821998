#include "files/preferences.h"

#include <algorithm>

namespace parabolt {

namespace {

constexpr std::uint32_t kNoAppName = 0x800403E8;
constexpr std::uint32_t kNoSection = 0x800403E9;
constexpr std::uint32_t kNoKey = 0x800403EA;
constexpr std::uint32_t kStoreFailureBase = 0x800407D0; ///< the system's code comes on top

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

/// The one spelling under which a section is stored.
std::string sectionName(std::string_view section) {
    std::string name = trimmed(section);
    std::transform(name.begin(), name.end(), name.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return name;
}

std::optional<Failure> addressFailure(std::string_view appName, std::string_view section,
                                      std::string_view key) {
    if (trimmed(appName).empty())
        return Failure{kNoAppName, "AppName may not be empty"};
    if (trimmed(section).empty())
        return Failure{kNoSection, "Section may not be empty"};
    if (trimmed(key).empty())
        return Failure{kNoKey, "Key may not be empty"};
    return std::nullopt;
}

} // namespace

Outcome<std::string> GetRegString(PreferencesStore& store, std::string_view AppName,
                                  std::string_view Section, std::string_view Key,
                                  std::string_view Default) {
    if (auto failure = addressFailure(AppName, Section, Key))
        return *failure;
    const auto result = store.read(trimmed(AppName), sectionName(Section), std::string(Key));
    if (const auto* refused = std::get_if<PreferencesStore::CannotOpen>(&result))
        return Failure{kStoreFailureBase + refused->code, "Could not open registry section"};
    if (const auto* other = std::get_if<PreferencesStore::NotText>(&result))
        return Failure{kStoreFailureBase + other->typeCode, "Registry data not a string"};
    if (const auto* text = std::get_if<std::string>(&result))
        return *text;
    return std::string(Default);
}

std::optional<Failure> SaveRegString(PreferencesStore& store, std::string_view AppName,
                                     std::string_view Section, std::string_view Key,
                                     std::string_view Setting) {
    if (auto failure = addressFailure(AppName, Section, Key))
        return failure;
    const auto result =
        store.write(trimmed(AppName), sectionName(Section), std::string(Key), std::string(Setting));
    if (const auto* refused = std::get_if<PreferencesStore::CannotOpen>(&result))
        return Failure{kStoreFailureBase + refused->code, "Could not open/create registry section"};
    if (const auto* refused = std::get_if<PreferencesStore::CannotSet>(&result))
        return Failure{kStoreFailureBase + refused->code, "Could not set key value"};
    return std::nullopt;
}

} // namespace parabolt
