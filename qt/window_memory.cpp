#include "qt/window_memory.h"

#include "mainform/main_form.h"
#include "qt/table_view.h"
#include "qt/text.h"

#include <QAction>
#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>

namespace parabolt {
namespace {

constexpr const char* kChosen = "1";

QList<int> numbersOf(const std::string& text) {
    QList<int> numbers;
    for (const QString& word : toQt(text).split(' ', Qt::SkipEmptyParts))
        numbers << word.toInt();
    return numbers;
}

} // namespace

void WindowMemory::restoreSize(QWidget& window, QSize usual) const {
    const auto size = numbersOf(read("Size"));
    const QSize wanted = size.size() == 2 ? QSize(size[0], size[1]) : usual;
    window.resize(wanted.expandedTo(window.minimumSizeHint())
                      .boundedTo(window.screen()->availableSize() * 0.95));
    const auto place = numbersOf(read("Place"));
    if (place.size() != 2)
        return;
    const QPoint corner(place[0], place[1]);
    if (QGuiApplication::screenAt(corner) != nullptr) // a screen may have gone
        window.move(corner);
}

void WindowMemory::restore(QSplitter& splitter, std::string_view key) const {
    if (const auto parts = numbersOf(read(key)); parts.size() == splitter.count())
        splitter.setSizes(parts);
}

void WindowMemory::restore(TableView& table, std::string_view key) const {
    table.setLayoutText(read(key));
}

void WindowMemory::restore(QAction& choice, std::string_view key) const {
    choice.setChecked(read(key) == kChosen);
}

void WindowMemory::rememberSize(const QWidget& window) const {
    if (window.isMaximized())
        return;
    write("Size", std::to_string(window.width()) + " " + std::to_string(window.height()));
    write("Place", std::to_string(window.x()) + " " + std::to_string(window.y()));
}

void WindowMemory::remember(const QAction& choice, std::string_view key) const {
    write(key, choice.isChecked() ? kChosen : "");
}

void WindowMemory::remember(const QSplitter& splitter, std::string_view key) const {
    std::string text;
    for (const int part : splitter.sizes())
        text += (text.empty() ? "" : " ") + std::to_string(part);
    write(key, text);
}

void WindowMemory::remember(const TableView& table, std::string_view key) const {
    write(key, table.layoutText());
}

std::string WindowMemory::read(std::string_view key) const {
    const auto text = GetRegString(preferences_, kApplicationTitle, window_, key, "");
    return text ? *text : std::string();
}

void WindowMemory::write(std::string_view key, const std::string& text) const {
    static_cast<void>(SaveRegString(preferences_, kApplicationTitle, window_, key, text));
}

} // namespace parabolt
