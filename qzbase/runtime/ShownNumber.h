// The number that the text of a number shows: 15 significant digits, so that what a binary fraction has too much or too
// little is gone.
//
//   0.1 + 0.2               is shown as 0.3
//   1.005 * 100             is shown as 100.5, though it is 100.49999999999999
//
// Making that text costs more than anything else that is done with it. It is not made where it cannot matter.
#pragma once

namespace qzbase::runtime {

// Infinities and not-a-number stay what they are. A single shows 7 digits: 0.1F is 0.1.
double AsShown(double pValue) noexcept;
double AsShown(float pValue) noexcept;

// Rounds a magnitude (from 0 up) to a whole number, as the number shown would be: a half goes up. False, and `pWhole`
// left as it was, where only the text itself can tell.
bool RoundClearly(double pMagnitude, double& pWhole) noexcept;

// Whether both numbers have the same text.
bool ShowSame(double pLeft, double pRight) noexcept;

}  // namespace qzbase::runtime
