// The localised text of a key.
#pragma once

#include <string>
#include <string_view>

namespace qzbase {

// The translation if the key is known on this thread, else the default text, else (the default is empty) the key
// itself. Raises nothing: the error registry asks here for its messages.
std::u16string LocalizedText(std::u16string_view pKey, std::u16string_view pDefault = {});

}  // namespace qzbase
