// The translated texts of the calling thread, by key.
//
// Keys are exact, upper and lower case differ. The first text of a key stays. A look-up costs the same however many
// texts there are: every message and every name that a user sees asks here.
//
// Lies below the error registry, whose messages are looked up here: nothing in it raises a registered error.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qzbase {

class StringTable {
 public:
  // The text of the key, or null.
  const std::u16string* Find(std::u16string_view pKey) const;

  // Stores the text unless the key has one. Gives the text that the key has then.
  const std::u16string& Add(std::u16string_view pKey, std::u16string_view pText);

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view pKey) const noexcept { return std::hash<std::u16string_view>()(pKey); }
  };

  std::unordered_map<std::u16string, std::u16string, Hash, std::equal_to<>> texts_;
};

// Empty at the thread's first use.
StringTable& ThreadStrings();

}  // namespace qzbase
