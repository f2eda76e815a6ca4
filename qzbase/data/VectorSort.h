// The order in which the vectors sort: that of an insertion sort, in the time of a merge sort.
//
// Ascending, each element goes in front of the first one before it that is greater, descending in front of the first
// one that is smaller; elements that are neither keep their order. This also says where not-a-number comes to stand:
// nothing is greater or smaller than it, so that it goes to the end of what is before it and is passed over later.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace qzbase {

void SortElements(std::span<double> pElements, bool pAscending);
void SortElements(std::span<std::int32_t> pElements, bool pAscending);

// Texts sort as the whole numbers that they say, and are replaced by the texts of those: "10", "9" and "2.6" give "3",
// "9" and "10". A text that is no number raises the error of its conversion; those before it are sorted then, it and
// those behind it unchanged.
void SortElements(std::span<std::u16string> pElements, bool pAscending);

}  // namespace qzbase
