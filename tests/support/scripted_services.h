#pragma once

#include "controls/services.h"
#include "files/preferences.h"

#include <deque>
#include <gtest/gtest.h>
#include <map>
#include <tuple>
#include <vector>

namespace parabolt::support {

using Texts = std::vector<std::string>;
using Answer = MessageBoxes::Answer;

/// Message boxes that record their texts and answer questions from a script. A question that the
/// script doesn't expect fails the test.
struct ScriptedMessageBoxes : MessageBoxes {
    Texts texts; ///< of messages and questions, in their order
    std::deque<Answer> answers;

    void show(std::string_view message) override { texts.emplace_back(message); }
    bool ask(std::string_view question) override { return askOrCancel(question) == Answer::Yes; }
    Answer askOrCancel(std::string_view question) override {
        texts.emplace_back(question);
        EXPECT_FALSE(answers.empty()) << "nobody answers: " << question;
        const Answer answer = answers.empty() ? Answer::No : answers.front();
        if (!answers.empty())
            answers.pop_front();
        return answer;
    }
};

/// A file dialog that records how it was shown and ends as a test says beforehand.
struct ScriptedFileDialog : FileDialog {
    Texts shows; ///< how, where, and with which title and filter

    void showOpen() override { show("open"); }
    void showSave() override { show("save"); }
    void show(const std::string& how) {
        shows.push_back(how + " in " + initialFolder + ": " + title + ", " + filter);
    }

    /// The user picks a file of this full path.
    void choose(const std::string& path) {
        fileName = path;
        finalFolder = path.substr(0, path.rfind('/'));
        pickedName = path.substr(path.rfind('/') + 1);
    }
    /// The user cancels while the dialog shows a folder.
    void cancel(const std::string& folder) {
        fileName.clear();
        finalFolder = folder;
        pickedName.clear();
    }
};

/// A desktop that only records.
struct RecordingDesktop : Desktop {
    Texts opened;
    void openHelp() override { opened.emplace_back("help"); }
    void openHelpPage(std::string_view file) override { opened.emplace_back(file); }
    void openAddress(std::string_view address) override { opened.emplace_back(address); }
};

/// Preferences in memory, with a store that can be told to refuse.
struct MemoryPreferences : PreferencesStore {
    std::map<std::tuple<std::string, std::string, std::string>, std::string> values;
    std::optional<Refusal> readRefusal;  ///< what each read gives instead of what is stored
    std::optional<Refusal> writeRefusal; ///< how each write ends instead of storing

    Outcome<std::optional<std::string>, Refusal> read(const std::string& application,
                                                      const std::string& section,
                                                      const std::string& key) override {
        if (readRefusal)
            return because(*readRefusal);
        const auto found = values.find({application, section, key});
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    Outcome<void, Refusal> write(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& text) override {
        if (writeRefusal)
            return because(*writeRefusal);
        values[{application, section, key}] = text;
        return {};
    }
    /// The folder in which the last dialog ended; empty before the first.
    std::string lastPath() { return values[{"Parabolt", "startup", "LastPath"}]; }
};

} // namespace parabolt::support
