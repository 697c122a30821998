#pragma once

#include <string>
#include <string_view>

namespace parabolt {

/// Text files and the texts in clubs files are written in the code page Windows-1252, one byte a
/// character; inside the program texts are UTF-8.

/// A UTF-8 text in the code page. A character that the code page lacks becomes one "?", and so does
/// each byte that is no part of well-formed UTF-8.
std::string toCodePage(std::string_view utf8);

/// Text of the code page as UTF-8. The five bytes without a character stand for the control
/// characters of their number, so that every byte survives the way to and fro.
std::string fromCodePage(std::string_view bytes);

} // namespace parabolt
