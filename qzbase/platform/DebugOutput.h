// Lines for who looks for a fault: into a list box of the host's, an open file, or both.
//
// The list box is any object with the members ListCount, AddItem, RemoveItem, Height (in twips) and TopIndex, with
// items counted from 0, and a font: Font.Name and Font.Size, or FontName and FontSize. All failures are ignored: debug
// output never disturbs what it watches. Settings exist once per thread.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/runtime/Object.h"

namespace qzbase::ModBase {

// A level for the host's own use; the library only keeps it. 0 at the start.
std::int32_t DebugMode();
void LetDebugMode(std::int32_t pNewValue);

// The list box, unset for none, and how many lines it may have before the oldest ones go; below 1: 300.
void SetDbgWindow(runtime::Ref<runtime::Object> pDbgWnd, std::int32_t pMaxLines = 0);

// The open file: a file descriptor, on Windows the value of a handle (os/OpenFile.h); 0 for none. The library neither
// opens nor closes it.
void SetDbgFileHdl(std::int32_t pHdl);

// Appends a line and brings it into view. Where the list box has more lines than it may, the first one goes before; one
// for each line shown, so the list has at most one line more than the maximum.
void ShowDebugLine(std::u16string_view pDbgLine);

}  // namespace qzbase::ModBase
