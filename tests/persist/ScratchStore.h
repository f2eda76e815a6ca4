// A section of the user's root for the length of a test: of the real registry on Windows, elsewhere of a store whose
// roots are all in a folder of the test's own.
#pragma once

#include <string>

#include "tests/support/TempFolder.h"

namespace qzbase::tests {

class ScratchStore {
 public:
  ScratchStore();
  ~ScratchStore();
  ScratchStore(const ScratchStore&) = delete;
  ScratchStore& operator=(const ScratchStore&) = delete;

  const std::filesystem::path& Folder() const { return folder_.Path(); }

  // A text in the user's root as other programs may store it, without a final zero.
  static void StoreUnended(const std::string& pSection, const std::string& pKey, const std::string& pText);

  static inline const std::u16string kSection = u"Software\\QZBase scratch";

 private:
  TempFolder folder_;
};

}  // namespace qzbase::tests
