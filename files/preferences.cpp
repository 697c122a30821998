#include "files/preferences.h"

#include "numbers/characters.h"

namespace parabolt {

namespace {

constexpr std::uint32_t kNoAppName = 0x800403E8;
constexpr std::uint32_t kNoSection = 0x800403E9;
constexpr std::uint32_t kNoKey = 0x800403EA;
constexpr std::uint32_t kStoreFailureBase = 0x800407D0; ///< the system's code comes on top

/// A name without the blanks around it.
std::string bareName(std::string_view text) {
    return std::string(trimmed(text, " "));
}

/// The one spelling under which a section is stored.
std::string sectionName(std::string_view section) {
    return lowerCase(bareName(section));
}

Outcome<void, Failure> checkAddress(std::string_view appName, std::string_view section,
                                    std::string_view key) {
    if (bareName(appName).empty())
        return because(Failure{kNoAppName, "AppName may not be empty"});
    if (bareName(section).empty())
        return because(Failure{kNoSection, "Section may not be empty"});
    if (bareName(key).empty())
        return because(Failure{kNoKey, "Key may not be empty"});
    return {};
}

/// The failure for a refusal, with the words for either thing that the store refuses.
Because<Failure> failure(const PreferencesStore::Refusal& refusal, const char* section,
                         const char* value) {
    const bool unopened = refusal.of == PreferencesStore::Refusal::Of::Section;
    return because(Failure{kStoreFailureBase + refusal.code, unopened ? section : value});
}

} // namespace

Outcome<std::string, Failure> GetRegString(PreferencesStore& store, std::string_view AppName,
                                           std::string_view Section, std::string_view Key,
                                           std::string_view Default) {
    if (const auto address = checkAddress(AppName, Section, Key); !address)
        return because(address.why());
    const auto text = store.read(bareName(AppName), sectionName(Section), std::string(Key));
    if (!text)
        return failure(text.why(), "Could not open registry section", "Registry data not a string");
    return text->value_or(std::string(Default));
}

Outcome<void, Failure> SaveRegString(PreferencesStore& store, std::string_view AppName,
                                     std::string_view Section, std::string_view Key,
                                     std::string_view Setting) {
    if (auto address = checkAddress(AppName, Section, Key); !address)
        return address;
    const auto written = store.write(bareName(AppName), sectionName(Section), std::string(Key),
                                     std::string(Setting));
    if (!written)
        return failure(written.why(), "Could not open/create registry section",
                       "Could not set key value");
    return {};
}

} // namespace parabolt
