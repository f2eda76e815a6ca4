// The type library inside the server, read back through the system, says what the tables say.
#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Client.h"
#include "TypeLibraryText.h"

namespace qzbase::tests {
namespace {

ComRef<ITypeLib> ServerTypeLibrary() {
  std::vector<wchar_t> path(MAX_PATH);
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  std::wstring file(path.begin(), path.end());
  file.replace(file.rfind(L'\\') + 1, std::wstring::npos, L"QZBase.dll");
  ComRef<ITypeLib> library;
  EXPECT_EQ(S_OK, LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.Put()));
  return library;
}

// A variant that is left out says so to the member, which knows its default.
std::string WithoutDefaultsOfVariants(const std::string& pLine) {
  static const std::regex kDefault("(: Variant) = [^,)\"]*");
  return std::regex_replace(pLine, kDefault, "$1 = ?");
}

std::vector<std::string> Lines(std::istream&& pText) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(pText, line);) lines.push_back(line);
  return lines;
}

TEST(TypeLibrary, SaysWhatTheTablesSay) {
  const ComRef<ITypeLib> library = ServerTypeLibrary();
  ASSERT_TRUE(library);
  const std::vector<std::string> actual = Lines(std::istringstream(TypeLibraryText(*library.Get())));
  const std::vector<std::string> expected = Lines(std::ifstream(QZBASE_GOLDEN_FOLDER "/typelib.txt"));
  ASSERT_GT(expected.size(), 100U);
  EXPECT_EQ(expected.size(), actual.size());
  for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i)
    EXPECT_EQ(WithoutDefaultsOfVariants(expected[i]), actual[i]);
}

GUID IdOf(ITypeLib& pLibrary) {
  TLIBATTR* attributes = nullptr;
  EXPECT_EQ(S_OK, pLibrary.GetLibAttr(&attributes));
  const GUID id = attributes->guid;
  pLibrary.ReleaseTLibAttr(attributes);
  return id;
}

// Every object knows its place in the library.
TEST(TypeLibrary, IsTheOneThatObjectsPointTo) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  ComRef<ITypeInfo> info;
  ASSERT_EQ(S_OK, vector->GetTypeInfo(0, 0, info.Put()));
  ComRef<ITypeLib> library;
  UINT index = 0;
  ASSERT_EQ(S_OK, info->GetContainingTypeLib(library.Put(), &index));
  EXPECT_TRUE(IsEqualGUID(IdOf(*ServerTypeLibrary().Get()), IdOf(*library.Get())));
}

}  // namespace
}  // namespace qzbase::tests
