#pragma once

#include <string>
#include <string_view>

namespace parabolt {

/// Modal message boxes. The title is the application's.
class MessageBoxes {
public:
    enum class Answer { Yes, No, Cancel };

    virtual ~MessageBoxes() = default;
    /// A message with the one button OK.
    virtual void show(std::string_view message) = 0;
    /// A question with the buttons Yes and No; true for Yes.
    [[nodiscard]] virtual bool ask(std::string_view question) = 0;
    /// A question with the buttons Yes, No and Cancel.
    [[nodiscard]] virtual Answer askOrCancel(std::string_view question) = 0;
};

/// Lets the user name a file. The caller sets the three texts, shows the dialog one way or the
/// other and then reads how it ended.
class FileDialog {
public:
    virtual ~FileDialog() = default;

    std::string initialFolder; ///< where to start
    std::string title;
    std::string filter; ///< description and pattern in turn, separated by bars

    /// A name to start with; a name without an ending then gets that of the filter. Empty to start
    /// with none and to take names as they are typed.
    std::string suggestedName;

    virtual void showOpen() = 0;
    virtual void showSave() = 0;

    std::string fileName;    ///< full path of the chosen file; empty after a cancel
    std::string finalFolder; ///< the folder in which the dialog ended
    std::string pickedName;  ///< the chosen file's name without its folder
};

/// What lies around the program.
class Desktop {
public:
    virtual ~Desktop() = default;
    /// Shows the manual at its first page.
    virtual void openHelp() = 0;
    /// Shows the manual at the page of a file, such as "map.html".
    virtual void openHelpPage(std::string_view file) = 0;
    /// Hands an address to what serves its scheme: a web page to the user's browser, "callto:name"
    /// to the program that calls.
    virtual void openAddress(std::string_view address) = 0;
};

/// Lets the user interface live on for a moment in the middle of a handler.
class EventLoop {
public:
    virtual ~EventLoop() = default;
    /// Handles what has happened since, or waits for the next thing to happen and handles that.
    virtual void yield() = 0;
};

} // namespace parabolt
