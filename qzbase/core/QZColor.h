// The colours that have names. A colour is 0x00BBGGRR, or one that the user's system settings give: 0x80000000 plus its
// number there.
#pragma once

#include <cstdint>
#include <limits>

namespace qzbase {

// Do not change the numbers: they are in people's files and programs.
enum QZColor : std::int32_t {
  qzWhite = 16777215,
  qzBLACK = 0,
  qzLightGrey = 14737632,
  qzGREY = 12632256,
  qzDarkGrey = 8421504,
  qzLightBlue = 16761024,
  qzBlue = 16711680,
  qzDarkBlue = 12582912,
  qzLightGreen = 12648384,
  qzGreen = 49152,
  qzDarkGreen = 32768,
  qzLightRed = 12632319,
  qzRed = 255,
  qzDarkRed = 192,
  qzLightYellow = 12648447,
  qzYellow = 65535,
  qzDarkYellow = 49344,
  qzCyan = 16776960,
  qzPurple = 16711935,
  qzInvalidColor = -1,

  qzScrollBars = std::numeric_limits<std::int32_t>::min(),
  qzDesktop,
  qzActiveTitleBar,
  qzInactiveTitleBar,
  qzMenuBar,
  qzWindowBackground,
  qzWindowFrame,
  qzMenuText,
  qzWindowText,
  qzTitleBarText,
  qzActiveBorder,
  qzInactiveBorder,
  qzApplicationWorkspace,
  qzHighlight,
  qzHighlightText,
  qzButtonFace,
};

}  // namespace qzbase
