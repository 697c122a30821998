#include "cli/shot_options.h"

#include "cli/club_files.h"

#include <algorithm>

namespace parabolt::cli {

std::string optionOf(const ShotInput& input) {
    std::string option = "--" + std::string(input.key);
    std::replace(option.begin(), option.end(), '_', '-');
    return option;
}

std::string launchOptions(const ShotOptions& options) {
    std::string given;
    const auto add = [&](bool is, const std::string& option) {
        if (is)
            given += (given.empty() ? "" : ", ") + option;
    };
    for (std::size_t i = 0; i < kShotInputs; ++i)
        add(shotInputs()[i].of != ShotInput::Of::Air && options.inputs.at(i),
            optionOf(shotInputs()[i]));
    add(options.club.has_value(), "--club");
    add(!options.clubsFile.empty(), "--clubs");
    return given;
}

bool tellsLaunch(const ShotOptions& options) {
    for (std::size_t i = 0; i < kShotInputs; ++i)
        if (shotInputs()[i].of == ShotInput::Of::Launch && options.inputs.at(i))
            return true;
    return false;
}

Outcome<ClubTables, Refusal> clubsFor(const ShotOptions& options, const Console& console) {
    if (options.clubsFile.empty())
        return InitClubTables();
    return readClubs(options.clubsFile, console);
}

Outcome<ShotRequest, Refusal> requestOf(const ShotOptions& options, const ClubTables& clubs) {
    ShotRequest request(clubs);
    const auto take = [](const std::string& option, const auto& set,
                         const std::optional<std::string>& text) -> Outcome<void, Refusal> {
        if (text)
            if (const auto taken = set(*text); !taken)
                return because(Refusal{option + ": " + taken.why()});
        return {};
    };
    for (std::size_t i = 0; i < kShotInputs; ++i) {
        const auto set = [&](const std::string& text) { return request.set(i, text); };
        if (auto taken = take(optionOf(shotInputs()[i]), set, options.inputs.at(i)); !taken)
            return because(taken.why());
    }
    const auto setClub = [&](const std::string& text) { return request.setClub(text); };
    if (auto taken = take("--club", setClub, options.club); !taken)
        return because(taken.why());
    const auto setBall = [&](const std::string& text) { return request.setBall(text); };
    if (auto taken = take("--ball", setBall, options.ball); !taken)
        return because(taken.why());
    return request;
}

Outcome<Shot, Refusal> shotOf(const ShotOptions& options, const Console& console) {
    const auto clubs = clubsFor(options, console);
    if (!clubs)
        return because(clubs.why());
    const auto request = requestOf(options, *clubs);
    if (!request)
        return because(request.why());
    auto shot = request->shot();
    if (!shot)
        return because(Refusal{shot.why()});
    return *shot;
}

} // namespace parabolt::cli
