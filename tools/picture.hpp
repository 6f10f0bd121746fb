// A screen in other forms. Equal screens give equal results, byte for byte.
#pragma once

#include "emulator.hpp"

#include <string>

namespace kultools {

std::string asAnsi(const Emulator& screen); // text with colour escapes, for a terminal to show
std::string asSvg(const Emulator& screen);  // a picture that needs nothing else but a font

} // namespace kultools
